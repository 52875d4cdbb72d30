// The peak detector on signals that come in one block.
#include "backend/statistics/peaks.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace quordsp::backend {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr std::int32_t kValleys = 1;

void expectNear(const Peaks& found, const Peaks& expected, double tolerance)
{
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_NEAR(found[i].location, expected[i].location, tolerance) << i;
        EXPECT_NEAR(found[i].amplitude, expected[i].amplitude, tolerance) << i;
        EXPECT_NEAR(found[i].secondDerivative, expected[i].secondDerivative, tolerance) << i;
    }
}

Array negated(Array x)
{
    for (double& value : x)
        value = -value;
    return x;
}

Peaks negated(Peaks peaks)
{
    for (Peak& peak : peaks) {
        peak.amplitude = -peak.amplitude;
        peak.secondDerivative = -peak.secondDerivative;
    }
    return peaks;
}

Array mapped(Array x, double scale, double offset)
{
    for (double& value : x)
        value = value * scale + offset;
    return x;
}

// Samples with so few digits that constants, lines and offsets are kept exactly.
Array coarseNoise(std::size_t n, unsigned seed)
{
    Array x = noise(n, seed);
    for (double& value : x)
        value = std::round(value * 64) / 64;
    return x;
}

TEST(PeakDetector, FindsTheOnePeakOfThreeSamples)
{
    EXPECT_THAT(peaksOf({0, 1, 0}, {0, 3}), ElementsAre(Peak{1, 1, -2}));
}

TEST(PeakDetector, FindsTheVertexOfAParabolaAtEveryWidth)
{
    Array x(16);
    for (std::size_t i = 0; i < x.size(); ++i)
        x[i] = 5 - 0.25 * (static_cast<double>(i) - 7.3) * (static_cast<double>(i) - 7.3);
    for (std::int64_t width = 3; width <= 14; ++width)
        expectNear(peaksOf(x, {0, width}), {{7.3, 5, -0.5}}, 1e-12);
}

struct Vector {
    std::int64_t width;
    Array x;
    Peaks peaks;
};

const Vector kVectors[] = {
#include "data/backend/peak_vectors.inc"
};

TEST(PeakDetector, FindsThePeaksThatPolynomialFitsOfNumpyGive)
{
    for (const Vector& vector : kVectors) {
        SCOPED_TRACE(vector.width);
        expectNear(peaksOf(vector.x, {-100, vector.width}), vector.peaks, 1e-9);
        expectNear(peaksOf(negated(vector.x), {100, vector.width, kValleys}), negated(vector.peaks), 1e-9);
    }
}

TEST(PeakDetector, KeepsToItsRuleOnNoise)
{
    std::size_t count = 0;
    for (unsigned seed = 0; seed < 400; ++seed) {
        const std::int64_t width = 3 + seed % 17;
        const std::int32_t polarity = seed % 2;
        const double threshold = polarity == 0 ? -0.4 : 0.4;
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", width " << width);
        for (const Array& x : {noise(40, seed), coarseNoise(40, seed)}) {
            const Peaks expected = reference::PeakRule(x, threshold, width, polarity != 0).peaks();
            expectNear(peaksOf(x, {threshold, width, polarity}), expected, 1e-12);
            count += expected.size();
        }
    }
    EXPECT_GT(count, 1000u);
}

// 1024 and 1025: where another way to form the sums begins.
TEST(PeakDetector, KeepsToItsRuleAtGreatWidths)
{
    Array x(4000);
    const Array steps = noise(x.size(), 5);
    for (std::size_t i = 1; i < x.size(); ++i)
        x[i] = x[i - 1] + steps[i];
    for (const std::int64_t width : {1000, 1023, 1024, 1025, 1026, 1100, 1999, 3968, 4000}) {
        SCOPED_TRACE(width);
        const Peaks expected = reference::PeakRule(x, -1e9, width, false).peaks();
        expectNear(peaksOf(x, {-1e9, width}), expected, 1e-9);
    }
}

TEST(PeakDetector, CountsAWidthBelowThreeAsThree)
{
    const Array x = noise(100, 1);
    for (const std::int64_t width : {std::int64_t{2}, std::int64_t{0}, std::numeric_limits<std::int64_t>::min()})
        EXPECT_EQ(peaksOf(x, {0, width}), peaksOf(x, {0, 3}));
}

TEST(PeakDetector, FindsValleysAsThePeaksOfTheNegatedSignal)
{
    const Array x = noise(5000, 2);
    for (const std::int64_t width : {3, 4, 31, 1500}) {
        const Peaks peaks = peaksOf(x, {-0.1, width});
        EXPECT_THAT(peaks, testing::Not(IsEmpty()));
        for (const std::int32_t polarity : {1, 2, -1})
            EXPECT_EQ(peaksOf(negated(x), {0.1, width, polarity}), negated(peaks));
    }
}

TEST(PeakDetector, ReportsAValleyAtZeroWithoutASign)
{
    const Peaks valleys = peaksOf({1, 0, 1}, {0, 3, kValleys});
    ASSERT_THAT(valleys, ElementsAre(Peak{1, 0, 2}));
    EXPECT_FALSE(std::signbit(valleys[0].amplitude));
}

TEST(PeakDetector, KeepsPeaksFromTheThresholdOn)
{
    const Array x = {0, 1, 0, 2, 0, 3, 0};
    EXPECT_THAT(peaksOf(x, {2, 3}), ElementsAre(Peak{3, 2, -4}, Peak{5, 3, -6}));
    EXPECT_THAT(peaksOf(x, {std::nextafter(2.0, 3.0), 3}), ElementsAre(Peak{5, 3, -6}));
    EXPECT_THAT(peaksOf(x, {-kInfinity, 3}), SizeIs(3));
    EXPECT_THAT(peaksOf(x, {kInfinity, 3}), IsEmpty());
    EXPECT_THAT(peaksOf(x, {kNan, 3}), IsEmpty());
}

TEST(PeakDetector, KeepsValleysUpToTheThreshold)
{
    const Array x = {4, 3, 4, 2, 4, 1, 4};
    EXPECT_THAT(peaksOf(x, {2, 3, kValleys}), ElementsAre(Peak{3, 2, 4}, Peak{5, 1, 6}));
}

TEST(PeakDetector, FindsAPlateauOnce)
{
    EXPECT_THAT(peaksOf({0, 1, 2, 2, 2, 1, 0}, {0, 3}), SizeIs(1));
}

TEST(PeakDetector, FindsNothingInConstantsAndRamps)
{
    for (const double level : {0.1, -1e300, 1.0 / 3e17})
        for (const std::int64_t width : {3, 4, 9, 100, 1024, 1025, 1500})
            for (const std::int32_t polarity : {0, 1})
                EXPECT_THAT(peaksOf(Array(4000, level), {polarity == 0 ? -kInfinity : kInfinity, width, polarity}),
                            IsEmpty())
                    << level << ' ' << width;
    Array ramp(3000);
    for (std::size_t i = 0; i < ramp.size(); ++i)
        ramp[i] = 0.1 * static_cast<double>(i);
    for (const std::int64_t width : {3, 4, 9, 100, 1024, 1025, 1500})
        EXPECT_THAT(peaksOf(ramp, {-kInfinity, width}), IsEmpty()) << width;
}

// Parabolas that peak just inside or outside of the half sample around the centre of the first or last group.
TEST(PeakDetector, FindsPeaksAtTheEndsWithinHalfASample)
{
    const auto parabola = [](double vertex) {
        Array x(5);
        for (std::size_t i = 0; i < x.size(); ++i)
            x[i] = -(static_cast<double>(i) - vertex) * (static_cast<double>(i) - vertex);
        return x;
    };
    expectNear(peaksOf(parabola(0.5625), {-1, 3}), {{0.5625, 0, -2}}, 1e-15);
    EXPECT_THAT(peaksOf(parabola(0.4375), {-1, 3}), IsEmpty());
    expectNear(peaksOf(parabola(3.4375), {-1, 3}), {{3.4375, 0, -2}}, 1e-14);
    EXPECT_THAT(peaksOf(parabola(3.5625), {-1, 3}), IsEmpty());
}

TEST(PeakDetector, GivesThreeArraysToFreeWhenItFindsNothing)
{
    for (const std::int64_t width : {3, 2000}) {
        PeakArrays found;
        EXPECT_EQ(detect({1, 2}, {0, width}, true, true, found), Status::Success);
        EXPECT_EQ(found.count, 0);
        EXPECT_THAT(found.take(), IsEmpty());
    }
}

// What is farther from it than a group does not see it.
TEST(PeakDetector, FindsNothingAroundNanAndInfinity)
{
    for (const double value : {kNan, kInfinity, -kInfinity})
        for (const std::int64_t width : {3, 4, 21, 1500}) {
            SCOPED_TRACE(testing::Message() << value << ", width " << width);
            const std::size_t n = 6000;
            const std::size_t place = 3017;
            Array x = noise(n, 3);
            const double half = static_cast<double>(width) / 2;
            Peaks expected;
            for (const Peak& peak : peaksOf(x, {-100, width}))
                if (std::abs(peak.location - static_cast<double>(place)) > 2 * half)
                    expected.push_back(peak);
            x[place] = value;
            Peaks found;
            for (const Peak& peak : peaksOf(x, {-100, width})) {
                EXPECT_TRUE(std::isfinite(peak.location) && std::isfinite(peak.amplitude));
                if (std::abs(peak.location - static_cast<double>(place)) > 2 * half)
                    found.push_back(peak);
            }
            EXPECT_EQ(found, expected);
        }
}

TEST(PeakDetector, FindsTheSameAtAnyScale)
{
    const Array x = noise(3000, 4);
    for (const std::int64_t width : {3, 8, 1100}) {
        const Peaks peaks = peaksOf(x, {-100, width});
        for (const int exponent : {960, -960}) {
            const double scale = std::ldexp(1.0, exponent);
            Peaks scaled = peaks;
            for (Peak& peak : scaled) {
                peak.amplitude *= scale;
                peak.secondDerivative *= scale;
            }
            EXPECT_EQ(peaksOf(mapped(x, scale, 0), {-kInfinity, width}), scaled);
        }
    }
}

TEST(PeakDetector, FindsTheSamePlacesFarFromZero)
{
    const Array x = coarseNoise(3000, 6);
    for (const std::int64_t width : {3, 8, 1100}) {
        const Peaks peaks = peaksOf(x, {-100, width});
        const Peaks far = peaksOf(mapped(x, 1, 1e12), {-100, width});
        ASSERT_EQ(far.size(), peaks.size());
        for (std::size_t i = 0; i < peaks.size(); ++i) {
            EXPECT_NEAR(far[i].location, peaks[i].location, 1e-12 * peaks[i].location);
            EXPECT_NEAR(far[i].secondDerivative, peaks[i].secondDerivative, -1e-12 * peaks[i].secondDerivative);
        }
    }
}

TEST(PeakDetector, LeavesTheInputAlone)
{
    const Array x = noise(3000, 7);
    peaksOf(x, {0, 5, kValleys});
    EXPECT_EQ(x, noise(3000, 7));
}

} // namespace
} // namespace quordsp::backend
