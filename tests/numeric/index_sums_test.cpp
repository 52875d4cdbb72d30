// The sums over sample indices that the removal of a line takes, beside additions one after the other.
#include <gtest/gtest.h>

#include "numeric/linear_regression.h"
#include "reference/linear_regression.h"

namespace quordsp {
namespace {

// Calls check(count, sums) for each of the ascending counts.
template <class Check>
void withPlainSums(std::initializer_list<int> counts, Check check)
{
    IndexSums sums{};
    int i = 0;
    for (const int count : counts) {
        for (; i < count; ++i) {
            sums.x += i;
            sums.xx += reference::wrappedProduct(i, i);
        }
        check(count, sums);
    }
}

void expectSums(int count, const IndexSums& expected)
{
    EXPECT_EQ(sumIndices(count).x, expected.x) << count;
    EXPECT_EQ(sumIndices(count).xx, expected.xx) << count;
}

TEST(IndexSums, AreNothingWithoutIndices)
{
    for (const int count : {0, -1})
        expectSums(count, {0.0, 0.0});
}

TEST(IndexSums, HaveTheBitsOfPlainAdditions)
{
    withPlainSums({1, 2, 3, 1000, 46340, 46341, 46342, 46343, 65536, 100'000, 1 << 20, (1 << 20) + 1, 5'000'000},
                  expectSums);
}

TEST(IndexSums, HaveTheBitsOfPlainAdditionsWhereTheseBeginToRound)
{
    // The sum of indices passes 2^53 at index 134217728.
    withPlainSums({134'217'728, 134'217'730, 140'000'001}, [](int count, const IndexSums& expected) {
        expectSums(count, expected);
        const double exact = 0.5 * static_cast<double>(count) * (count - 1.0);
        EXPECT_EQ(expected.x != exact, count > 134'217'730) << "nothing rounds, and nothing is tested";
    });
}

} // namespace
} // namespace quordsp
