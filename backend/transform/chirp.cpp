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
Chirp::Chirp(std::size_t n, std::size_t lanes)
    : n_(n),
      lanes_(lanes),
      padded_(convenientSize(2 * n - 1)),
      convolver_(makeComplexPlan(padded_, lanes)),
      chirp_(n),
      kernel_(padded_)
{
    const Roots root(2 * n);
    const auto transform = makeComplexPlan(padded_, 1);
    const AlignedBuffer work(transform->workSize());
    const Split chirp = chirp_, kernel = kernel_;
    for (std::size_t k = n; k <= padded_ - n; ++k)
        kernel.set(k, {0, 0});
    const auto scale = static_cast<double>(padded_);
    for (std::size_t k = 0, square = 0; k < n; ++k) {
        const auto value = root(square);
        chirp.set(k, value);
        kernel.set(k, conjugate(value) / scale);
        kernel.set(k > 0 ? padded_ - k : 0, conjugate(value) / scale);
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

void Chirp::forward(ConstSplit in, Split out, double* work) const
{
    Work arrays(work);
    const Split padded = arrays.take(padded_ * lanes_).withPitch(lanes_);
    if (lanes_ == 1)
        in.pitch = out.pitch = 1;
    multiply(in, chirp_, n_, padded);
    for (std::size_t i = n_ * lanes_; i < padded_ * lanes_; ++i)
        padded.set(i, {0, 0});
    convolver_->forward(padded, padded, arrays.rest());
    multiply(padded, kernel_, padded_, padded);
    convolver_->inverse(padded, padded, arrays.rest());
    multiply(padded, chirp_, n_, out);
}

} // namespace quordsp::backend
