// Transforms of a few points, written out: Butterfly<R>::apply replaces R values by their forward transform.
#pragma once

#include "transform/point.h"

#include <array>
#include <cstddef>

namespace quordsp::backend {

template <class T, std::size_t R>
using Points = std::array<Point<T>, R>;

// Cosine and sine of 2 pi k/R at [k - 1], for k up to half a turn.
template <std::size_t R>
struct Circle;

template <>
struct Circle<3> {
    static constexpr double cos[] = {-0.5};
    static constexpr double sin[] = {0.8660254037844386467637};
};

template <>
struct Circle<5> {
    static constexpr double cos[] = {0.3090169943749474241022, -0.8090169943749474241022};
    static constexpr double sin[] = {0.9510565162951535721164, 0.5877852522924731291687};
};

template <>
struct Circle<7> {
    static constexpr double cos[] = {0.6234898018587335305250, -0.2225209339563144042889, -0.9009688679024191262361};
    static constexpr double sin[] = {0.7818314824680298087084, 0.9749279121818236070181, 0.4338837391175581204757};
};

// Odd primes: with sums and differences of the mirrored inputs j and R-j, the outputs k and R-k share everything but a
// sign.
template <std::size_t R>
struct Butterfly {
    static constexpr std::size_t half = (R - 1) / 2;

    static constexpr double cosine(std::size_t m) { return Circle<R>::cos[(m <= half ? m : R - m) - 1]; }
    static constexpr double sine(std::size_t m)
    {
        return m <= half ? Circle<R>::sin[m - 1] : -Circle<R>::sin[R - m - 1];
    }

    template <class T>
    [[gnu::always_inline]] static void apply(Points<T, R>& a)
    {
        Points<T, half> sum, difference;
        for (std::size_t j = 1; j <= half; ++j) {
            sum[j - 1] = a[j] + a[R - j];
            difference[j - 1] = a[j] - a[R - j];
        }
        const Point<T> first = a[0];
        for (std::size_t j = 0; j < half; ++j)
            a[0] = a[0] + sum[j];
        for (std::size_t k = 1; k <= half; ++k) {
            Point<T> even = first + cosine(k) * sum[0];
            Point<T> odd = sine(k) * difference[0];
            for (std::size_t j = 2; j <= half; ++j) {
                even = even + cosine(j * k % R) * sum[j - 1];
                odd = odd + sine(j * k % R) * difference[j - 1];
            }
            a[k] = even + quarterTurn(odd);
            a[R - k] = even - quarterTurn(odd);
        }
    }
};

template <>
struct Butterfly<2> {
    template <class T>
    [[gnu::always_inline]] static void apply(Points<T, 2>& a)
    {
        a = {a[0] + a[1], a[0] - a[1]};
    }
};

template <>
struct Butterfly<4> {
    template <class T>
    [[gnu::always_inline]] static void apply(Points<T, 4>& a)
    {
        const auto evenSum = a[0] + a[2], evenDifference = a[0] - a[2];
        const auto oddSum = a[1] + a[3], oddDifference = quarterTurn(a[1] - a[3]);
        a = {evenSum + oddSum, evenDifference + oddDifference, evenSum - oddSum, evenDifference - oddDifference};
    }
};

template <>
struct Butterfly<8> {
    template <class T>
    [[gnu::always_inline]] static void apply(Points<T, 8>& a)
    {
        constexpr double h = 0.7071067811865475244008;
        Points<T, 4> even = {a[0] + a[4], a[1] + a[5], a[2] + a[6], a[3] + a[7]};
        const auto d1 = a[1] - a[5], d3 = a[3] - a[7];
        Points<T, 4> odd = {a[0] - a[4],
                            {h * (d1.re + d1.im), h * (d1.im - d1.re)},
                            quarterTurn(a[2] - a[6]),
                            {h * (d3.im - d3.re), -h * (d3.re + d3.im)}};
        Butterfly<4>::apply(even);
        Butterfly<4>::apply(odd);
        for (std::size_t k = 0; k < 4; ++k) {
            a[2 * k] = even[k];
            a[2 * k + 1] = odd[k];
        }
    }
};

} // namespace quordsp::backend
