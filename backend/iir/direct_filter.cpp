#include "iir/direct_filter.h"

#include "convolution_kernel.h"
#include "cpu/instruction_set.h"
#include "iir/direct_kernel.h"
#include "no_subnormals.h"

#include <algorithm>
#include <utility>

namespace quordsp::backend {
namespace {

constexpr std::size_t kBlock = 20 * kTileSize; // in doubles, of which a sample takes one or two

void copyOrClear(const double* from, std::size_t count, double* to)
{
    if (from)
        std::copy_n(from, count, to);
    else
        std::fill_n(to, count, 0.0);
}

using Recursion = void (*)(double* y, std::size_t length, const double* a, std::size_t degree) noexcept;

template <std::size_t P, std::size_t... R>
Recursion recursionFor(std::size_t degree, std::index_sequence<R...>)
{
    constexpr Recursion (*kVersions[])(InstructionSet) noexcept = {Versions<recur<P, R>>::of...};
    return kVersions[std::min(degree, kMostRecent)](bestInstructionSet());
}

template <std::size_t P>
void recurOver(double* y, std::size_t length, std::span<const double> a)
{
    const std::size_t degree = a.size() - 1;
    recursionFor<P>(degree, std::make_index_sequence<kMostRecent + 1>())(y, length, a.data(), degree);
}

} // namespace

DirectFilter::DirectFilter(std::span<const double> a, std::span<const double> b, std::size_t parts)
    : a_{a},
      b_{b},
      parts_{parts},
      pastOutputs_{(a.size() - 1) * parts},
      pastInputs_{b.empty() ? 0 : (b.size() - 1) * parts},
      outputs_{makeBuffer(pastOutputs_ + kBlock + kGroup * parts)},
      inputs_{makeBuffer(pastInputs_ + kBlock)}
{
    std::fill_n(inputs_.get(), pastInputs_ + kBlock, 0.0);
    setPast(nullptr, nullptr);
}

void DirectFilter::setPast(const double* outputs, const double* inputs) noexcept
{
    copyOrClear(outputs, pastOutputs_, outputs_.get());
    copyOrClear(inputs, pastInputs_, inputs_.get());
}

void DirectFilter::getPast(double* outputs, double* inputs) const noexcept
{
    if (outputs)
        std::copy_n(outputs_.get(), pastOutputs_, outputs);
    if (inputs)
        std::copy_n(inputs_.get(), pastInputs_, inputs);
}

void DirectFilter::run(const double* x, std::int64_t n, double* y) noexcept
{
    const NoSubnormals noSubnormals;
    const std::size_t count = static_cast<std::size_t>(n) * parts_;
    for (std::size_t done = 0; done < count; done += kBlock)
        runBlock(x + done, std::min(kBlock, count - done), y + done);
}

void DirectFilter::convolveInputs(std::size_t length) noexcept
{
    double* const sums = outputs_.get() + pastOutputs_;
    if (b_.empty())
        std::fill_n(sums, length, 0.0);
    else
        onThisMachine<convolve>(static_cast<const double*>(inputs_.get()) + pastInputs_, length, b_.data(), b_.size(),
                                parts_, sums);
}

void DirectFilter::runBlock(const double* x, std::size_t length, double* y) noexcept
{
    std::copy_n(x, length, inputs_.get() + pastInputs_);
    convolveInputs(length);
    double* const outputs = outputs_.get() + pastOutputs_;
    (parts_ == 1 ? recurOver<1> : recurOver<2>)(outputs, length / parts_, a_);
    std::copy_n(outputs, length, y);
    std::copy_n(inputs_.get() + length, pastInputs_, inputs_.get());
    std::copy_n(outputs_.get() + length, pastOutputs_, outputs_.get());
}

} // namespace quordsp::backend
