#include "backend/transform/signals.h"
#include "data/backend/transform_vectors.inc"

#include <gmock/gmock.h>

#include <limits>
#include <numbers>

namespace quordsp::backend {
namespace {

using testing::Each;
using testing::ElementsAre;

constexpr double kTolerance = 2e-15;

Signal transformed(Signal a)
{
    EXPECT_EQ(fft(a), Status::Success);
    return a;
}

TEST(Fft, TransformsAHandComputedExample)
{
    const Signal y = transformed({{1, 2, 3, 4}, {0, 0, 0, 0}});
    EXPECT_THAT(y.re, ElementsAre(10, -2, -2, -2));
    EXPECT_THAT(y.im, ElementsAre(0, 2, 0, -2));
}

TEST(Fft, OfOnePointIsThePoint)
{
    const Signal y = transformed({{3}, {-4}});
    EXPECT_THAT(y.re, ElementsAre(3));
    EXPECT_THAT(y.im, ElementsAre(-4));
}

TEST(Fft, AgreesWithSciPyForSmallFactors)
{
    const Signal y = transformed({array(kComplex12InRe), array(kComplex12InIm)});
    EXPECT_LT(distance(y, {array(kComplex12OutRe), array(kComplex12OutIm)}), kTolerance);
}

TEST(Fft, AgreesWithSciPyForAPrime)
{
    const Signal y = transformed({array(kComplex67InRe), array(kComplex67InIm)});
    EXPECT_LT(distance(y, {array(kComplex67OutRe), array(kComplex67OutIm)}), kTolerance);
}

TEST(Fft, OfAnImpulseAtTheOriginIsOneEverywhere)
{
    for (const std::size_t n : kSizes) {
        SCOPED_TRACE(n);
        Signal impulse = {Array(n), Array(n)};
        impulse.re[0] = 1;
        const Signal y = transformed(impulse);
        EXPECT_LT(distance(y, {Array(n, 1.0), Array(n, 0.0)}), kTolerance);
    }
}

TEST(Fft, OfAConstantIsItsSumInBinZero)
{
    for (const std::size_t n : kSizes) {
        SCOPED_TRACE(n);
        Signal expected = {Array(n), Array(n)};
        expected.re[0] = static_cast<double>(n);
        expected.im[0] = -2 * static_cast<double>(n);
        EXPECT_LT(distance(transformed({Array(n, 1.0), Array(n, -2.0)}), expected), kTolerance);
    }
}

TEST(Fft, OfADelayedSignalIsTurnedInProportionToTheBin)
{
    for (const std::size_t n : kSizes) {
        SCOPED_TRACE(n);
        const Signal x = complexNoise(n);
        Signal delayed = x;
        const std::size_t delay = n / 3;
        for (std::size_t i = 0; i < n; ++i) {
            delayed.re[(i + delay) % n] = x.re[i];
            delayed.im[(i + delay) % n] = x.im[i];
        }
        Signal expected = transformed(x);
        for (std::size_t k = 0; k < n; ++k) {
            const double angle = -2 * std::numbers::pi * static_cast<double>(k * delay % n) / static_cast<double>(n);
            const double re = expected.re[k], im = expected.im[k];
            expected.re[k] = re * std::cos(angle) - im * std::sin(angle);
            expected.im[k] = re * std::sin(angle) + im * std::cos(angle);
        }
        EXPECT_LT(distance(transformed(delayed), expected), kTolerance);
    }
}

TEST(Fft, IsLinear)
{
    for (const std::size_t n : kSizes) {
        SCOPED_TRACE(n);
        const Signal a = complexNoise(n, 1), b = complexNoise(n, 2);
        Signal sum = a;
        for (std::size_t i = 0; i < n; ++i) {
            sum.re[i] = 2 * a.re[i] - 3 * b.re[i];
            sum.im[i] = 2 * a.im[i] - 3 * b.im[i];
        }
        const Signal ya = transformed(a), yb = transformed(b);
        Signal expected = ya;
        for (std::size_t k = 0; k < n; ++k) {
            expected.re[k] = 2 * ya.re[k] - 3 * yb.re[k];
            expected.im[k] = 2 * ya.im[k] - 3 * yb.im[k];
        }
        EXPECT_LT(distance(transformed(sum), expected), kTolerance);
    }
}

TEST(Fft, KeepsTheEnergyTimesTheSize)
{
    for (const std::size_t n : kSizes) {
        SCOPED_TRACE(n);
        const Signal x = complexNoise(n);
        const double expected = energy(x) * static_cast<double>(n);
        EXPECT_NEAR(energy(transformed(x)) / expected, 1, 1e-14);
    }
}

TEST(Fft, IsUndoneByTheInverse)
{
    for (const std::size_t n : kSizes) {
        SCOPED_TRACE(n);
        const Signal x = complexNoise(n);
        Signal y = transformed(x);
        ASSERT_EQ(inverseFft(y), Status::Success);
        EXPECT_LT(distance(y, x), kTolerance);
    }
}

TEST(InvFft, DividesByTheSizeExactly)
{
    for (const std::size_t n : {3u, 5u, 7u, 11u, 49u}) {
        Signal y = {Array(n), Array(n)};
        y.re[0] = static_cast<double>(n);
        ASSERT_EQ(inverseFft(y), Status::Success);
        EXPECT_THAT(y.re, Each(1)) << n;
        EXPECT_THAT(y.im, Each(0)) << n;
    }
}

TEST(InvFft, TurnsTheOtherWay)
{
    Signal y = {{0, 4, 0, 0}, {0, 0, 0, 0}}; // 4 exp(2 pi i k/4) / 4
    ASSERT_EQ(inverseFft(y), Status::Success);
    EXPECT_THAT(y.re, ElementsAre(1, 0, -1, 0));
    EXPECT_THAT(y.im, ElementsAre(0, 1, 0, -1));
}

TEST(Fft, LetsNanThroughToEveryBin)
{
    for (const std::size_t n : {6u, 67u}) {
        Signal x = complexNoise(n);
        x.re[1] = std::numeric_limits<double>::quiet_NaN();
        const Signal y = transformed(x);
        EXPECT_THAT(y.re, Each(testing::NanSensitiveDoubleEq(x.re[1]))) << n;
    }
}

TEST(Fft, LetsInfinityThrough)
{
    Signal x = complexNoise(6);
    x.re[1] = std::numeric_limits<double>::infinity();
    for (const double value : transformed(x).re)
        EXPECT_FALSE(std::isfinite(value));
}

} // namespace
} // namespace quordsp::backend
