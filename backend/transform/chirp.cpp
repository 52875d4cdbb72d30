#include "transform/chirp.h"

#include "transform/roots.h"

#include <algorithm>
#include <bit>

namespace quordsp::backend {

namespace {

// The smallest size from the given one up that is a power of two times a small product of threes and fives.
std::size_t convenientSize(std::size_t atLeast)
{
    std::size_t best = std::bit_ceil(atLeast);
    for (const std::size_t odd : {3u, 5u, 9u, 15u, 25u, 27u, 45u, 75u, 81u})
        best = std::min(best, std::bit_ceil((atLeast + odd - 1) / odd) * odd);
    return best;
}

} // namespace

// The kernel holds the transform of the conjugate chirp, wrapped around for negative indices, with the inverse
// transform's factor in it.
Chirp::Chirp(std::size_t n, std::size_t values, std::size_t bins, std::size_t lanes)
    : values_(values),
      bins_(bins),
      chirped_(std::max(values, bins)),
      lanes_(lanes),
      padded_(convenientSize(values + bins - 1)),
      convolver_(makeComplexPlan(padded_, lanes)),
      chirp_(chirped_),
      kernel_(padded_)
{
    const Roots root(2 * n);
    const auto transform = makeComplexPlan(padded_, 1);
    const AlignedBuffer work(transform->workSize());
    const Split chirp = chirp_, kernel = kernel_;
    for (std::size_t k = bins; k <= padded_ - values; ++k)
        kernel.set(k, {0, 0});
    const auto scale = static_cast<double>(padded_);
    for (std::size_t k = 0, square = 0; k < chirped_; ++k) {
        const auto value = root(square);
        chirp.set(k, value);
        if (k < bins)
            kernel.set(k, conjugate(value) / scale);
        if (k > 0 && k < values)
            kernel.set(padded_ - k, conjugate(value) / scale);
        square += 2 * k + 1; // (k + 1)^2 modulo 2n
        if (square >= 2 * n)
            square -= 2 * n;
    }
    transform->forward(kernel, kernel, work.get());
}

void Chirp::multiply(ConstSplit rows, ConstSplit factors, std::size_t count, Split products) const
{
    for (std::size_t i = 0; i < count; ++i)
        for (std::size_t lane = 0; lane < lanes_; ++lane)
            products.set(i * products.pitch + lane, rows[i * rows.pitch + lane] * factors[i]);
}

// The transforms there and back the other way round, a product convolves with the reversed kernel.
void Chirp::convolve(ConstSplit in, std::size_t inCount, Kernel kernel, Split out, std::size_t outCount,
                     double* work) const
{
    Work arrays(work);
    const Split padded = arrays.take(padded_ * lanes_).withPitch(lanes_);
    if (lanes_ == 1)
        in.pitch = out.pitch = 1;
    multiply(in, chirp_, inCount, padded);
    for (std::size_t i = inCount * lanes_; i < padded_ * lanes_; ++i)
        padded.set(i, {0, 0});
    const Split there = kernel == Kernel::AsItIs ? padded : exchanged(padded), back = exchanged(there);
    convolver_->forward(there, there, arrays.rest());
    multiply(padded, kernel_, padded_, padded);
    convolver_->forward(back, back, arrays.rest());
    multiply(padded, chirp_, outCount, out);
}

void Chirp::forward(const ConstSplit& in, const Split& out, double* work) const
{
    convolve(in, values_, Kernel::AsItIs, out, bins_, work);
}

void Chirp::transposed(ConstSplit in, Split out, double* work) const
{
    convolve(in, bins_, Kernel::Reversed, out, values_, work);
}

} // namespace quordsp::backend
