#include "iir/cascade.h"

#include "cpu/instruction_set.h"
#include "no_subnormals.h"

#include <algorithm>
#include <bit>

namespace quordsp::backend {
namespace {

using Kernel = void (*)(const double* x, std::int64_t n, Sections sections, double* state, double* y) noexcept;

constexpr std::size_t kLanes = 8;

// As many as registers hold with their coefficients; those of one section where a signal is too short for more.
std::size_t lanesFor(std::int64_t n, std::size_t parts)
{
    constexpr std::int64_t kShort = 32;
    if (n < kShort)
        return parts;
    return bestInstructionSet() == InstructionSet::Baseline ? kLanes / 2 : kLanes;
}

template <std::size_t D, std::size_t P>
Kernel kernelFor(std::size_t sections)
{
    constexpr Kernel (*kKernels[])(InstructionSet) noexcept = {
        Versions<filterSections<D, P, 1>>::of, Versions<filterSections<D, P, 2>>::of,
        Versions<filterSections<D, P, 4>>::of, Versions<filterSections<D, P, kLanes / P>>::of};
    return kKernels[std::bit_width(sections - 1)](bestInstructionSet());
}

// Block by block, so that a block stays in the cache from one group of sections to the next.
template <std::size_t D, std::size_t P>
void filterBlocks(const double* x, std::int64_t n, const Sections& sections, double* state, double* y)
{
    constexpr std::int64_t kBlock = 4096;
    constexpr auto p = static_cast<std::int64_t>(P);
    const NoSubnormals noSubnormals;
    for (std::int64_t done = 0; done < n; done += kBlock) {
        const std::int64_t length = std::min(kBlock, n - done);
        const std::size_t most = lanesFor(length, P) / P;
        const double* source = x + done * p;
        for (std::size_t k = 0; k < sections.count; k += most) {
            const Sections group{std::min(most, sections.count - k), sections.reverse + k * D,
                                 sections.forward + k * (D + 1)};
            kernelFor<D, P>(group.count)(source, length, group, state + k * D * P, y + done * p);
            source = y + done * p;
        }
    }
}

} // namespace

void filterCascade(const double* x, std::int64_t n, std::size_t order, const Sections& sections, std::size_t parts,
                   double* state, double* y) noexcept
{
    if (order == 2)
        (parts == 1 ? filterBlocks<2, 1> : filterBlocks<2, 2>)(x, n, sections, state, y);
    else
        (parts == 1 ? filterBlocks<4, 1> : filterBlocks<4, 2>)(x, n, sections, state, y);
}

} // namespace quordsp::backend
