#include "statistics.h"

#include <vector>

#include <gtest/gtest.h>

namespace quordsp::cli {
namespace {

TEST(Moments, AreMeanRmsAndRmsAboutTheMean)
{
    const Moments moments = statisticalMoments(std::vector<double>{1, 3, 5, 7}); // by hand: 84 / 4 and 20 / 4
    EXPECT_EQ(moments.mean, 4);
    EXPECT_DOUBLE_EQ(moments.rms, 4.58257569495584);
    EXPECT_DOUBLE_EQ(moments.deviation, 2.23606797749979);
}

TEST(Moments, KeepASmallDeviationFromALargeMean)
{
    const Moments moments = statisticalMoments(std::vector<double>{1e9 - 0.5, 1e9 + 0.5});
    EXPECT_EQ(moments.mean, 1e9);
    EXPECT_DOUBLE_EQ(moments.deviation, 0.5);
}

TEST(Moments, HoldAtTheEndsOfTheRangeOfNumbers)
{
    const Moments moments = statisticalMoments(std::vector<double>{1e308, -1e308, 1e308, -1e308});
    EXPECT_EQ(moments.mean, 0);
    EXPECT_DOUBLE_EQ(moments.rms, 1e308);
    EXPECT_DOUBLE_EQ(moments.deviation, 1e308);
}

TEST(Extremes, AreTheFirstOfEqualSamples)
{
    const auto [minimum, maximum] = extremesOf(std::vector<double>{2, 5, -1, 5, -1});
    EXPECT_EQ(minimum.value, -1);
    EXPECT_EQ(minimum.index, 2u);
    EXPECT_EQ(maximum.value, 5);
    EXPECT_EQ(maximum.index, 1u);
}

// numpy.percentile([7, 1, 4, 2.5, 11, 3], p)
TEST(Percentiles, LieOnStraightLinesBetweenSortedSamples)
{
    const std::vector<double> samples = sorted(std::vector<double>{7, 1, 4, 2.5, 11, 3});
    const struct {
        double percent;
        double value;
    } cases[] = {{0, 1}, {5, 1.375}, {25, 2.625}, {50, 3.5}, {75, 6.25}, {95, 10}, {99.9, 10.98}, {100, 11}};
    for (const auto& [percent, value] : cases)
        EXPECT_NEAR(percentile(samples, percent), value, 1e-13) << percent;
}

TEST(Percentiles, OfOneSampleAreThatSample)
{
    for (const double percent : {0.0, 33.0, 100.0})
        EXPECT_EQ(percentile(std::vector<double>{3.25}, percent), 3.25);
}

TEST(Percentiles, HoldAtTheEndsOfTheRangeOfNumbers)
{
    EXPECT_EQ(percentile(std::vector<double>{-1.7e308, 1.7e308}, 50), 0);
}

} // namespace
} // namespace quordsp::cli
