// What the kernels of all passes share.
//
// A pass sees x as [radix][groups][stride] and writes y as [groups][radix][stride]: butterflies over the first index,
// then root (group * output) of unity of order radix * groups on every output (Stockham's order: sorted at the end, no
// bit-reversal).
#pragma once

#include "transform/butterflies.h"
#include "transform/kernel.h"
#include "transform/passes.h"
#include "transform/vector.h"

#include <array>

namespace quordsp::backend {

// The radix of a kernel: R, or that of the pass if R is 0.
template <std::size_t R>
[[gnu::always_inline]] inline std::size_t radixOf(const auto& pass)
{
    return R > 0 ? R : pass.radix;
}

template <std::size_t R>
inline constexpr std::size_t kCapacity = R > 0 ? R : kLargestPrimeRadix;

// As Butterfly does it for odd primes, with the radix at run time.
template <class V>
[[gnu::always_inline]] inline void applyPrime(std::size_t radix, const Point<double>* circle, Point<V>* a)
{
    const std::size_t half = radix / 2;
    Point<V> sums[kLargestPrimeRadix / 2], differences[kLargestPrimeRadix / 2];
    const Point<V> first = a[0];
    for (std::size_t j = 1; j <= half; ++j) {
        sums[j - 1] = a[j] + a[radix - j];
        differences[j - 1] = a[j] - a[radix - j];
        a[0] = a[0] + sums[j - 1];
    }
    for (std::size_t k = 1; k <= half; ++k) {
        Point<V> even = first + circle[k].re * sums[0], odd = -circle[k].im * differences[0];
        for (std::size_t j = 1, m = 2 * k; j < half; ++j, m += k) {
            m = m < radix ? m : m - radix;
            even = even + circle[m].re * sums[j];
            odd = odd - circle[m].im * differences[j];
        }
        a[k] = even + quarterTurn(odd);
        a[radix - k] = even - quarterTurn(odd);
    }
}

template <std::size_t R, class V>
[[gnu::always_inline]] inline void apply(const auto& pass, Points<V, kCapacity<R>>& a)
{
    if constexpr (R > 0)
        Butterfly<R>::apply(a);
    else
        applyPrime(pass.radix, pass.circle, a.data());
}

// Calls choose with the radix of the pass as a constant, or with 0.
template <class Choose>
void withRadix(std::size_t radix, Choose choose)
{
    switch (radix) {
    case 2:
        return choose.template operator()<2>();
    case 3:
        return choose.template operator()<3>();
    case 4:
        return choose.template operator()<4>();
    case 5:
        return choose.template operator()<5>();
    case 7:
        return choose.template operator()<7>();
    case 8:
        return choose.template operator()<8>();
    default:
        return choose.template operator()<0>();
    }
}

} // namespace quordsp::backend
