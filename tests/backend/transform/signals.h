// Signals that the transform tests share, and how far two of them are apart.
#pragma once

#include "nianlys.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <vector>

namespace quordsp::backend {

using Array = std::vector<double>;

template <std::size_t N>
Array array(const double (&values)[N])
{
    return Array(std::begin(values), std::end(values));
}

struct Signal {
    Array re;
    Array im;
};

inline Array noise(std::size_t n, unsigned seed)
{
    std::mt19937 generator(seed);
    Array x(n);
    for (double& value : x)
        value = static_cast<double>(generator()) / 0x1p31 - 1;
    return x;
}

inline Signal complexNoise(std::size_t n, unsigned seed = 1)
{
    return {noise(n, seed), noise(n, seed + 1000)};
}

inline std::int64_t count(const Array& x)
{
    return static_cast<std::int64_t>(x.size());
}

inline bool operator==(Complex a, Complex b)
{
    return a.real == b.real && a.imaginary == b.imaginary;
}

using Complexes = std::vector<Complex>;

inline std::int64_t count(const Complexes& x)
{
    return static_cast<std::int64_t>(x.size());
}

inline Complexes interleaved(const Signal& x)
{
    Complexes y(x.re.size());
    for (std::size_t i = 0; i < y.size(); ++i)
        y[i] = {x.re[i], x.im[i]};
    return y;
}

inline Signal separated(const Complexes& x)
{
    Signal y;
    for (const Complex value : x) {
        y.re.push_back(value.real);
        y.im.push_back(value.imaginary);
    }
    return y;
}

inline Status fft(Signal& a)
{
    return AALFunc77(a.re.data(), a.im.data(), count(a.re));
}

inline Status inverseFft(Signal& a)
{
    return AALFunc102(a.re.data(), a.im.data(), count(a.re));
}

inline Status realFft(Signal& a)
{
    return AALFunc147(a.re.data(), a.im.data(), count(a.re));
}

inline Status inverseRealFft(Signal& a)
{
    return AALFunc148(a.re.data(), a.im.data(), count(a.re));
}

inline double energy(const Array& x)
{
    double sum = 0;
    for (const double value : x)
        sum += value * value;
    return sum;
}

inline double energy(const Signal& a)
{
    return energy(a.re) + energy(a.im);
}

// |a - b| / |b| in the Euclidean norm.
inline double distance(const Array& a, const Array& b)
{
    double sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i)
        sum += (a[i] - b[i]) * (a[i] - b[i]);
    return std::sqrt(sum / energy(b));
}

inline double distance(const Signal& a, const Signal& b)
{
    Array left = a.re, right = b.re;
    left.insert(left.end(), a.im.begin(), a.im.end());
    right.insert(right.end(), b.im.begin(), b.im.end());
    return distance(left, right);
}

// Every kind of size: 1, primes of each method, powers of each radix, products, also with and of primes that have no
// radix, prime squares, a large prime.
inline constexpr std::size_t kSizes[] = {1,    2,    3,    4,    5,    6,    7,    8,    9,     11,    16,    25,
                                         30,   31,   32,   37,   67,   64,   96,   121,  210,   243,   256,   343,
                                         512,  625,  961,  1009, 1024, 1369, 2000, 2048, 2187,  183,   201,   909,
                                         2310, 3125, 4757, 4093, 4096, 4199, 6144, 8192, 10007, 16384, 32768, 65536};

} // namespace quordsp::backend
