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

// Rows have two numbers or more: a single one would be moved to and fro between kinds of registers.
template <class Section, std::size_t P>
Kernel kernelFor(std::size_t sections)
{
    constexpr Kernel (*kKernels[])(InstructionSet) noexcept = {
        Versions<filterSections<Section, P, 2 / P>>::of, Versions<filterSections<Section, P, 2>>::of,
        Versions<filterSections<Section, P, 4>>::of, Versions<filterSections<Section, P, kLanes / P>>::of};
    return kKernels[std::bit_width(sections - 1)](bestInstructionSet());
}

// Block by block, so that a block stays in the cache from one group of sections to the next.
template <class Section, std::size_t P>
void filterBlocks(const double* x, std::int64_t n, const Sections& sections, double* state, double* y)
{
    constexpr std::int64_t kBlock = 4096;
    constexpr std::size_t kOrder = Section::kOrder;
    constexpr auto p = static_cast<std::int64_t>(P);
    const NoSubnormals noSubnormals;
    for (std::int64_t done = 0; done < n; done += kBlock) {
        const std::int64_t length = std::min(kBlock, n - done);
        const std::size_t most = lanesFor(length, P) / P;
        const double* source = x + done * p;
        for (std::size_t k = 0; k < sections.count; k += most) {
            const Sections group{std::min(most, sections.count - k), sections.reverse + k * kOrder,
                                 sections.forward + k * (kOrder + 1)};
            kernelFor<Section, P>(group.count)(source, length, group, state + k * kOrder * P, y + done * p);
            source = y + done * p;
        }
    }
}

} // namespace

template <class Section>
void filterCascade(const double* x, std::int64_t n, const Sections& sections, std::size_t parts, double* state,
                   double* y) noexcept
{
    (parts == 1 ? filterBlocks<Section, 1> : filterBlocks<Section, 2>)(x, n, sections, state, y);
}

template void filterCascade<DirectSection<2>>(const double*, std::int64_t, const Sections&, std::size_t, double*,
                                              double*) noexcept;
template void filterCascade<DirectSection<4>>(const double*, std::int64_t, const Sections&, std::size_t, double*,
                                              double*) noexcept;
template void filterCascade<DeltaSection>(const double*, std::int64_t, const Sections&, std::size_t, double*,
                                          double*) noexcept;

} // namespace quordsp::backend
