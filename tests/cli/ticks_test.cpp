#include "plot/ticks.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>

namespace quordsp::cli {
namespace {

using testing::ElementsAre;

std::vector<std::string> texts(const std::vector<Tick>& ticks)
{
    std::vector<std::string> all;
    for (const Tick& tick : ticks)
        all.push_back(tick.text + (tick.exponent ? "^" + std::to_string(*tick.exponent) : ""));
    return all;
}

TEST(Ticks, StandAtMultiplesOfOneTwoOrFive)
{
    EXPECT_THAT(texts(linearTicks({0, 10}, 10)), ElementsAre("0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"));
    EXPECT_THAT(texts(linearTicks({0, 7.9998}, 5)), ElementsAre("0", "2", "4", "6"));
    EXPECT_THAT(texts(linearTicks({0, 2500}, 10)), ElementsAre("0", "500", "1000", "1500", "2000", "2500"));
}

TEST(Ticks, HaveTheDecimalsOfTheirStep)
{
    EXPECT_THAT(texts(linearTicks({-0.2, 0.2}, 4)), ElementsAre("-0.2", "-0.1", "0.0", "0.1", "0.2"));
    EXPECT_THAT(texts(linearTicks({0.001, 0.0015}, 5)),
                ElementsAre("0.0010", "0.0011", "0.0012", "0.0013", "0.0014", "0.0015"));
}

TEST(Ticks, ArePulledApartIntoMantissaAndExponentFarFromOne)
{
    EXPECT_THAT(texts(linearTicks({0, 4e6}, 4)), ElementsAre("0", "1^6", "2^6", "3^6", "4^6"));
    EXPECT_THAT(texts(linearTicks({0, 3e-7}, 3)), ElementsAre("0", "1^-7", "2^-7", "3^-7"));
}

TEST(Ticks, AreNeverMoreThanAskedForAndNoneIsMissing)
{
    for (double high = 1e-6; high < 1e9; high *= 1.37) {
        const Range range{-high / 3, high};
        const double step = roundStep(range, 8);
        const auto ticks = linearTicks(range, 8);
        ASSERT_LE(ticks.size(), 9u) << high;
        ASSERT_FALSE(ticks.empty()) << high;
        EXPECT_LT(ticks.front().value - range.low, step) << high;
        EXPECT_LT(range.high - ticks.back().value, step) << high;
        for (std::size_t i = 1; i < ticks.size(); ++i)
            EXPECT_NEAR(ticks[i].value - ticks[i - 1].value, step, 1e-9 * step) << high;
    }
}

TEST(Ticks, WidenARangeToWholeSteps)
{
    const Range range = widenToSteps({-9.7, 10.4}, 8);
    EXPECT_EQ(range.low, -10);
    EXPECT_EQ(range.high, 15);
}

TEST(Ticks, GiveExtentToARangeWithoutAny)
{
    for (const double value : {0.0, 5.0, -3e-9, 1e12}) {
        const Range range = widenToSteps({value, value}, 8);
        EXPECT_LT(range.low, value);
        EXPECT_GT(range.high, value);
    }
}

TEST(Ticks, SurviveARangeThatIsNotFinite)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const Range range = widenToSteps({infinity, -infinity}, 8);
    EXPECT_EQ(range.low, 0);
    EXPECT_EQ(range.high, 1);
}

TEST(Ticks, SurviveARangeThatNoStepDivides)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(roundStep({0, 0}, 8), 1);
    EXPECT_EQ(roundStep({-infinity, infinity}, 8), 1);
}

// From the lowest number to the highest the distance itself is not finite.
TEST(Ticks, DivideTheWidestRange)
{
    constexpr double kMost = std::numeric_limits<double>::max();
    const Range range = widenToSteps({-1.7e308, 1.7e308}, 8);
    EXPECT_EQ(range.low, -kMost);
    EXPECT_EQ(range.high, kMost);
    EXPECT_THAT(texts(linearTicks(range, 8)),
                ElementsAre("-1.5^308", "-1^308", "-0.5^308", "0", "0.5^308", "1^308", "1.5^308"));
}

TEST(Ticks, GiveExtentToTheSmallestNumber)
{
    for (const Range narrow : {Range{5e-324, 5e-324}, Range{0, 5e-324}}) {
        const Range range = widenToSteps(narrow, 8);
        EXPECT_LT(range.low, 0);
        EXPECT_GT(range.high, 5e-324);
    }
}

TEST(Ticks, OfDecadesArePowersOfTen)
{
    EXPECT_THAT(texts(decadeTicks({0.01, 100})), ElementsAre("0.01", "0.1", "1", "10", "100"));
    EXPECT_THAT(texts(decadeTicks({1e-6, 1e-3})), ElementsAre("^-6", "^-5", "^-4", "^-3"));
}

TEST(Ticks, WidenARangeToDecadesButNotTooMany)
{
    EXPECT_DOUBLE_EQ(widenToDecades({0.02, 7}, 8).low, 0.01);
    EXPECT_DOUBLE_EQ(widenToDecades({0.02, 7}, 8).high, 10);
    EXPECT_DOUBLE_EQ(widenToDecades({1e-18, 7}, 8).low, 1e-7);
    EXPECT_DOUBLE_EQ(widenToDecades({10, 10}, 8).low, 1);
}

TEST(Ticks, StayInOrderForDecadesAtTheEndsOfTheNumbers)
{
    for (const double value : {1.7e308, 1e308, 1e-307, 1e-308, 5e-324}) {
        const Range range = widenToDecades({value, value}, 8);
        EXPECT_GT(range.low, 0) << value;
        EXPECT_LT(range.low, range.high) << value;
        EXPECT_FALSE(decadeTicks(range).empty()) << value;
    }
}

TEST(Ticks, FindDecadesForARangeWithoutPositiveValues)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_GT(widenToDecades({infinity, -infinity}, 8).low, 0);
}

} // namespace
} // namespace quordsp::cli
