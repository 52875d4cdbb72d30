// The columns of a piecewise polynomial trend: which there are, and that all instruction sets compute the same.
#include "numeric/detrend_basis.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

#include <gmock/gmock.h>

#include "cpu/instruction_set.h"
#include "numeric/signals.h"

namespace quordsp {
namespace {

using signals::bits;
using ::testing::ElementsAre;
using Values = std::vector<double>;

// The rows of a basis for as many samples as are asked for, column by column.
Values rows(const Basis& basis, int samples, InstructionSet set = InstructionSet::Baseline)
{
    const int stride = (samples + kLanes - 1) / kLanes * kLanes;
    Values filled(static_cast<std::size_t>(stride * basis.columns));
    const Matrix matrix{filled.data(), stride, basis.columns};
    Versions<fillKernel>::of(set)(basis, 0, matrix, 0, samples);
    Values result;
    for (int j = 0; j < basis.columns; ++j)
        result.insert(result.end(), matrix.column(j), matrix.column(j) + samples);
    return result;
}

TEST(DetrendBasis, HoldsTheHighestPowerFirstAndTheConstantLast)
{
    const double places[] = {0.0, 2.0};
    EXPECT_THAT(rows({places, 2, 0.25, 2, 5}, 5), ElementsAre(0.0, 0.0625, 0.25, 0.5625, 1.0, // squares
                                                              0.0, 0.0, 0.0, 0.0625, 0.25,    //
                                                              0.0, 0.25, 0.5, 0.75, 1.0,      // first powers
                                                              0.0, 0.0, 0.0, 0.25, 0.5,       //
                                                              1.0, 1.0, 1.0, 1.0, 1.0));
}

TEST(DetrendBasis, EndsWithAsManyColumnsAsThereAreSamples)
{
    const double places[] = {0.0, 1.0};
    EXPECT_THAT(rows({places, 2, 0.5, 3, 3}, 3), ElementsAre(0.0, 0.125, 1.0, //
                                                             0.0, 0.0, 0.125, //
                                                             0.0, 0.25, 1.0));
    EXPECT_THAT(rows({places, 100'000, 1.0, 2, 2}, 2), ElementsAre(0.0, 1.0, 0.0, 0.0));
}

TEST(DetrendBasis, TakesTheLargestOrders)
{
    constexpr int kMost = std::numeric_limits<int>::max();
    const double places[] = {0.0};
    EXPECT_THAT(rows({places, 1, 0.5, kMost, 3}, 3), ElementsAre(0.0, 0.0, 1.0, 0.0, 0.0, 1.0, 0.0, 0.0, 1.0));
    const std::int64_t breakpoints = kMost;
    EXPECT_EQ((Basis{places, breakpoints, 0.5, kMost, 3}).powerColumns(), 3);
    EXPECT_FALSE((Basis{places, breakpoints, 0.5, kMost, 3}).hasConstant());
}

TEST(DetrendBasis, HoldsSharesToAUnitInTheLastPlaceForAnySpan)
{
    const double places[] = {0.0};
    for (const int count : {4, 50, 1000, 51200}) {
        const double span = count - 1;
        const Values columns = rows({places, 1, 1.0 / span, 1, 2}, count);
        for (int i = 0; i < count; ++i)
            ASSERT_DOUBLE_EQ(columns[static_cast<std::size_t>(i)], i / span) << "sample " << i << " of " << count;
    }
}

TEST(DetrendBasis, GivesTheSameBitsOnEveryInstructionSet)
{
    if (bestInstructionSet() == InstructionSet::Baseline)
        GTEST_SKIP() << "this machine has only one";
    const double places[] = {0.0, 33.5};
    for (int set = 1; set <= static_cast<int>(bestInstructionSet()); ++set)
        for (const int order : {1, 5, 15, 1'000'000}) {
            const int columns = std::min(100, 2 * order + 1);
            const Basis basis{places, 2, 1.0 / 99.0, order, columns};
            const auto best = static_cast<InstructionSet>(set);
            EXPECT_EQ(bits(rows(basis, 100, best)), bits(rows(basis, 100))) << "set " << set << ", order " << order;
            Values coefficients;
            for (int j = 0; j < columns; ++j)
                coefficients.push_back(1.0 / (j + 1.5));
            Values samples(100, 0.1);
            Values expected = samples;
            Versions<subtractTrendKernel>::of(best)(basis, coefficients.data(), samples.data(), 100);
            Versions<subtractTrendKernel>::of(InstructionSet::Baseline)(basis, coefficients.data(), expected.data(),
                                                                        100);
            EXPECT_EQ(bits(samples), bits(expected)) << "set " << set << ", order " << order;
        }
}

} // namespace
} // namespace quordsp
