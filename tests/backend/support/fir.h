// The FIR entries for real and complex signals under one name each, and signals to filter.
#pragma once

#include "nianlys.h"

#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

namespace quordsp::test {

using backend::Complex;
using backend::Status;

using Array = std::vector<double>;
using ComplexArray = std::vector<Complex>;

inline constexpr int kLowPass = 0, kHighPass = 1, kBandPass = 2, kBandStop = 3;
inline constexpr int kRectangle = 0, kKaiser = 60, kDolphChebyshev = 61, kGaussian = 62;
inline constexpr int kWindowCodes[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 30, 31, 32, 33, 34, 60, 61, 62};

inline std::int64_t countOf(const auto& values)
{
    return static_cast<std::int64_t>(values.size());
}

inline Array noise(std::size_t n, unsigned seed = 1)
{
    std::minstd_rand numbers{seed};
    Array x(n);
    for (double& value : x)
        value = static_cast<double>(numbers()) / 1073741824.0 - 1.0;
    return x;
}

inline ComplexArray joined(const Array& re, const Array& im)
{
    ComplexArray z(re.size());
    for (std::size_t i = 0; i < z.size(); ++i)
        z[i] = {re[i], im[i]};
    return z;
}

inline Array real(const ComplexArray& z)
{
    Array x;
    for (const Complex& value : z)
        x.push_back(value.real);
    return x;
}

inline Array imaginary(const ComplexArray& z)
{
    Array x;
    for (const Complex& value : z)
        x.push_back(value.imaginary);
    return x;
}

// FIRFiltering, whole or block by block.
inline Status filter(const double* x, std::int64_t n, const Array& h, double* state, double* y)
{
    return backend::AALFunc352(x, n, h.data(), state, static_cast<int>(h.size()), y);
}

inline Status filter(const Complex* x, std::int64_t n, const Array& h, Complex* state, Complex* y)
{
    return backend::AALFunc353(x, n, h.data(), state, static_cast<int>(h.size()), y);
}

// From zero state; empty on failure.
template <class Sample>
std::vector<Sample> filtered(const std::vector<Sample>& x, const Array& h)
{
    std::vector<Sample> y(x.size());
    if (filter(x.data(), countOf(x), h, static_cast<Sample*>(nullptr), y.data()) != Status::Success)
        y.clear();
    return y;
}

// A windowed design; empty on failure.
struct Order {
    int type;
    double fs, fl, fh;
    int taps;
    int window = kRectangle;
    double parameter = 0;
};

inline Status design(const Order& order, double* h)
{
    return backend::AALFunc335(order.type, order.fs, order.fl, order.fh, order.taps, order.window, order.parameter, h);
}

inline Array designed(const Order& order)
{
    Array h(static_cast<std::size_t>(order.taps));
    if (design(order, h.data()) != Status::Success)
        h.clear();
    return h;
}

// Design and filtering in one call.
inline Status filter(const double* x, std::int64_t n, const Order& order, double* y)
{
    return backend::AALFunc480(x, n, order.type, order.taps, order.fs, order.fl, order.fh, order.window,
                               order.parameter, y);
}

inline Status filter(const Complex* x, std::int64_t n, const Order& order, Complex* y)
{
    return backend::AALFunc485(x, n, order.type, order.taps, order.fs, order.fl, order.fh, order.window,
                               order.parameter, y);
}

template <class Sample>
std::vector<Sample> filtered(const std::vector<Sample>& x, const Order& order)
{
    std::vector<Sample> y(x.size());
    if (filter(x.data(), countOf(x), order, y.data()) != Status::Success)
        y.clear();
    return y;
}

} // namespace quordsp::test
