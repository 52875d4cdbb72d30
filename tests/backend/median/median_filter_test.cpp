// The median filter.
#include "data/backend/filtering_vectors.inc"
#include "nianlys.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>

namespace quordsp::test {
namespace {

using backend::Status;
using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsNan;
using testing::NanSensitiveDoubleEq;
using testing::Pointwise;
using Array = std::vector<double>;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kLargest = std::numeric_limits<double>::max();
constexpr std::int64_t kManySamples = std::numeric_limits<std::int64_t>::max();

// In place.
Array filtered(Array x, std::int64_t left, std::int64_t right)
{
    EXPECT_EQ(backend::AALFunc407(x.data(), static_cast<std::int64_t>(x.size()), left, right, x.data()),
              Status::Success);
    return x;
}

// Every window sorted; those with a NaN have none.
double medianOf(Array window)
{
    if (std::any_of(window.begin(), window.end(), [](double v) { return std::isnan(v); }))
        return std::numeric_limits<double>::quiet_NaN();
    std::sort(window.begin(), window.end());
    const std::size_t half = window.size() / 2;
    return window.size() % 2 > 0 ? window[half] : std::midpoint(window[half - 1], window[half]);
}

Array byDefinition(const Array& x, std::size_t left, std::size_t right)
{
    Array padded(left + x.size() + right);
    std::copy(x.begin(), x.end(), padded.begin() + static_cast<std::ptrdiff_t>(left));
    Array y;
    for (auto begin = padded.cbegin(); y.size() < x.size(); ++begin)
        y.push_back(medianOf({begin, begin + static_cast<std::ptrdiff_t>(left + 1 + right)}));
    return y;
}

void expectTheDefinition(const Array& x, std::size_t left, std::size_t right)
{
    EXPECT_THAT(filtered(x, static_cast<std::int64_t>(left), static_cast<std::int64_t>(right)),
                Pointwise(NanSensitiveDoubleEq(), byDefinition(x, left, right)))
        << x.size() << ' ' << left << ' ' << right;
}

// Samples of four kinds: with many ties, with none, with infinities, with NaN.
Array samples(std::minstd_rand& random, std::size_t n, int kind)
{
    Array x(n);
    for (double& value : x) {
        const auto number = static_cast<double>(random());
        const auto tied = static_cast<double>(random() % 7) - 3;
        value = kind == 0 ? tied : number / 1e9 - 1;
        if (kind > 1 && random() % 8 == 0)
            value = kind == 2 ? tied / 0.0 : std::numeric_limits<double>::quiet_NaN();
    }
    for (double& value : x)
        if (kind == 2 && std::isnan(value))
            value = -0.0;
    return x;
}

TEST(MedianFilter, AgreesWithSciPyAndNumPy)
{
    for (const auto& [left, right, y] : vectors::kMedians)
        EXPECT_EQ(filtered(vectors::kMedianSignal, left, right), y) << left << ' ' << right;
}

TEST(MedianFilter, TakesSamplesOutsideTheSignalAsZeros)
{
    EXPECT_THAT(filtered({1, 2, 3, 4}, 1, 1), ElementsAre(1, 2, 3, 3));
    EXPECT_THAT(filtered({-1, -2, -3, -4}, 2, 0), ElementsAre(0, -1, -2, -3));
    EXPECT_THAT(filtered({5}, 1, 0), ElementsAre(2.5));
}

TEST(MedianFilter, TakesTheMeanOfTheMiddleTwoOfAnEvenNumber)
{
    EXPECT_THAT(filtered({1, 2, 4, 8}, 1, 0), ElementsAre(0.5, 1.5, 3, 6));
    EXPECT_THAT(filtered({4, 1, 8, 2, 16, 32}, 1, 2), ElementsAre(2.5, 3, 5, 12, 9, 8));
    EXPECT_THAT(filtered({kLargest, kLargest, kInfinity, kInfinity, -kInfinity}, 1, 0),
                ElementsAre(kLargest / 2, kLargest, kInfinity, kInfinity, IsNan()));
    EXPECT_THAT(filtered({5e-324, 5e-324, 15e-324}, 1, 0), ElementsAre(0, 5e-324, 10e-324));
}

TEST(MedianFilter, TakesANegativeRightRankForTheLeftRank)
{
    for (std::int64_t right : {std::int64_t{-1}, std::int64_t{-7}, -kManySamples - 1})
        EXPECT_EQ(filtered(vectors::kMedianSignal, 3, right), filtered(vectors::kMedianSignal, 3, 3));
}

TEST(MedianFilter, FollowsItsDefinitionForShortWindows)
{
    std::minstd_rand random;
    for (std::size_t window = 1; window <= 17; ++window)
        for (std::size_t left = 0; left < window; ++left)
            for (std::size_t n : {window - left, std::size_t{20}, std::size_t{70}})
                expectTheDefinition(samples(random, n, static_cast<int>(random() % 4)), left, window - 1 - left);
}

TEST(MedianFilter, FollowsItsDefinitionForLongWindows)
{
    std::minstd_rand random;
    for (int kind = 0; kind < 4; ++kind)
        for (std::size_t window : {13u, 64u, 65u, 200u, 601u})
            for (std::size_t left : {std::size_t{0}, window / 3, window - 1})
                expectTheDefinition(samples(random, 900, kind), left, window - 1 - left);
}

TEST(MedianFilter, FollowsItsDefinitionOverManyBlocks)
{
    std::minstd_rand random;
    for (std::size_t left : {1u, 4u, 8u, 30u})
        expectTheDefinition(samples(random, 5000, 1), left, left + left % 2);
}

// Numbers that agree in all leading bits, beside one that is far off.
TEST(MedianFilter, TellsNeighbouringNumbersApart)
{
    Array x(700);
    std::minstd_rand random;
    for (double& value : x)
        value = 1 + static_cast<double>(random() % 1000) * std::numeric_limits<double>::epsilon();
    x[100] = 1e300;
    expectTheDefinition(x, 25, 25);
    expectTheDefinition(x, 100, 99);
}

TEST(MedianFilter, GivesSortedDataBackButForTheEnds)
{
    Array rising(3000);
    std::iota(rising.begin(), rising.end(), 1.0);
    for (const Array& x : {rising, Array{rising.rbegin(), rising.rend()}}) {
        const Array y = filtered(x, 50, 50);
        EXPECT_TRUE(std::equal(x.begin() + 50, x.end() - 50, y.begin() + 50));
    }
}

TEST(MedianFilter, GivesNaNForEveryWindowThatHoldsOne)
{
    for (std::int64_t rank : {1, 8}) {
        Array x(40, 1.0);
        x[20] = std::numeric_limits<double>::quiet_NaN();
        x[21] = -x[20];
        const Array y = filtered(x, rank, rank);
        for (std::int64_t i = 12; i < 32; ++i)
            EXPECT_EQ(std::isnan(y[static_cast<std::size_t>(i)]), i >= 20 - rank && i <= 21 + rank) << i;
    }
}

TEST(MedianFilter, AcceptsAnyLeftRank)
{
    for (std::int64_t left : {std::int64_t{4}, std::int64_t{5}, std::int64_t{6}, std::int64_t{7}})
        expectTheDefinition({3, 1, 2}, static_cast<std::size_t>(left), 2);
    for (std::int64_t left : {std::int64_t{1000}, kManySamples})
        EXPECT_THAT(filtered({3, 1, 2}, left, 1), Each(0));
    EXPECT_THAT(filtered({3, 1, std::numeric_limits<double>::quiet_NaN()}, kManySamples, 1),
                ElementsAre(0, IsNan(), IsNan()));
}

// From twice the length of the signal on, the zeros around it are more than half of every window.
TEST(MedianFilter, FollowsItsDefinitionForWindowsLongerThanTheSignal)
{
    std::minstd_rand random;
    for (std::size_t n = 1; n <= 20; ++n)
        for (std::size_t left = 0; left <= 3 * n; ++left)
            for (std::size_t right : {std::size_t{0}, n / 3, n - 1})
                expectTheDefinition(samples(random, n, static_cast<int>(random() % 4)), left, right);
}

// Numbers that no memory holds the ranks of.
TEST(MedianFilter, NeedsNoMemoryForWindowsOfZeros)
{
    const Array x{3, 1, 2};
    for (std::int64_t left : {kManySamples - 3, kManySamples})
        for (std::int64_t right : {0, 2})
            EXPECT_THAT(filtered(x, left, right), Each(0));
}

TEST(MedianFilter, LeavesTheInputAloneUnlessItIsTheOutput)
{
    for (std::int64_t rank : {2, 20}) {
        const Array x = vectors::kMedianSignal;
        Array input = x, y(x.size());
        ASSERT_EQ(backend::AALFunc407(input.data(), static_cast<std::int64_t>(x.size()), rank, -1, y.data()),
                  Status::Success);
        EXPECT_EQ(input, x);
        EXPECT_EQ(y, filtered(x, rank, rank));
    }
}

TEST(MedianFilter, ReportsTheFirstOfItsBadArgumentsAndWritesNothing)
{
    const double x[] = {1, 2};
    double y[] = {7, 7};
    EXPECT_EQ(backend::AALFunc407(nullptr, 0, -1, 5, nullptr), Status::CountNotPositive);
    EXPECT_EQ(backend::AALFunc407(x, -kManySamples, 1, 1, y), Status::CountNotPositive);
    EXPECT_EQ(backend::AALFunc407(nullptr, 2, -1, 1, y), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc407(x, 2, -1, 1, nullptr), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc407(x, 2, -1, 1, y), Status::Rank);
    EXPECT_EQ(backend::AALFunc407(x, 2, -1, -1, y), Status::Rank);
    EXPECT_EQ(backend::AALFunc407(x, 2, 0, 2, y), Status::Rank);
    EXPECT_EQ(backend::AALFunc407(x, 2, 0, kManySamples, y), Status::Rank);
    EXPECT_EQ(backend::AALFunc407(x, 2, 2, -1, y), Status::Rank) << "the right rank is that of the left, then";
    EXPECT_THAT(y, Each(7));
}

} // namespace
} // namespace quordsp::test
