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

TEST(Ticks, AreNeverMoreThanAskedFor)
{
    for (double high = 1e-6; high < 1e9; high *= 1.37)
        EXPECT_LE(linearTicks({-high / 3, high}, 8).size(), 9u) << high;
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

TEST(Ticks, FindDecadesForARangeWithoutPositiveValues)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_GT(widenToDecades({infinity, -infinity}, 8).low, 0);
}

} // namespace
} // namespace quordsp::cli
