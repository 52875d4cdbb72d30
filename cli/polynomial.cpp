#include "polynomial.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace quordsp::cli {
namespace {

using Complex = std::complex<double>;

constexpr int kMostRounds = 200;

// z^2 + p z + q, without cancellation in the smaller zero.
std::vector<Complex> zerosOfQuadratic(double p, double q)
{
    const double half = -p / 2;
    const double discriminant = std::fma(half, half, -q);
    if (discriminant < 0) {
        const Complex zero{half, std::sqrt(-discriminant)};
        return {zero, std::conj(zero)};
    }
    const double large = half + std::copysign(std::sqrt(discriminant), half);
    return {large, large != 0 ? q / large : 0};
}

struct Value {
    Complex value;
    Complex slope;
};

// c[0] z^n + ... + c[n] and its derivative.
Value evaluate(std::span<const double> c, Complex z)
{
    Value at{c[0], 0};
    for (const double coefficient : c.subspan(1)) {
        at.slope = at.slope * z + at.value;
        at.value = at.value * z + coefficient;
    }
    return at;
}

// Where no two are conjugate: the zeros of a real polynomial could not leave such a pattern.
std::vector<Complex> startingPoints(std::span<const double> c)
{
    const auto degree = static_cast<double>(c.size() - 1);
    const double radius = std::pow(std::abs(c.back() / c[0]), 1 / degree);
    std::vector<Complex> points;
    for (std::size_t i = 1; i < c.size(); ++i)
        points.push_back(std::polar(radius, (2 * std::numbers::pi * static_cast<double>(i - 1) + 0.7) / degree));
    return points;
}

// One round of Aberth's iteration: Newton's step, with the other zeros divided out. Returns the largest step.
double improve(std::span<const double> c, std::vector<Complex>& zeros)
{
    double largest = 0;
    for (Complex& zero : zeros) {
        const auto [value, slope] = evaluate(c, zero);
        if (value == 0.0)
            continue;
        Complex others = 0;
        for (const Complex& other : zeros)
            if (&other != &zero && other != zero)
                others += 1.0 / (zero - other);
        const Complex step = 1.0 / (slope / value - others);
        if (!std::isfinite(step.real()) || !std::isfinite(step.imag()))
            continue;
        zero -= step;
        largest = std::max(largest, std::abs(step) / std::abs(zero));
    }
    return largest;
}

} // namespace

std::vector<Complex> zerosOf(std::span<const double> c)
{
    while (c.size() > 1 && c.back() == 0)
        c = c.first(c.size() - 1);
    if (c.size() < 2)
        return {};
    if (c.size() == 2)
        return {-c[1] / c[0]};
    if (c.size() == 3)
        return zerosOfQuadratic(c[1] / c[0], c[2] / c[0]);
    std::vector<Complex> zeros = startingPoints(c);
    for (int round = 0; round < kMostRounds; ++round)
        if (improve(c, zeros) < 4 * std::numeric_limits<double>::epsilon())
            break;
    return zeros;
}

} // namespace quordsp::cli
