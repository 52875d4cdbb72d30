// What holds for every linear filter, whatever its response: sums, factors, delays, directions of time, the parts of
// complex signals, blocks.
#include "backend/filters/linear_filters.h"
#include "backend/support/complex.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace quordsp::test {
namespace {

using backend::Complex;
using backend::Status;
using Array = std::vector<double>;

// Enough for the filters of many taps to go by way of Fourier transforms.
constexpr std::size_t kCount = 5000;
// Zeros before and after the noise: longer than the filters reach, or ring above the rounding errors.
constexpr std::size_t kMargin = 1000;

Array noiseBetweenZeros(double Complex::* part)
{
    Array x = partOf(complexNoise(kCount), part);
    std::fill_n(x.begin(), kMargin, 0.0);
    std::fill_n(x.rbegin(), kMargin, 0.0);
    return x;
}

const Array kX = noiseBetweenZeros(&Complex::real), kY = noiseBetweenZeros(&Complex::imaginary);

const std::vector<LinearFilter>& everyFilter()
{
    static const std::vector<LinearFilter> filters = [] {
        std::vector<LinearFilter> all = iirFilters(), others = firFilters();
        all.insert(all.end(), others.begin(), others.end());
        return all;
    }();
    return filters;
}

template <class Sample>
std::vector<Sample> filtered(const Run<Sample>& run, const std::vector<Sample>& x)
{
    std::vector<Sample> y(x.size());
    EXPECT_EQ(run(x.data(), lengthOf(x), y.data()), Status::Success);
    return y;
}

Array filtered(const LinearFilter& filter, const Array& x)
{
    return filtered(filter.real(), x);
}

ComplexSignal complexOf(const Array& re, const Array& im)
{
    ComplexSignal z;
    for (std::size_t i = 0; i < re.size(); ++i)
        z.push_back({re[i], im[i]});
    return z;
}

// Of inputs up to 1.
double largestOutputOf(const LinearFilter& filter)
{
    Array pulse(kCount);
    pulse[kCount / 2] = 1;
    double sum = 0;
    for (double value : filtered(filter, pulse))
        sum += std::abs(value);
    return sum;
}

double distance(const Array& a, const Array& b)
{
    double largest = 0;
    for (std::size_t i = 0; i < a.size(); ++i)
        largest = std::max(largest, std::abs(a[i] - b[i]));
    return largest;
}

// Long filters go by way of transforms, which keep within 1e-12 of the direct sums. A recursive filter passes each
// rounding error, 2^-53 of the terms of a sum, on through its poles, which here makes it up to 400 times as large; the
// terms are up to 7 times what the filter puts out.
constexpr double kNear = 1e-12;

// Calls with each filter for a distance of outputs; prints the largest, as a share of what the filter can put out.
template <class Distance>
void expectNearForEveryFilter(Distance distanceFor)
{
    double largest = 0;
    for (const LinearFilter& filter : everyFilter()) {
        const double found = distanceFor(filter) / largestOutputOf(filter);
        EXPECT_LE(found, kNear) << filter.name;
        largest = std::max(largest, found);
    }
    std::printf("largest distance %.1e\n", largest);
}

Array scaled(double factor, Array x)
{
    for (double& value : x)
        value *= factor;
    return x;
}

Array sum(Array x, const Array& y)
{
    std::transform(x.begin(), x.end(), y.begin(), x.begin(), std::plus());
    return x;
}

Array delayed(const Array& x, std::size_t k)
{
    Array later(k);
    later.insert(later.end(), x.begin(), x.end() - static_cast<std::ptrdiff_t>(k));
    return later;
}

Array reversed(const Array& x)
{
    return {x.rbegin(), x.rend()};
}

TEST(EveryLinearFilter, FiltersASumAsTheSumOfBoth)
{
    expectNearForEveryFilter([](const LinearFilter& filter) {
        const Array separately = sum(scaled(3, filtered(filter, kX)), scaled(-0.7, filtered(filter, kY)));
        return distance(filtered(filter, sum(scaled(3, kX), scaled(-0.7, kY))), separately);
    });
}

// Rounding knows neither signs nor powers of two, as long as no result is subnormal.
TEST(EveryLinearFilter, KeepsItsBitsWhenTheSignalIsTurnedOverAndTimesAPowerOfTwo)
{
    const Array x = partOf(complexNoise(kCount), &Complex::real);
    for (const LinearFilter& filter : everyFilter()) {
        const Array y = filtered(filter, x);
        for (double factor : {-1.0, 0x1p-20, 0x1p-900})
            EXPECT_EQ(filtered(filter, scaled(factor, x)), scaled(factor, y)) << filter.name << ", " << factor;
    }
}

TEST(EveryLinearFilter, LeavesSilenceSilent)
{
    for (const LinearFilter& filter : everyFilter())
        EXPECT_EQ(filtered(filter, Array(kCount)), Array(kCount)) << filter.name;
}

// In place of the zeros around noise.
TEST(EveryLinearFilter, TakesSubnormalNumbersForZeros)
{
    Array x = kX;
    std::replace(x.begin(), x.end(), 0.0, 1e-309);
    for (const LinearFilter& filter : everyFilter())
        EXPECT_EQ(filtered(filter, x), filtered(filter, kX)) << filter.name;
}

TEST(EveryLinearFilter, DelaysItsOutputWithItsInput)
{
    expectNearForEveryFilter([](const LinearFilter& filter) {
        const Array y = filtered(filter, kX);
        double largest = 0;
        for (std::size_t k : {1u, 7u, 64u, 200u}) {
            const Array later = filtered(filter, delayed(kX, k));
            largest = std::max(largest, distance(later, delayed(y, k)));
        }
        return largest;
    });
}

TEST(EveryLinearFilter, KnowsNothingOfLaterInputsIfItIsCausal)
{
    expectNearForEveryFilter([](const LinearFilter& filter) {
        const std::size_t split = kCount / 2 + 3;
        Array other = kX;
        std::copy(kY.begin() + split, kY.end(), other.begin() + split);
        Array y = filtered(filter, kX), z = filtered(filter, other);
        y.resize(split);
        z.resize(split);
        return filter.isCausal ? distance(y, z) : 0;
    });
}

TEST(EveryLinearFilter, OfLinearPhaseTreatsBothDirectionsOfTimeAlike)
{
    expectNearForEveryFilter([](const LinearFilter& filter) {
        if (!filter.twiceTheDelay)
            return 0.0;
        const Array backwards = reversed(filtered(filter, reversed(kX)));
        return distance(filtered(filter, kX), delayed(backwards, *filter.twiceTheDelay));
    });
}

// Without zeros around it: the fits at both ends, too.
TEST(EverySmoother, TreatsBothDirectionsOfTimeAlike)
{
    const Array x = partOf(complexNoise(kCount), &Complex::real);
    expectNearForEveryFilter([&](const LinearFilter& filter) {
        const bool isSmoother = filter.name.starts_with("SavitzkyGolay");
        return isSmoother ? distance(filtered(filter, x), reversed(filtered(filter, reversed(x)))) : 0;
    });
}

TEST(EveryLinearFilter, GivesThePartsOfAComplexSignalTheBitsOfRealSignals)
{
    const Array silence(kCount);
    for (const LinearFilter& filter : everyFilter()) {
        if (!filter.complex)
            continue;
        const Array x = filtered(filter, kX), y = filtered(filter, kY);
        const auto expectParts = [&](const Array& re, const Array& im, const Array& wantedRe, const Array& wantedIm) {
            const ComplexSignal z = filtered(filter.complex(), complexOf(re, im));
            EXPECT_EQ(partOf(z, &Complex::real), wantedRe) << filter.name;
            EXPECT_EQ(partOf(z, &Complex::imaginary), wantedIm) << filter.name;
        };
        expectParts(kX, silence, x, silence);
        expectParts(silence, kX, silence, x);
        expectParts(kX, kY, x, y);
    }
}

// Blocks of 1, 2, 4 ... samples.
template <class Sample>
std::vector<Sample> byBlocks(const Run<Sample>& run, const std::vector<Sample>& x)
{
    std::vector<Sample> y(x.size());
    for (std::size_t done = 0, length = 1; done < x.size(); done += length, length *= 2) {
        length = std::min(length, x.size() - done);
        EXPECT_EQ(run(x.data() + done, static_cast<std::int64_t>(length), y.data() + done), Status::Success);
    }
    return y;
}

TEST(EveryLinearFilter, GivesTheSameBitsInBlocksIfItKeepsItsState)
{
    const ComplexSignal z = complexNoise(1000);
    const Array x = partOf(z, &Complex::real);
    for (const LinearFilter& filter : everyFilter()) {
        if (!filter.keepsState)
            continue;
        EXPECT_EQ(byBlocks(filter.real(), x), filtered(filter.real(), x)) << filter.name;
        EXPECT_EQ(valuesOf(byBlocks(filter.complex(), z)), valuesOf(filtered(filter.complex(), z))) << filter.name;
    }
}

} // namespace
} // namespace quordsp::test
