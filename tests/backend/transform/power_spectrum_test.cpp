#include "backend/transform/signals.h"
#include "data/backend/transform_vectors.inc"

#include <gmock/gmock.h>

#include <limits>
#include <numbers>

namespace quordsp::backend {
namespace {

using testing::DoubleEq;
using testing::DoubleNear;
using testing::ElementsAre;

constexpr double kTolerance = 1e-15;

Array powerSpectrum(Array x)
{
    EXPECT_EQ(AALFunc161(x.data(), count(x)), Status::Success);
    return x;
}

struct AutoPower {
    Array s;
    double df;
};

AutoPower autoPower(const Array& x, double dt = 1)
{
    AutoPower result = {Array(std::max<std::size_t>(x.size() / 2, 1)), 0};
    EXPECT_EQ(AALFunc10(x.data(), count(x), dt, result.s.data(), &result.df), Status::Success);
    return result;
}

// cycles whole periods of the given amplitude, and an offset
Array sine(std::size_t n, double cycles, double amplitude, double offset)
{
    Array x(n);
    for (std::size_t i = 0; i < n; ++i)
        x[i] = offset +
               amplitude * std::sin(2 * std::numbers::pi * cycles * static_cast<double>(i) / static_cast<double>(n));
    return x;
}

TEST(Spectrum, OfAnImpulseIsFlat)
{
    EXPECT_THAT(powerSpectrum({1, 0, 0, 0}), ElementsAre(0.0625, 0.0625, 0.0625, 0.0625)); // |1|^2 / 4^2
}

TEST(Spectrum, OfOnePointIsItsSquare)
{
    EXPECT_THAT(powerSpectrum({-3}), ElementsAre(9));
}

TEST(Spectrum, SplitsASineBetweenItsBinAndTheMirrorImage)
{
    const Array s = powerSpectrum(sine(40, 5, 2, 3));
    EXPECT_NEAR(s[0], 9, 1e-14);
    EXPECT_NEAR(s[5], 1, 1e-14); // (2/2)^2
    EXPECT_NEAR(s[35], 1, 1e-14);
    EXPECT_NEAR(s[6], 0, 1e-14);
}

TEST(Spectrum, AgreesWithSciPysPeriodogramForAnEvenSize)
{
    EXPECT_LT(distance(powerSpectrum(array(kSpectrum30In)), array(kSpectrum30TwoSided)), kTolerance);
}

TEST(Spectrum, AgreesWithSciPysPeriodogramForAnOddSize)
{
    EXPECT_LT(distance(powerSpectrum(array(kSpectrum31In)), array(kSpectrum31TwoSided)), kTolerance);
}

TEST(Spectrum, SumsToTheMeanSquare)
{
    for (const std::size_t n : kSizes) {
        const Array x = noise(n, 7);
        double sum = 0;
        for (const double value : powerSpectrum(x))
            sum += value;
        EXPECT_NEAR(sum / (energy(x) / static_cast<double>(n)), 1, 1e-13) << n;
    }
}

TEST(Spectrum, DoesNotOverflowWhereTheResultDoesNot)
{
    EXPECT_THAT(powerSpectrum(Array(4, 1e154)), ElementsAre(DoubleEq(1e308), 0, 0, 0));
}

TEST(AutoPowerSpectrum, ReadsHalfTheSquaredAmplitudeOfACosine)
{
    const Array x = sine(8, 1, 1, 0);
    Array cosine(x.begin() + 2, x.end()); // a quarter period later
    cosine.insert(cosine.end(), x.begin(), x.begin() + 2);
    const auto [s, df] = autoPower(cosine, 0.125);
    EXPECT_THAT(s,
                ElementsAre(DoubleNear(0, 1e-16), DoubleNear(0.5, 1e-15), DoubleNear(0, 1e-16), DoubleNear(0, 1e-16)));
    EXPECT_EQ(df, 1);
}

TEST(AutoPowerSpectrum, ReadsTheSquareOfAnOffset)
{
    EXPECT_NEAR(autoPower(sine(40, 5, 2, 3)).s[0], 9, 1e-14);
}

TEST(AutoPowerSpectrum, AgreesWithSciPysPeriodogramForAnEvenSize)
{
    const auto [s, df] = autoPower(array(kSpectrum30In), 0.002);
    EXPECT_LT(distance(s, array(kSpectrum30Power)), kTolerance);
    EXPECT_DOUBLE_EQ(df, kSpectrum30Df[0]);
}

TEST(AutoPowerSpectrum, AgreesWithSciPysPeriodogramForAnOddSize)
{
    const auto [s, df] = autoPower(array(kSpectrum31In), 0.25);
    EXPECT_LT(distance(s, array(kSpectrum31Power)), kTolerance);
    EXPECT_DOUBLE_EQ(df, kSpectrum31Df[0]);
}

TEST(AutoPowerSpectrum, WritesOneElementForUpToThreePoints)
{
    for (const std::size_t n : {1u, 2u, 3u}) {
        const Array x(n, 2.0);
        double s[] = {-1, -1}, df = 0;
        ASSERT_EQ(AALFunc10(x.data(), count(x), 0.5, s, &df), Status::Success);
        EXPECT_THAT(s, ElementsAre(DoubleEq(4), -1)) << n;
        EXPECT_DOUBLE_EQ(df, 2 / static_cast<double>(n));
    }
}

TEST(AutoPowerSpectrum, WritesHalfAsManyElementsAsPoints)
{
    for (const std::size_t n : {8u, 9u, 67u}) {
        Array s(n, -1);
        double df = 0;
        ASSERT_EQ(AALFunc10(noise(n, 8).data(), static_cast<std::int64_t>(n), 1, s.data(), &df), Status::Success);
        EXPECT_GE(s[n / 2 - 1], 0) << n;
        EXPECT_EQ(s[n / 2], -1) << n;
    }
}

TEST(AutoPowerSpectrum, WorksInPlace)
{
    Array x = noise(50, 9);
    const AutoPower expected = autoPower(x);
    double df = 0;
    ASSERT_EQ(AALFunc10(x.data(), count(x), 1, x.data(), &df), Status::Success);
    x.resize(25);
    EXPECT_EQ(x, expected.s);
}

TEST(AutoPowerSpectrum, LetsNanThrough)
{
    Array x = noise(10, 10);
    x[3] = std::numeric_limits<double>::quiet_NaN();
    for (const double value : autoPower(x).s)
        EXPECT_TRUE(std::isnan(value));
}

} // namespace
} // namespace quordsp::backend
