// The windows, as the designs apply them: a design divided by the one without a window.
#include "backend/support/fir.h"
#include "data/backend/fir_vectors.inc"
#include "reference/response.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <numbers>

namespace quordsp::test {
namespace {

using testing::Each;
using testing::ElementsAre;

// A cut-off so low that no tap is near a zero of the ideal response.
Order orderOf(int taps, int window, double parameter)
{
    return {kLowPass, 1, 0.25 / taps, 0, taps, window, parameter};
}

Array windowOf(int code, double parameter, int taps)
{
    Array w = designed(orderOf(taps, code, parameter));
    const Array bare = designed(orderOf(taps, kRectangle, 0));
    for (std::size_t k = 0; k < w.size(); ++k)
        w[k] /= bare[k];
    return w;
}

TEST(Windows, AgreeWithTheirDefinitions)
{
    double largest = 0;
    for (const auto& [code, parameter, taps, half] : vectors::kWindows) {
        const Array w = windowOf(code, parameter, taps);
        ASSERT_EQ(w.size(), static_cast<std::size_t>(taps)) << code;
        for (std::size_t k = 0; k < half.size(); ++k) {
            largest = std::max(largest, std::abs(w[k] - half[k]));
            EXPECT_NEAR(w[k], half[k], 1e-15) << "window " << code << ", " << taps << " taps, value " << k;
        }
    }
    std::printf("windows: largest error %.1e of the peak\n", largest);
}

TEST(Windows, AreSymmetricToTheLastBit)
{
    for (int code : kWindowCodes)
        for (int taps : {2, 15, 16, 101}) {
            const Array h = designed(orderOf(taps, code, 2));
            EXPECT_EQ(h, Array(h.rbegin(), h.rend())) << code;
        }
}

TEST(Windows, AreOneForASingleTap)
{
    for (int code : kWindowCodes)
        EXPECT_THAT(designed({kLowPass, 1, 0.125, 0, 1, code, 3}), ElementsAre(0.25)) << code;
}

TEST(Windows, OfTheShortListAreThoseOfTheLongOne)
{
    constexpr int kCodes[] = {0, 30, 1, 2, 5};
    for (int i = 0; i < 5; ++i) {
        Array low(21), band(21), high(21), stop(21);
        ASSERT_EQ(backend::AALFunc189(1, 0.1, 21, low.data(), i + 1), Status::Success);
        ASSERT_EQ(backend::AALFunc188(1, 0.1, 21, high.data(), i + 1), Status::Success);
        ASSERT_EQ(backend::AALFunc186(1, 0.1, 0.2, 21, band.data(), i + 1), Status::Success);
        ASSERT_EQ(backend::AALFunc187(1, 0.1, 0.2, 21, stop.data(), i + 1), Status::Success);
        EXPECT_EQ(low, designed({kLowPass, 1, 0.1, 0, 21, kCodes[i]}));
        EXPECT_EQ(high, designed({kHighPass, 1, 0.1, 0, 21, kCodes[i]}));
        EXPECT_EQ(band, designed({kBandPass, 1, 0.1, 0.2, 21, kCodes[i]}));
        EXPECT_EQ(stop, designed({kBandStop, 1, 0.1, 0.2, 21, kCodes[i]}));
    }
}

TEST(Windows, OfTheKaiserDesignsAreKaisers)
{
    Array low(21), band(21), high(21), stop(21);
    ASSERT_EQ(backend::AALFunc112(1, 0.1, 21, low.data(), 5), Status::Success);
    ASSERT_EQ(backend::AALFunc111(1, 0.1, 21, high.data(), 5), Status::Success);
    ASSERT_EQ(backend::AALFunc109(1, 0.1, 0.2, 21, band.data(), 5), Status::Success);
    ASSERT_EQ(backend::AALFunc110(1, 0.1, 0.2, 21, stop.data(), 5), Status::Success);
    EXPECT_EQ(low, designed({kLowPass, 1, 0.1, 0, 21, kKaiser, 5}));
    EXPECT_EQ(high, designed({kHighPass, 1, 0.1, 0, 21, kKaiser, 5}));
    EXPECT_EQ(band, designed({kBandPass, 1, 0.1, 0.2, 21, kKaiser, 5}));
    EXPECT_EQ(stop, designed({kBandStop, 1, 0.1, 0.2, 21, kKaiser, 5}));
}

TEST(Windows, TakeTheirDefaultForNaN)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (int code : kWindowCodes) {
        const double parameter = code == kDolphChebyshev ? 60 : code == kGaussian ? 0.2 : 0;
        EXPECT_EQ(windowOf(code, nan, 20), windowOf(code, parameter, 20)) << code;
    }
}

TEST(Windows, IgnoreAParameterThatTheyDoNotHave)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (int code : kWindowCodes)
        if (code < kKaiser) {
            EXPECT_EQ(windowOf(code, -infinity, 20), windowOf(code, 0, 20)) << code;
        }
}

TEST(Windows, StandAnyParameterInRange)
{
    for (int code : {kKaiser, kDolphChebyshev, kGaussian})
        for (int taps : {2, 3, 64, 257})
            for (double parameter : {5e-324, 1e-300, 1e-9, 1e-3, 1.0, 1e3, 1e5, 1e9, 1e300, 1.7e308})
                EXPECT_THAT(windowOf(code, parameter, taps),
                            Each(testing::AllOf(testing::Ge(-1e-15), testing::Le(1 + 1e-15))))
                    << code << ' ' << taps << ' ' << parameter;
}

TEST(Windows, OfDolphAndChebyshevHaveSideLobesOfTheDecibelsAskedFor)
{
    for (double decibels : {30.0, 60.0, 110.0})
        for (int taps : {32, 65}) {
            const Array w = windowOf(kDolphChebyshev, decibels, taps);
            const auto gain = [&](double f) {
                return std::abs(reference::spectrum(w, f)) / std::abs(reference::spectrum(w, 0));
            };
            // cos(pi f) = 1 / t0 is where the main lobe has come down to the side lobes.
            const double t0 = std::cosh(std::acosh(std::pow(10, decibels / 20)) / (taps - 1));
            const double edge = std::acos(1 / t0) / std::numbers::pi;
            double largest = 0;
            for (double f = edge; f < 0.5; f += 0.0005)
                largest = std::max(largest, static_cast<double>(gain(f)));
            EXPECT_NEAR(reference::decibels(largest), -decibels, 0.02);
            EXPECT_GT(reference::decibels(gain(0.98 * edge)), -decibels);
        }
}

// Neither reads nor writes anything.
TEST(Windows, OfDolphAndChebyshevEndBeforeTheyTakeLong)
{
    const double x = 1;
    double y = 8;
    for (const int taps : {(1 << 23) + 1, std::numeric_limits<int>::max()}) {
        EXPECT_EQ(backend::AALFunc335(kLowPass, 1, 0.1, 0, taps, kDolphChebyshev, 60, &y), Status::OutOfMemory);
        EXPECT_EQ(backend::AALFunc481(&x, 1, taps, 1, 0.1, kDolphChebyshev, 60, &y), Status::OutOfMemory);
    }
    EXPECT_EQ(y, 8);
}

} // namespace
} // namespace quordsp::test
