#include "timestamp.h"

#include <gtest/gtest.h>

namespace quordsp::cli {
namespace {

// date -u -d '2026-05-26 09:04:27' +%s
TEST(Timestamp, CountsSecondsSince1970)
{
    const auto stamp = parseTimestamp("2026-05-26 09:04:27.367");
    ASSERT_TRUE(stamp);
    EXPECT_EQ(stamp->second, 1779786267);
    EXPECT_EQ(stamp->fraction, 0.367);
}

TEST(Timestamp, IsReadInTheWaysThatLogsWriteIt)
{
    for (const char* const text :
         {"2026-05-26T09:04:27", "2026/05/26 09:04:27", "2026-05-26 09:04:27.0", "2026-05-26 09:04:27,000",
          "2026-05-26T09:04:27Z", "2026-05-26T11:04:27+02", "2026-05-26T11:04:27+02:00", "2026-05-26T05:34:27-0330"})
        EXPECT_EQ(parseTimestamp(text).value_or(Timestamp{0, 0}).second, 1779786267) << text;
    EXPECT_EQ(parseTimestamp("2026-05-26 09:04").value().second, 1779786240);
}

TEST(Timestamp, IsNoOtherText)
{
    for (const char* const text :
         {"", "9.28", "2026", "2026-05-26", "09:04:27", "2026-05-26 09", "2026-05-26 9:04:27", "2026-05-26 09:04:27x",
          "2026-05-26 09:04:27.", "2026-05-26 09:04:27+", "2026-02-30 09:04:27", "2026-13-01 09:04:27",
          "2026-00-01 09:04:27", "2026-05-26 24:04:27", "2026-05-26 09:60:27", "2026-05-26  09:04:27",
          "-026-05-26 09:04:27", "2026-05-26 09:04:27+2"})
        EXPECT_FALSE(parseTimestamp(text)) << text;
}

TEST(SecondsBetween, HasTheDecimalsOfTheText)
{
    const auto stamp = [](const char* text) { return parseTimestamp(text).value(); };
    EXPECT_EQ(secondsBetween(stamp("2026-05-26 09:04:27.367"), stamp("2026-05-26 09:04:28.398")), 1.031);
    EXPECT_EQ(secondsBetween(stamp("2026-02-28 23:59:59.5"), stamp("2026-03-01 00:00:00")), 0.5);
    EXPECT_EQ(secondsBetween(stamp("2026-01-01 00:00:01"), stamp("2026-01-01 00:00:00.25")), -0.75);
}

} // namespace
} // namespace quordsp::cli
