// The model around the middle of the record, where u runs from -1 to 1 and the phase is p = w n:
//
//     x = c + a cos p + b sin p,     linearised in w:     x = c + a cos p + b sin p + d u (b0 cos p - a0 sin p)
//
// with a0, b0 of the step before. Each step is a linear problem in (a, b, c, d); d is the change of the phase at the
// ends of the record, and becomes the change of w. The first step knows no a0, b0: it fits without d.
#include "sine_fit.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <complex>
#include <numbers>

namespace quordsp::cli {
namespace {

constexpr std::size_t kFewestSamples = 8;
constexpr int kMostSteps = 40;
constexpr double kSettled = 1e-10; // rad at the ends of the record
constexpr double kReach = 1.5;     // bins

using Vector = std::array<double, 4>;

// e^(j p) for a phase that rises by the same step, by one multiplication a sample; set up anew before rounding adds up.
class Phasor {
public:
    Phasor(double first, double step) : first_(first), step_(step), turn_(std::polar(1.0, step)) {}

    std::complex<double> next()
    {
        const bool renew = count_ % 64 == 0;
        value_ = renew ? std::polar(1.0, first_ + step_ * static_cast<double>(count_))
                       : std::complex(value_.real() * turn_.real() - value_.imag() * turn_.imag(),
                                      value_.real() * turn_.imag() + value_.imag() * turn_.real());
        ++count_;
        return value_;
    }

private:
    double first_;
    double step_;
    std::complex<double> turn_;
    std::complex<double> value_;
    std::size_t count_ = 0;
};

// Weighted sums over the record: the lower half of a symmetric matrix, the right side, and the signal's power.
struct Normal {
    std::array<Vector, 4> matrix{};
    Vector right{};
    double power = 0;

    void add(const Vector& row, double value, double weight)
    {
        for (std::size_t i = 0; i < row.size(); ++i) {
            right[i] += weight * row[i] * value;
            for (std::size_t j = 0; j <= i; ++j)
                matrix[i][j] += weight * row[i] * row[j];
        }
        power += weight * value * value;
    }
};

Normal normalEquations(std::span<const double> samples, double mean, double w, const Vector& before)
{
    const double half = static_cast<double>(samples.size() - 1) / 2;
    const double windowStep = std::numbers::pi / (half + 0.5);
    Phasor signal(-w * half, w);
    Phasor window(windowStep / 2, windowStep);
    Normal normal;
    double n = -half;
    for (const double sample : samples) {
        const auto [cosine, sine] = std::bit_cast<std::array<double, 2>>(signal.next());
        const double slope = n / half * (before[1] * cosine - before[0] * sine);
        normal.add({cosine, sine, 1, slope}, sample - mean, 1 - window.next().real());
        n += 1;
    }
    return normal;
}

// Elimination from the lower half (Cholesky without roots) of the first `order` unknowns; the others stay 0. False when
// they cannot be told apart.
bool solve(Normal normal, std::size_t order, Vector& solution)
{
    auto& m = normal.matrix;
    solution = {};
    for (std::size_t k = 0; k < order; ++k) {
        const double pivot = m[k][k];
        for (std::size_t i = k + 1; i < order; ++i) {
            const double factor = m[i][k] / pivot;
            for (std::size_t j = k + 1; j <= i; ++j)
                m[i][j] -= factor * m[j][k];
            normal.right[i] -= factor * normal.right[k];
        }
    }
    for (std::size_t k = order; k-- > 0;) {
        double rest = normal.right[k];
        for (std::size_t i = k + 1; i < order; ++i)
            rest -= m[i][k] * solution[i];
        solution[k] = rest / m[k][k];
    }
    return std::ranges::all_of(solution, [](double value) { return std::isfinite(value); });
}

double meanOf(std::span<const double> samples)
{
    double sum = 0;
    for (const double sample : samples)
        sum += sample;
    return sum / static_cast<double>(samples.size());
}

// What the model leaves of the signal's power about its weighted mean.
double shareOf(const Normal& normal, const Vector& solution)
{
    double explained = 0;
    for (std::size_t i = 0; i < solution.size(); ++i)
        explained += solution[i] * normal.right[i];
    const double offset = normal.right[2] * normal.right[2] / normal.matrix[2][2];
    const double share = (explained - offset) / (normal.power - offset);
    return std::clamp(share, 0.0, 1.0);
}

} // namespace

std::optional<Sine> fitSine(std::span<const double> samples, double rate, double frequency)
{
    if (samples.size() < kFewestSamples)
        return std::nullopt;
    const auto count = static_cast<double>(samples.size());
    const double start = 2 * std::numbers::pi * frequency / rate;
    const double reach = kReach * 2 * std::numbers::pi / count;
    const double mean = meanOf(samples);
    double w = start;
    Vector solution{};
    for (int step = 0; step < kMostSteps; ++step) {
        const Normal normal = normalEquations(samples, mean, w, solution);
        if (!solve(normal, step == 0 ? 3 : 4, solution))
            return std::nullopt;
        if (step > 0 && std::abs(solution[3]) < kSettled)
            return Sine{w * rate / (2 * std::numbers::pi), std::hypot(solution[0], solution[1]),
                        shareOf(normal, solution)};
        w += 2 * solution[3] / (count - 1);
        const bool inReach = std::abs(w - start) <= reach && w > 0 && w < std::numbers::pi;
        if (!inReach)
            return std::nullopt;
    }
    return std::nullopt;
}

std::optional<double> amplitudeAt(std::span<const double> samples, double rate, double frequency)
{
    Vector solution{};
    const double w = 2 * std::numbers::pi * frequency / rate;
    if (samples.size() < kFewestSamples || !solve(normalEquations(samples, meanOf(samples), w, {}), 3, solution))
        return std::nullopt;
    return std::hypot(solution[0], solution[1]);
}

} // namespace quordsp::cli
