// What the one-call filters make of a sine, once they have settled, beside the exact response: so their sums are held
// to account, not their coefficients alone.
#include "backend/iir/exact_filter.h"
#include "backend/support/iir_families.h"
#include "extended_precision.h"

#include <gtest/gtest.h>

#include <numbers>

namespace quordsp::test {
namespace {

using Point = ExactFilter::Point;

constexpr long double kPi = std::numbers::pi_v<long double>;

// What a wave of this many samples to a period has of the frequency, in its last period.
Point spectralLine(const std::vector<double>& wave, std::size_t period)
{
    Point sum = 0;
    for (std::size_t i = wave.size() - period; i < wave.size(); ++i)
        sum += static_cast<long double>(wave[i]) *
               std::polar(1.0L, -2 * kPi * static_cast<long double>(i % period) / static_cast<long double>(period));
    return sum;
}

std::vector<double> sine(std::size_t period, std::size_t count)
{
    std::vector<double> wave(count);
    for (std::size_t i = 0; i < std::min(period, count); ++i)
        wave[i] =
            static_cast<double>(std::sin(2 * kPi * static_cast<long double>(i) / static_cast<long double>(period)));
    for (std::size_t i = period; i < count; ++i)
        wave[i] = wave[i - period];
    return wave;
}

// Until the slowest of the poles has died away below the last bits; s is about half the logarithm of z.
std::size_t samplesToSettle(const ExactFilter& exact)
{
    long double slowest = 1;
    for (const Point pole : exact.poles())
        slowest = std::min(slowest, -2 * pole.real());
    return static_cast<std::size_t>(40 / slowest);
}

// Over the largest gain, which is 1.
long double responseError(const vectors::Prototype& prototype, int type, const Cutoffs& cutoffs, std::size_t period)
{
    const backend::ExtendedPrecision precision;
    const ExactFilter exact{prototype, backend::Response{type}, cutoffs};
    const std::vector<double> x = sine(period, samplesToSettle(exact) + 2 * period);
    const std::vector<double> y = filtered(
        {prototype.family, type, prototype.order, cutoffs.fl, cutoffs.fh, prototype.ripple, prototype.attenuation}, x);
    if (y.size() != x.size())
        return 1;
    const Point measured = spectralLine(y, period) / spectralLine(x, period);
    return std::abs(measured - exact.responseAt(1 / static_cast<long double>(period)));
}

// One of each family.
bool isAsked(const vectors::Prototype& prototype)
{
    return prototype.order == 6 && prototype.ripple <= 0.1 && prototype.attenuation <= 60;
}

// Direct form II, on the nearest coefficients, is off by up to 2e-9 here.
constexpr long double kLargest = 1e-13L; // 4e-14 are reached

TEST(OneCallFilter, HasTheExactResponseAtATenThousandthOfTheSamplingFrequency)
{
    for (const vectors::Prototype& prototype : vectors::kPrototypes) {
        if (!isAsked(prototype))
            continue;
        for (int type : kTypes)
            for (std::size_t period : {20000u, 10000u, 7500u}) {
                const long double error = responseError(prototype, type, {1e-4, 2e-4}, period);
                EXPECT_LE(error, kLargest) << prototype.family << ' ' << type << ' ' << period;
            }
    }
}

} // namespace
} // namespace quordsp::test
