// Removal of the least-squares line, to the last bit.
#include <bit>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <limits>
#include <sstream>
#include <string>

#include <gmock/gmock.h>

#include "QuorDSP_DAQ.h"
#include "numeric/signals.h"
#include "reference/linear_regression.h"

namespace quordsp {
namespace {

using signals::bits;
using signals::largest;
using signals::Samples;
using ::testing::Each;
using ::testing::ElementsAre;

Samples withoutLine(Samples data)
{
    linear_regression(data.data(), static_cast<int>(data.size()));
    return data;
}

Samples straightLine(int count, double offset, double slope)
{
    Samples line;
    for (int i = 0; i < count; ++i)
        line.push_back(offset + slope * i);
    return line;
}

// What remains of a line, against its largest sample.
constexpr double kAccuracy = 1e-13;

TEST(LinearRegression, TakesAwayAStraightLine)
{
    EXPECT_THAT(withoutLine({3.0, 7.0}), ElementsAre(0.0, 0.0));
    for (const int count : {2, 3, 10, 1000, 10000, 46341})
        for (const double slope : {0.25, -1e-3, 7e5}) {
            const Samples line = straightLine(count, 1.0, slope);
            EXPECT_LE(largest(withoutLine(line)), kAccuracy * largest(line)) << count << " samples, slope " << slope;
        }
}

TEST(LinearRegression, TakesAwayAConstant)
{
    EXPECT_THAT(withoutLine(Samples(1000, 4.5)), Each(0.0));
}

TEST(LinearRegression, LeavesTheKnownResiduals)
{
    // By hand: the line through (0,0), (1,3), (2,0) is y = 1; through (0,1), (1,0), (2,0), (3,1) it is y = 1/2.
    EXPECT_THAT(withoutLine({0.0, 3.0, 0.0}), ElementsAre(-1.0, 2.0, -1.0));
    EXPECT_THAT(withoutLine({1.0, 0.0, 0.0, 1.0}), ElementsAre(0.5, -0.5, -0.5, 0.5));
}

TEST(LinearRegression, GivesTheBitsOfAnotherImplementation)
{
    // Vectors from Python's doubles: tests/data/numeric/make_linear_regression.py.
    std::ifstream file{QUORDSP_TEST_DATA "/numeric/linear_regression.csv"};
    ASSERT_TRUE(file);
    int rows = 0;
    Samples residuals;
    std::string current;
    for (std::string row; std::getline(file, row); ++rows) {
        std::istringstream fields{row};
        std::string field[6];
        for (std::string& text : field)
            std::getline(fields, text, ',');
        const auto number = [&](int i) { return std::strtod(field[i].c_str(), nullptr); };
        const std::string signal = row.substr(0, row.find(',' + field[4] + ','));
        if (signal != current) {
            residuals.clear();
            for (int i = 0; i < std::stoi(field[0]); ++i)
                residuals.push_back(number(1) + number(2) * i + number(3) * double(std::int64_t{i} * i * 7919 % 1000));
            residuals = withoutLine(residuals);
            current = signal;
        }
        const double residual = residuals.at(std::stoul(field[4]));
        EXPECT_EQ(std::bit_cast<std::uint64_t>(residual), std::bit_cast<std::uint64_t>(number(5))) << row;
    }
    EXPECT_EQ(rows, 46);
}

TEST(LinearRegression, GivesTheBitsOfThePlainLoops)
{
    signals::Noise noise;
    for (const int count : {2, 3, 4, 5, 7, 8, 9, 63, 64, 65, 1000, 46340, 46341, 46342, 65537, 1000000}) {
        const Samples data = noise.next(count);
        EXPECT_EQ(bits(withoutLine(data)), bits(reference::withoutLine(data))) << count;
    }
}

TEST(LinearRegression, SquaresIndicesIn32BitsAndSoBendsLongBlocks)
{
    // Index 46341 is the first whose square does not fit: a line of 46341 samples goes, a longer one stays.
    const Samples longest = straightLine(46341, 3.0, 0.5);
    EXPECT_LE(largest(withoutLine(longest)), kAccuracy * largest(longest));
    EXPECT_GT(largest(withoutLine(straightLine(50000, 3.0, 0.5))), 1000.0);
}

TEST(LinearRegression, MakesASingleSampleNaN)
{
    EXPECT_TRUE(std::isnan(withoutLine({5.0})[0]));
}

TEST(LinearRegression, LeavesTheBufferAloneWithoutSamples)
{
    double sample = 5.0;
    linear_regression(&sample, 0);
    linear_regression(&sample, -1);
    linear_regression(&sample, std::numeric_limits<int>::min());
    linear_regression(nullptr, 0);
    EXPECT_EQ(sample, 5.0);
}

TEST(LinearRegression, SpreadsNaNAndInfinity)
{
    for (const double bad : {std::nan(""), HUGE_VAL, -HUGE_VAL})
        for (const double residual : withoutLine({1.0, bad, 2.0}))
            EXPECT_TRUE(std::isnan(residual));
}

} // namespace
} // namespace quordsp
