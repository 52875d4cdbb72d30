#include "backend/transform/signals.h"
#include "data/backend/transform_vectors.inc"

#include <gmock/gmock.h>

#include <limits>

namespace quordsp::backend {
namespace {

using testing::ElementsAre;

constexpr double kTolerance = 2e-15;

// The imaginary input is ignored: it is not even a number.
Signal spectrumOf(const Array& x)
{
    Signal y = {x, Array(x.size(), std::numeric_limits<double>::quiet_NaN())};
    EXPECT_EQ(realFft(y), Status::Success);
    return y;
}

TEST(ReFft, TransformsAHandComputedExample)
{
    const Signal y = spectrumOf({1, 2, 3, 4});
    EXPECT_THAT(y.re, ElementsAre(10, -2, -2, -2));
    EXPECT_THAT(y.im, ElementsAre(0, 2, 0, -2));
}

TEST(ReFft, OfOnePointIsThePoint)
{
    const Signal y = spectrumOf({3});
    EXPECT_THAT(y.re, ElementsAre(3));
    EXPECT_THAT(y.im, ElementsAre(0));
}

TEST(ReFft, AgreesWithNumPyForAnOddSize)
{
    EXPECT_LT(distance(spectrumOf(array(kReal15In)), {array(kReal15OutRe), array(kReal15OutIm)}), kTolerance);
}

TEST(ReFft, AgreesWithNumPyForAnEvenSize)
{
    EXPECT_LT(distance(spectrumOf(array(kReal16In)), {array(kReal16OutRe), array(kReal16OutIm)}), kTolerance);
}

TEST(ReInvFft, LeavesTheImaginaryPartAsItIs)
{
    for (const std::size_t n : {5u, 6u}) {
        Signal y = complexNoise(n);
        const Array before = y.im;
        ASSERT_EQ(inverseRealFft(y), Status::Success);
        EXPECT_EQ(y.im, before);
    }
}

TEST(ReFft, AgreesWithTheComplexTransform)
{
    for (const std::size_t n : kSizes) {
        SCOPED_TRACE(n);
        Signal expected = {noise(n, 3), Array(n)};
        ASSERT_EQ(fft(expected), Status::Success);
        EXPECT_LT(distance(spectrumOf(noise(n, 3)), expected), kTolerance);
    }
}

TEST(ReFft, IsConjugateSymmetricToTheLastBit)
{
    for (const std::size_t n : kSizes) {
        SCOPED_TRACE(n);
        const Signal y = spectrumOf(noise(n, 4));
        for (std::size_t k = 0; k < n; ++k) {
            EXPECT_EQ(y.re[k], y.re[(n - k) % n]);
            EXPECT_EQ(y.im[k], -y.im[(n - k) % n]);
        }
    }
}

TEST(ReFft, IsUndoneByTheInverse)
{
    for (const std::size_t n : kSizes) {
        SCOPED_TRACE(n);
        const Array x = noise(n, 5);
        Signal y = spectrumOf(x);
        ASSERT_EQ(inverseRealFft(y), Status::Success);
        EXPECT_LT(distance(y.re, x), kTolerance);
    }
}

TEST(ReFft, InverseLooksOnlyAtTheFirstHalfOfTheSpectrum)
{
    for (const std::size_t n : kSizes) {
        SCOPED_TRACE(n);
        const Signal full = spectrumOf(noise(n, 6));
        Signal expected = full, halved = full;
        for (std::size_t k = n / 2 + 1; k < n; ++k)
            halved.re[k] = halved.im[k] = std::numeric_limits<double>::quiet_NaN();
        ASSERT_EQ(inverseRealFft(expected), Status::Success);
        ASSERT_EQ(inverseRealFft(halved), Status::Success);
        EXPECT_EQ(halved.re, expected.re);
    }
}

} // namespace
} // namespace quordsp::backend
