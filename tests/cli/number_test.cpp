#include "number.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include <gtest/gtest.h>

namespace quordsp::cli {
namespace {

TEST(Number, IsWrittenAsShortAsItReadsBack)
{
    EXPECT_EQ(shortest(0.1), "0.1");
    EXPECT_EQ(shortest(100), "100");
    EXPECT_EQ(shortest(1.0 / 3), "0.3333333333333333");
    EXPECT_EQ(shortest(-0.0), "-0");
}

TEST(Number, ReadsBackAsTheSameDouble)
{
    std::mt19937_64 bits(1);
    for (int i = 0; i < 10000; ++i) {
        const double value = std::bit_cast<double>(bits());
        if (std::isnormal(value))
            EXPECT_EQ(parseNumber(shortest(value)), value);
    }
}

TEST(Number, IsWrittenAtTheEndsOfTheRangeOfDoubles)
{
    for (const double value : {std::numeric_limits<double>::max(), std::numeric_limits<double>::min(),
                               -std::numeric_limits<double>::max(), std::numeric_limits<double>::denorm_min()})
        EXPECT_EQ(parseNumber(shortest(value)), value);
}

TEST(Number, IsRoundedToSignificantDigitsForPeople)
{
    EXPECT_EQ(rounded(99.9985171, 4), "100");
    EXPECT_EQ(rounded(10.13049, 4), "10.13");
    EXPECT_EQ(rounded(5000), "5000");
    EXPECT_EQ(rounded(1234567, 3), "1.23e+06");
}

TEST(Number, IsParsedWhole)
{
    EXPECT_EQ(parseNumber("-1.5e3"), -1500);
    EXPECT_EQ(parseNumber("+2"), 2);
    EXPECT_EQ(parseNumber(".5"), 0.5);
}

TEST(Number, IsNothingElse)
{
    for (const char* const text : {"", "+", "-", "+-1", "--1", "1x", "x", "1 2", "1,5", "nan", "inf", "1e999", "0x10"})
        EXPECT_EQ(parseNumber(text), std::nullopt) << text;
}

TEST(Number, CountsFromOne)
{
    EXPECT_EQ(parseCount("12"), 12u);
    for (const char* const text : {"", "0", "-1", "1.5", "x", "99999999999999999999999"})
        EXPECT_EQ(parseCount(text), std::nullopt) << text;
}

TEST(Number, LooksLikeOneAlsoWhenNoSampleCanBeIt)
{
    for (const char* const text : {"1", "-2.5e3", "+4", "nan", "inf", "-inf", "1e999", "1e-999"})
        EXPECT_TRUE(looksLikeNumber(text)) << text;
    for (const char* const text : {"", "x", "1x", "nano", "info", "12:30", "+"})
        EXPECT_FALSE(looksLikeNumber(text)) << text;
}

TEST(Counted, SaysOneOfAThingInTheSingular)
{
    EXPECT_EQ(counted(0, "sample"), "0 samples");
    EXPECT_EQ(counted(1, "sample"), "1 sample");
    EXPECT_EQ(counted(2, "sample"), "2 samples");
}

} // namespace
} // namespace quordsp::cli
