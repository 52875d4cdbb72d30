// Removal of a piecewise polynomial trend.
#include <algorithm>
#include <cmath>
#include <fstream>
#include <limits>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "QuorDSP_DAQ.h"
#include "numeric/signals.h"
#include "reference/householder.h"

namespace quordsp {
namespace {

using signals::bits;
using signals::kInfinity;
using signals::kNan;
using signals::largest;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsNan;
using Values = std::vector<double>;

constexpr int kMost = std::numeric_limits<int>::max();

Values detrended(Values samples, int order, Values breakpoints = {})
{
    EXPECT_EQ(QuorDSP_detrend(samples.data(), static_cast<int>(samples.size()), order, breakpoints.data(),
                              static_cast<int>(breakpoints.size())),
              0);
    return samples;
}

double largestDifference(const Values& a, const Values& b)
{
    double result = 0.0;
    for (std::size_t i = 0; i < a.size(); ++i)
        result = std::isnan(a[i]) ? kInfinity : std::max(result, std::abs(a[i] - b[i]));
    return result;
}

Values noise(int count)
{
    return signals::Noise{}.next(count);
}

Values polynomial(int count, const Values& coefficients)
{
    Values samples;
    for (int i = 0; i < count; ++i) {
        const double x = static_cast<double>(i) / std::max(count - 1, 1);
        double value = 0.0;
        for (const double coefficient : coefficients)
            value = value * x + coefficient;
        samples.push_back(value);
    }
    return samples;
}

TEST(Detrend, LeavesNothingOfAPolynomialOfItsOrder)
{
    // What the header promises: coefficients of like size, order <= 15, count <= 10000.
    double worst = 0.0;
    for (int order = 1; order <= 15; ++order)
        for (const int count : {order + 1, order + 2, 20, 100, 273, 1000, 10000}) {
            Values coefficients;
            for (int i = 0; i <= std::min(order, count - 1); ++i)
                coefficients.push_back(i % 3 - 1.3);
            const Values samples = polynomial(count, coefficients);
            const double rest = largest(detrended(samples, order)) / largest(samples);
            EXPECT_LE(rest, 1e-12) << "order " << order << ", " << count << " samples";
            worst = std::max(worst, rest);
        }
    RecordProperty("largest", std::to_string(worst * 1e12) + "e-12");
}

TEST(Detrend, LeavesNothingOfALowerOrder)
{
    for (const Values& coefficients : {Values{4.5}, Values{-3.0, 1.0}, Values{2.0, 0.0, 7.0}})
        for (const int count : {3, 10, 5000})
            for (int order = 2; order <= 5; ++order)
                if (count > order)
                    EXPECT_LE(largest(detrended(polynomial(count, coefficients), order)), 1e-13) << count;
}

TEST(Detrend, LeavesKnownResiduals)
{
    // By hand: the line through (0,0), (1,3), (2,0) is y = 1; the parabola through all three leaves nothing.
    const Values samples{0.0, 3.0, 0.0};
    EXPECT_LE(largestDifference(detrended(samples, 1), {-1.0, 2.0, -1.0}), 1e-15);
    EXPECT_LE(largest(detrended(samples, 2)), 1e-14);
}

TEST(Detrend, FollowsABendAtABreakpoint)
{
    for (const int count : {10, 5000})
        for (const double place : {1.0, 2.0, 4.5, count - 3.0}) {
            Values samples;
            for (int i = 0; i < count; ++i)
                samples.push_back(1.0 + 0.5 * i - (i > place ? 2.0 * (i - place) : 0.0));
            EXPECT_LE(largest(detrended(samples, 1, {place + 1.0})), 1e-13 * largest(samples))
                << count << ", " << place;
            EXPECT_GT(largest(detrended(samples, 1)), 0.1) << count << ", " << place;
        }
}

TEST(Detrend, IgnoresBreakpointsThatAreNotInside)
{
    const Values useless{1.0, 10.0, 0.0, -3.0, 11.0, 1e300, kNan, kInfinity, -kInfinity};
    const Values samples = noise(10);
    for (const int order : {0, 1, 3}) {
        EXPECT_EQ(bits(detrended(samples, order, useless)), bits(detrended(samples, order))) << order;
        Values among = useless;
        among.insert(among.begin() + 4, 4.0);
        EXPECT_EQ(bits(detrended(samples, order, among)), bits(detrended(samples, order, {4.0}))) << order;
    }
}

TEST(Detrend, TakesTheMeanOffForOrderZero)
{
    EXPECT_THAT(detrended({1.0, 2.0, 6.0}, 0), ElementsAre(-2.0, -1.0, 3.0));
    EXPECT_THAT(detrended({5.0, 5.0}, 0), Each(0.0));
}

TEST(Detrend, KeepsTheMeanOfTheFirstSegmentOnly)
{
    // The sample nearest to position 2 (from 0) is the third one: the mean of 1, 4, 7 goes from all ten.
    const Values samples{1.0, 4.0, 7.0, 100.0, 200.0, 300.0, 400.0, 500.0, 600.0, 700.0};
    const Values expected{-3.0, 0.0, 3.0, 96.0, 196.0, 296.0, 396.0, 496.0, 596.0, 696.0};
    EXPECT_EQ(detrended(samples, 0, {3.0, 7.0}), expected);
    EXPECT_EQ(detrended(samples, 0, {kNan, 1.0, 3.0, 2.0}), expected);
}

TEST(Detrend, EndsTheFirstSegmentAtTheNearestSampleAndTheEarlierOfTwo)
{
    const Values samples{2.0, 4.0, 9.0, 25.0};
    // Means of the first 1, 2 and 3 samples.
    for (const auto& [breakpoint, mean] :
         {std::pair{1.25, 2.0}, {1.5, 2.0}, {1.75, 3.0}, {2.0, 3.0}, {2.5, 3.0}, {2.51, 5.0}, {3.5, 5.0}, {3.75, 10.0}})
        EXPECT_EQ(detrended(samples, 0, {breakpoint})[0], 2.0 - mean) << breakpoint;
}

TEST(Detrend, SumsTheMeanFromTheFirstSampleOn)
{
    // In this order the small ones are lost: 1e16 + 1 is 1e16.
    EXPECT_EQ(detrended({1e16, 1.0, 1.0, 1.0, -1e16}, 0)[1], 1.0);
    EXPECT_EQ(detrended({1.0, 1.0, 1.0, -1e16, 1e16}, 0)[1], 1.0 - 4.0 / 5.0);
}

TEST(Detrend, MakesASingleSampleZero)
{
    for (const int order : {0, 1, 5, kMost}) {
        EXPECT_THAT(detrended({7.0}, order, {1.0}), ElementsAre(0.0));
        for (const double bad : {kNan, kInfinity, -kInfinity})
            EXPECT_TRUE(std::isnan(detrended({bad}, order)[0]));
    }
}

TEST(Detrend, LeavesTheSamplesAloneForANegativeCountOrOrder)
{
    const Values samples{1.0, 5.0, 2.0};
    for (const int order : {-1, -kMost - 1})
        EXPECT_EQ(detrended(samples, order), samples);
    Values untouched = samples;
    for (const int count : {0, -1, -kMost - 1}) {
        EXPECT_EQ(QuorDSP_detrend(untouched.data(), count, 1, nullptr, 0), 0);
        EXPECT_EQ(QuorDSP_detrend(nullptr, count, 1, nullptr, 0), 0);
    }
    EXPECT_EQ(untouched, samples);
}

TEST(Detrend, LeavesTheSamplesAloneForMoreUnknownsThanItHasRoomFor)
{
    const Values samples = noise(50'000);
    EXPECT_EQ(detrended(samples, 50'000), samples);
    EXPECT_EQ(detrended(samples, kMost), samples);
    EXPECT_EQ(QuorDSP_detrend(nullptr, kMost, kMost, nullptr, 0), 0);
}

TEST(Detrend, TakesNoBreakpointsForANegativeNumberOfThemOrNull)
{
    for (const int count : {0, -1, -kMost - 1, 1, kMost})
        for (const int order : {0, 2}) {
            Values samples = noise(10);
            EXPECT_EQ(QuorDSP_detrend(samples.data(), 10, order, nullptr, count), 0);
            EXPECT_EQ(bits(samples), bits(detrended(noise(10), order)));
        }
}

TEST(Detrend, LeavesTheBreakpointsAsTheyAre)
{
    const Values given{30.0, -1.0, 20.0};
    Values breakpoints = given;
    Values samples = noise(50);
    QuorDSP_detrend(samples.data(), 50, 2, breakpoints.data(), 3);
    EXPECT_EQ(breakpoints, given);
}

TEST(Detrend, LeavesNoSampleFiniteWithNaNOrInfinityAmongThem)
{
    for (const double bad : {kNan, kInfinity})
        for (const int count : {10, 5000})
            for (const int order : {0, 1, 5}) {
                Values samples = noise(count);
                samples[static_cast<std::size_t>(count / 2)] = bad;
                for (const double rest : detrended(samples, order))
                    ASSERT_FALSE(std::isfinite(rest)) << bad << ", " << count << ", order " << order;
            }
}

TEST(Detrend, KeepsNaNBehindTheMeanToItself)
{
    EXPECT_THAT(detrended({1.0, 2.0, 3.0, kNan, 5.0}, 0, {3.0}), ElementsAre(-1.0, 0.0, 1.0, IsNan(), 3.0));
}

// What the header promises: the largest error against exact arithmetic, as a share of the largest sample. The powers of
// a high order are nearly dependent, the more so between breakpoints: their own rounding, which no solution of the
// problem can mend, then shows in the residuals.
double accuracy(int order, bool breakpoints)
{
    constexpr double kBetweenBreakpoints[] = {1e-12, 1e-12, 5e-12, 1e-10, 2e-9};
    if (breakpoints)
        return kBetweenBreakpoints[order - 1];
    return order <= 5 ? 1e-12 : order <= 10 ? 5e-9 : 3e-5;
}

// The least count for which it does.
int leastCount(int order)
{
    return order <= 5 ? order + 1 : order <= 10 ? 20 : 60;
}

// Of noise, against extended precision.
double error(int count, int order, const Values& breakpoints = {})
{
    const Values samples = noise(count);
    const Values expected = reference::withoutTrend(samples, order, breakpoints);
    return largestDifference(detrended(samples, order, breakpoints), expected) / largest(samples);
}

void record(int order, double worst)
{
    testing::Test::RecordProperty("largest_" + std::to_string(order), std::to_string(worst * 1e12) + "e-12");
}

// Sizes about one and two tiles for the low orders, whose rows get fewer as columns get more.
const std::vector<int> kCounts{16, 50, 599, 600, 601, 690, 691, 1191, 1192, 1193, 1375, 1376, 1377, 3000, 51200};

TEST(Detrend, AgreesWithExtendedPrecision)
{
    for (int order = 1; order <= 5; ++order) {
        double worst = 0.0;
        for (int count = leastCount(order); count < 16; ++count)
            worst = std::max(worst, error(count, order));
        for (const int count : kCounts)
            worst = std::max(worst, error(count, order));
        EXPECT_LE(worst, accuracy(order, false)) << "order " << order;
        record(order, worst);
    }
}

TEST(Detrend, AgreesWithExtendedPrecisionBetweenBreakpoints)
{
    // A fifth of the block is the least distance.
    const std::vector<Values> places{{0.5},      {0.7, 0.2},      {0.75, 0.25, 0.5}, {0.2},          {0.8},
                                     {0.2, 0.4}, {0.2, 0.4, 0.6}, {0.8, 0.6, 0.4},   {0.2, 0.6, 0.8}};
    for (int order = 1; order <= 5; ++order) {
        double worst = 0.0;
        for (const int count : {50, 51, 100, 599, 601, 1192, 3000})
            for (const Values& shares : places) {
                Values breakpoints;
                for (const double share : shares)
                    breakpoints.push_back(1.0 + share * (count - 1));
                worst = std::max(worst, error(count, order, breakpoints));
            }
        EXPECT_LE(worst, accuracy(order, true)) << "order " << order;
        record(order, worst);
    }
}

TEST(Detrend, AgreesWithExtendedPrecisionAtHighOrders)
{
    for (const int order : {6, 8, 10, 12, 15}) {
        double worst = 0.0;
        const int least = leastCount(order);
        for (const int count : {least, least + 1, least + 7, 2 * least, 273, 1000, 10000})
            worst = std::max(worst, error(count, order));
        EXPECT_LE(worst, accuracy(order, false)) << "order " << order;
        record(order, worst);
    }
}

TEST(Detrend, FitsManyColumns)
{
    // 41 and 121 columns: one bend every few samples.
    for (const int bends : {40, 120}) {
        Values breakpoints;
        for (int k = 1; k <= bends; ++k)
            breakpoints.push_back(25.0 * k);
        EXPECT_LE(error(25 * (bends + 1), 1, breakpoints), 1e-12) << bends;
    }
}

TEST(Detrend, GivesTheResidualsOfExactArithmetic)
{
    // Vectors from exact normal equations, solved with 400 digits: tests/data/numeric/make_detrend.py.
    std::ifstream file{QUORDSP_TEST_DATA "/numeric/detrend.csv"};
    ASSERT_TRUE(file);
    int rows = 0;
    Values residuals;
    std::string current;
    for (std::string row; std::getline(file, row); ++rows) {
        std::istringstream fields{row};
        std::string field[5];
        for (std::string& text : field)
            std::getline(fields, text, ',');
        const int order = std::stoi(field[1]);
        const std::string shape = field[0] + ',' + field[1] + ',' + field[2];
        if (shape != current) {
            Values breakpoints;
            std::istringstream list{field[2]};
            for (double breakpoint; list >> breakpoint;)
                breakpoints.push_back(breakpoint);
            residuals = detrended(noise(std::stoi(field[0])), order, breakpoints);
            current = shape;
        }
        // The largest sample is nearly 4.
        const double tolerance = 4.0 * accuracy(order, !field[2].empty());
        EXPECT_NEAR(residuals.at(std::stoul(field[3])), std::stod(field[4]), tolerance) << row;
    }
    EXPECT_EQ(rows, 91);
}

TEST(Detrend, FitsTheFirstColumnsWhenThereAreMoreThanSamples)
{
    // Two samples, two columns, (0,1) both: the second unknown is -x0/0, or stays 0 for x0 = 0.
    for (const int order : {2, 3, 1000, kMost}) {
        EXPECT_THAT(detrended({0.0, 7.0}, order), ElementsAre(0.0, 0.0)) << order;
        for (const double rest : detrended({1.0, 7.0}, order))
            EXPECT_TRUE(std::isnan(rest)) << order;
    }
}

TEST(Detrend, TakesHugeOrdersAndManyBreakpoints)
{
    // Such a power beyond a breakpoint is 0 everywhere, so that the fit is singular.
    const Values breakpoints(100'000, 3.0);
    for (const Values& some : {Values{5.0, 9.0, 12.5}, breakpoints})
        for (const double rest : detrended(noise(20), kMost, some))
            EXPECT_TRUE(std::isnan(rest));
    EXPECT_THAT(detrended({1.0, 2.0, 6.0, 10.0}, 0, breakpoints), ElementsAre(-2.0, -1.0, 3.0, 7.0));
    detrended(noise(20), 1, breakpoints);
}

} // namespace
} // namespace quordsp
