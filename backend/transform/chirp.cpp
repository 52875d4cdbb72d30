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

void multiply(ConstSplit a, ConstSplit b, std::size_t count, Split product)
{
    for (std::size_t i = 0; i < count; ++i)
        product.set(i, a[i] * b[i]);
}

void clear(Split a, std::size_t count)
{
    std::fill_n(a.re, count, 0.0);
    std::fill_n(a.im, count, 0.0);
}

} // namespace

// The kernel holds the transform of the conjugate chirp, wrapped around for negative indices, with the inverse
// transform's factor in it.
Chirp::Chirp(std::size_t n)
    : n_(n),
      padded_(convenientSize(2 * n - 1)),
      convolver_(padded_, factorized(padded_).radices),
      tables_(makeBuffer(2 * (n_ + padded_)))
{
    const Roots root(2 * n);
    const auto work = makeBuffer(convolver_.workSize());
    clear(kernel(), padded_);
    const auto scale = static_cast<double>(padded_);
    for (std::size_t k = 0, square = 0; k < n; ++k) {
        const auto value = root(square);
        const Point<double> conjugated = {value.re / scale, -value.im / scale};
        chirp().set(k, value);
        kernel().set(k, conjugated);
        kernel().set(k > 0 ? padded_ - k : 0, conjugated);
        square += 2 * k + 1; // (k + 1)^2 modulo 2n
        if (square >= 2 * n)
            square -= 2 * n;
    }
    convolver_.forward(kernel(), kernel(), work.get());
}

void Chirp::forward(ConstSplit in, Split out, double* work) const
{
    const Split padded = {work, work + padded_};
    double* const convolverWork = work + 2 * padded_;
    multiply(in, chirp(), n_, padded);
    clear(padded + n_, padded_ - n_);
    convolver_.forward(padded, padded, convolverWork);
    multiply(padded, kernel(), padded_, padded);
    convolver_.forward(exchanged(padded), exchanged(padded), convolverWork);
    multiply(padded, chirp(), n_, out);
}

} // namespace quordsp::backend
