#include "fir/filtering.h"

#include "buffer.h"
#include "convolution_kernel.h"
#include "cpu/instruction_set.h"
#include "fir/overlap_save.h"
#include "no_subnormals.h"

namespace quordsp::backend {
namespace {

// With the history of a thousand taps it stays in the nearest cache.
constexpr std::size_t kBlock = 32 * kTileSize;

std::size_t wholeTiles(std::size_t count)
{
    return (count + kTileSize - 1) / kTileSize * kTileSize;
}

// A block of inputs behind the ones that came before it: outputs may take the place of inputs.
class Inputs {
public:
    Inputs(std::size_t past, std::size_t block, const double* state) : values_{makeBuffer(past + block)}, past_{past}
    {
        std::fill_n(values_.get(), past + block, 0.0);
        if (state)
            std::copy_n(state, past, values_.get());
    }

    const double* take(const double* x, std::size_t length)
    {
        std::copy_n(x, length, values_.get() + past_);
        return values_.get() + past_;
    }
    void advance(std::size_t length) { std::copy_n(values_.get() + length, past_, values_.get()); }
    void save(double* state) const { std::copy_n(values_.get(), past_, state); }

private:
    Buffer<> values_;
    std::size_t past_;
};

} // namespace

void filterParts(const double* x, std::int64_t n, const Fir& fir, std::size_t parts, double* state, double* y)
{
    const auto count = static_cast<std::size_t>(n) * parts;
    if (fir.taps <= 0) {
        std::copy_n(x, x == y ? 0 : count, y);
        return;
    }
    const auto taps = static_cast<std::size_t>(fir.taps), step = static_cast<std::size_t>(fir.spacing) * parts;
    const std::size_t block = std::min(kBlock, wholeTiles(count));
    Inputs inputs((taps - 1) * step, block, state);
    const NoSubnormals noSubnormals;
    for (std::size_t done = 0; done < count; done += block) {
        const std::size_t length = std::min(block, count - done);
        onThisMachine<convolve>(inputs.take(x + done, length), length, fir.h, taps, step, y + done);
        inputs.advance(length);
    }
    if (state)
        inputs.save(state);
}

// Taps that only meet the zeros before the signal do not count.
void filterPartsFromRest(const double* x, std::int64_t n, const Fir& fir, std::size_t parts, double* y)
{
    const Fir met{fir.h, std::min(fir.taps, (n - 1) / fir.spacing + 1), fir.spacing};
    const auto samples = static_cast<std::size_t>(n);
    if (met.spacing > 1 || met.taps <= 0 || !OverlapSave::pays(static_cast<std::size_t>(met.taps), samples)) {
        filterParts(x, n, met, parts, nullptr, y);
        return;
    }
    const OverlapSave filter(met.h, static_cast<std::size_t>(met.taps), samples);
    for (std::size_t part = 0; part < parts; ++part)
        filter.filter(x + part, samples, parts, y + part);
}

} // namespace quordsp::backend
