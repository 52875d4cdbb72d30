// A block of inputs behind the history that its first output needs is transformed, multiplied by the response and
// transformed back; what comes out in the place of the history is wrapped around and not used.
#include "fir/overlap_save.h"

#include "convolution_kernel.h"
#include "cpu/instruction_set.h"
#include "no_subnormals.h"

#include <bit>
#include <cmath>
#include <limits>

namespace quordsp::backend {
namespace {

// Smaller transforms cost more per sample, larger ones outgrow the cache.
constexpr std::size_t kSmallestSize = 4096;

// Between these no sum or product in the transforms overflows or loses digits to underflow; below them the inputs are
// raised.
constexpr double kLeast = 1e-250, kMost = 1e250, kRaise = 0x1p600;

void scale(double* values, std::size_t count, double factor)
{
    for (std::size_t i = 0; factor != 1 && i < count; ++i)
        values[i] *= factor;
}

} // namespace

// Measured beside the direct sums with AVX-512; others are slower. The product is what a plan takes to make.
bool OverlapSave::pays(std::size_t taps, std::size_t n)
{
    return taps >= 192 && n >= 3'000'000 / taps;
}

OverlapSave::OverlapSave(const double* h, std::size_t taps, std::size_t n)
    : h_{h},
      taps_{taps},
      history_{taps_ - 1},
      size_{std::bit_ceil(std::min(std::max(4 * taps_, kSmallestSize), n + history_))},
      plan_(size_),
      work_(plan_.workSize()),
      response_(plan_.bins()),
      spectrum_(plan_.bins()),
      inputs_{makeBuffer(size_ + kTileSize)},
      outputs_{makeBuffer(size_)}
{
    std::fill_n(outputs_.get(), size_, 0.0);
    for (std::size_t j = 0; j < taps_; ++j) {
        reach_ += std::abs(h[j]);
        outputs_[j] = h[j] / static_cast<double>(size_);
    }
    plan_.forward(outputs_.get(), response_, work_.get());
    std::fill_n(inputs_.get() + size_, kTileSize, 0.0);
}

void OverlapSave::filter(const double* x, std::size_t n, std::size_t stride, double* y) const
{
    const NoSubnormals noSubnormals;
    double* const block = inputs_.get() + history_;
    std::fill_n(inputs_.get(), size_, 0.0);
    for (std::size_t done = 0; done < n; done += blockSize()) {
        const std::size_t length = std::min(blockSize(), n - done);
        for (std::size_t i = 0; i < length; ++i)
            block[i] = x[(done + i) * stride];
        std::fill(block + length, block + blockSize(), 0.0);
        filterBlock(length);
        for (std::size_t i = 0; i < length; ++i)
            y[(done + i) * stride] = outputs_[history_ + i];
        std::copy_n(inputs_.get() + length, history_, inputs_.get());
    }
}

void OverlapSave::filterBlock(std::size_t length) const
{
    const double largest = largestInput();
    const double raise = largest * std::min(reach_, 1.0) > kLeast ? 1 : kRaise;
    if (reach_ > kLeast && largest * raise * std::max(reach_, 1.0) < kMost)
        transform(raise);
    else
        onThisMachine<convolve>(static_cast<const double*>(inputs_.get()) + history_, length, h_, taps_, std::size_t{1},
                                outputs_.get() + history_);
}

// Infinity if one is not finite.
double OverlapSave::largestInput() const
{
    double largest = 0;
    bool isFinite = true;
    for (std::size_t i = 0; i < size_; ++i) {
        isFinite &= std::abs(inputs_[i]) <= std::numeric_limits<double>::max();
        largest = std::max(largest, std::abs(inputs_[i]));
    }
    return isFinite ? largest : std::numeric_limits<double>::infinity();
}

// The inputs are raised by a power of two, and are the same again afterwards.
void OverlapSave::transform(double raise) const
{
    scale(inputs_.get(), size_, raise);
    plan_.forward(inputs_.get(), spectrum_, work_.get());
    scale(inputs_.get(), size_, 1 / raise);
    multiplyByResponse();
    plan_.inverse(spectrum_, outputs_.get(), work_.get());
    scale(outputs_.get(), size_, 1 / raise);
}

void OverlapSave::multiplyByResponse() const
{
    const ConstSplit response = response_;
    const Split spectrum = spectrum_;
    for (std::size_t k = 0; k < plan_.bins(); ++k)
        spectrum.set(k, spectrum[k] * response[k]);
}

} // namespace quordsp::backend
