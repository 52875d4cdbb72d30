#include "peaks.h"

#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "csv.h"
#include "file.h"

namespace quordsp::cli {
namespace {

// y = 5 - (i - 4.25)^2 up to 8, then y = 3 - 2 (i - 13.5)^2: three samples give each vertex exactly.
std::vector<double> twoParabolas()
{
    std::vector<double> samples;
    for (int i = 0; i < 18; ++i)
        samples.push_back(i <= 8 ? 5 - std::pow(i - 4.25, 2) : 3 - 2 * std::pow(i - 13.5, 2));
    return samples;
}

TEST(Peaks, AreVerticesBetweenSamples)
{
    const auto peaks = findPeaks(twoParabolas(), {});
    ASSERT_EQ(peaks.size(), 2u);
    EXPECT_NEAR(peaks[0].place, 4.25, 1e-12);
    EXPECT_NEAR(peaks[0].amplitude, 5, 1e-12);
    EXPECT_NEAR(peaks[0].secondDerivative, -2, 1e-12);
    EXPECT_NEAR(peaks[1].place, 13.5, 1e-12);
    EXPECT_NEAR(peaks[1].amplitude, 3, 1e-12);
    EXPECT_NEAR(peaks[1].secondDerivative, -4, 1e-12);
}

TEST(Peaks, AreAtLeastAsHighAsTheThreshold)
{
    const auto peaks = findPeaks(twoParabolas(), {.threshold = 4});
    ASSERT_EQ(peaks.size(), 1u);
    EXPECT_NEAR(peaks[0].place, 4.25, 1e-12);
}

TEST(Peaks, AreValleysOfTheNegativeSignal)
{
    std::vector<double> samples = twoParabolas();
    for (double& sample : samples)
        sample = -sample;
    const auto valleys = findPeaks(samples, {.threshold = -4, .valleys = true});
    ASSERT_EQ(valleys.size(), 1u);
    EXPECT_NEAR(valleys[0].place, 4.25, 1e-12);
    EXPECT_NEAR(valleys[0].amplitude, -5, 1e-12);
    EXPECT_NEAR(valleys[0].secondDerivative, 2, 1e-12);
}

TEST(Peaks, AreNoneInAShortSignal)
{
    EXPECT_TRUE(findPeaks(std::vector<double>{1, 2}, {}).empty());
    EXPECT_TRUE(findPeaks(twoParabolas(), {.width = 19}).empty());
}

// Beats of the recording, counted by NumPy: samples above 0.5 mV whose neighbours are lower. The widest fits have
// strays among their vertices.
TEST(Peaks, AreTheBeatsOfAnElectrocardiogram)
{
    const CsvDocument recording(readFile(QUORDSP_TEST_DATA "/../../examples/data/ecg_360hz.csv"), "ecg");
    const std::size_t column = 0;
    const std::vector<double> samples = recording.columns({&column, 1})[0];
    for (const int width : {3, 5, 7, 9, 11}) {
        const auto beats = findPeaks(samples, {.threshold = 0.5, .width = width});
        ASSERT_EQ(beats.size(), 74u) << width;
        EXPECT_NEAR(60 * 360 / intervalsOf(beats)->mean, 73.87, 0.01) << width;
    }
}

std::vector<double> placesWithoutStrays(const std::vector<double>& places)
{
    std::vector<Peak> peaks;
    for (const double place : places)
        peaks.push_back({place, 0, 0});
    std::vector<double> left;
    for (const Peak& peak : withoutStrays(peaks, 100))
        left.push_back(peak.place);
    return left;
}

TEST(Strays, StandOutOfOrderOrOutsideTheSignal)
{
    EXPECT_EQ(placesWithoutStrays({1, 90, 3, 5, -40, 7, 2, 8.5, 1e14, 9}), (std::vector<double>{1, 3, 5, 7, 8.5, 9}));
    EXPECT_EQ(placesWithoutStrays({-0.5, 99.5}), (std::vector<double>{-0.5, 99.5})); // a vertex at either end
    EXPECT_EQ(placesWithoutStrays({-2, 101, NAN}), std::vector<double>{});
    EXPECT_EQ(placesWithoutStrays({}), std::vector<double>{});
}

TEST(Intervals, GoFromEachPeakToTheNext)
{
    const std::vector<Peak> peaks{{1, 0, 0}, {3.5, 0, 0}, {4, 0, 0}, {10, 0, 0}};
    const auto intervals = intervalsOf(peaks);
    ASSERT_TRUE(intervals);
    EXPECT_EQ(intervals->mean, 3);
    EXPECT_EQ(intervals->shortest, 0.5);
    EXPECT_EQ(intervals->longest, 6);
}

TEST(Intervals, AreNoneForOnePeak)
{
    EXPECT_FALSE(intervalsOf(std::vector<Peak>{{1, 0, 0}}));
    EXPECT_FALSE(intervalsOf({}));
}

} // namespace
} // namespace quordsp::cli
