// The Householder reflector, the factorisation in portions, and the solution of the triangle.
#include "numeric/qr.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <xmmintrin.h>

#include "cpu/instruction_set.h"
#include "numeric/qr_kernel.h"
#include "numeric/signals.h"
#include "reference/householder.h"
#include "support/integer_signal.h"

namespace quordsp {
namespace {

using signals::bits;
using signals::kInfinity;
using ::testing::ElementsAre;
using Values = std::vector<double>;

constexpr double kTiny = std::numeric_limits<double>::denorm_min();

struct Reflection {
    double beta;
    double tau;
    Values v;
};

Reflection reflection(double alpha, Values x)
{
    const Reflector reflector = makeReflector(alpha, x.data(), static_cast<int>(x.size()));
    for (double& element : x)
        element *= reflector.scale;
    return {alpha, reflector.tau, x};
}

// One column and a right-hand side (0,1) as the factorisation reflects them: the heads of both, beta and -tau v.
Values factored(double alpha, double x)
{
    Values columns{alpha, x, 0.0, 1.0};
    Values products(2);
    factor({columns.data(), 2, 2}, 1, 2, products.data());
    return {columns[0], columns[2]};
}

TEST(Reflector, IsTheOneOfTheTextbook)
{
    // By hand: |(3,4)| = 5, beta = -5, tau = (-5-3)/-5, v = 4/(3+5).
    const Reflection positive = reflection(3.0, {4.0});
    EXPECT_DOUBLE_EQ(positive.beta, -5.0);
    EXPECT_DOUBLE_EQ(positive.tau, 1.6);
    EXPECT_DOUBLE_EQ(positive.v[0], 0.5);
    const Reflection negative = reflection(-3.0, {4.0});
    EXPECT_DOUBLE_EQ(negative.beta, 5.0);
    EXPECT_DOUBLE_EQ(negative.tau, 1.6);
    EXPECT_DOUBLE_EQ(negative.v[0], -0.5);
    EXPECT_DOUBLE_EQ(reflection(2.0, {3.0, 6.0, 0.0}).beta, -7.0);
}

TEST(Reflector, TurnsZeroOfEitherSignNegative)
{
    for (const double zero : {0.0, -0.0}) {
        const Reflection made = reflection(zero, {4.0});
        EXPECT_EQ(made.beta, -4.0);
        EXPECT_EQ(made.tau, 1.0);
        EXPECT_THAT(made.v, ElementsAre(1.0));
        EXPECT_EQ(factored(zero, 4.0)[0], -4.0);
    }
}

TEST(Reflector, LeavesAColumnOfZerosAlone)
{
    for (const double alpha : {3.0, -3.0, 0.0, kInfinity}) {
        const Reflection made = reflection(alpha, {0.0, -0.0});
        EXPECT_EQ(made.beta, alpha);
        EXPECT_EQ(made.tau, 0.0);
        EXPECT_EQ(factored(alpha, 0.0), (Values{alpha, 0.0}));
    }
}

TEST(Reflector, IsTheIdentityForTheLastRow)
{
    Values columns{-3.0, 2.0};
    Values products(2);
    factor({columns.data(), 1, 2}, 1, 1, products.data());
    EXPECT_THAT(columns, ElementsAre(-3.0, 2.0));
}

TEST(Reflector, KeepsItsShapeForElementsOfAnySize)
{
    // 1e-290 and below are enlarged on the way.
    for (const double size : {1e-307, 1e-300, 1e-293, 1e-290, 1e-160, 1e-60, 1e-45, 1.0, 1e4, 1e6, 1e160, 1e300}) {
        const Reflection made = reflection(3.0 * size, {4.0 * size});
        EXPECT_NEAR(made.beta / size, -5.0, 1e-14) << size;
        EXPECT_NEAR(made.tau, 1.6, 1e-15) << size;
        EXPECT_NEAR(made.v[0], 0.5, 1e-15) << size;
        EXPECT_NEAR(factored(3.0 * size, 4.0 * size)[0] / size, -5.0, 1e-14) << size;
        EXPECT_NEAR(factored(3.0 * size, 4.0 * size)[1], -0.8, 1e-15) << size;
    }
}

TEST(Reflector, IsMadeOfTheSmallestNumber)
{
    const Reflection made = reflection(0.0, {kTiny});
    EXPECT_EQ(made.beta, -kTiny);
    EXPECT_EQ(made.tau, 1.0);
    EXPECT_THAT(made.v, ElementsAre(1.0));
}

TEST(Reflector, IsMadeWhateverTheProcessorFlushesToZero)
{
    constexpr unsigned kResults = 0x8000;
    constexpr unsigned kOperands = 0x0040;
    const unsigned before = _mm_getcsr();
    for (const unsigned flushed : {kResults, kOperands, kResults | kOperands})
        for (const double alpha : {0.0, kTiny, 1.0})
            for (const int zeros : {0, 1, 2})
                for (const int tiny : {1, 2}) {
                    Values columns(static_cast<std::size_t>(1 + zeros), 0.0);
                    columns[0] = alpha;
                    columns.insert(columns.end(), static_cast<std::size_t>(tiny), kTiny);
                    const int rows = static_cast<int>(columns.size());
                    columns.resize(2 * columns.size(), 1.0);
                    Values products(2);
                    _mm_setcsr(before | flushed);
                    factor({columns.data(), rows, 2}, 1, rows, products.data());
                    _mm_setcsr(before);
                    EXPECT_NEAR(std::abs(columns[0]), alpha, 1e-300) << flushed << ", " << rows << " rows";
                    EXPECT_LE(std::abs(columns[static_cast<std::size_t>(rows)]), 2.0) << flushed << ", " << rows;
                }
}

TEST(Reflector, SpreadsNaN)
{
    for (const auto& [alpha, x] : {std::pair{std::nan(""), 1.0}, {1.0, std::nan("")}}) {
        const Reflection made = reflection(alpha, {x});
        EXPECT_TRUE(std::isnan(made.beta));
        EXPECT_TRUE(std::isnan(made.tau));
        EXPECT_TRUE(std::isnan(factored(alpha, x)[0]));
    }
}

// A matrix without structure, of as many columns and a right-hand side.
struct Sample {
    Values data;
    int rows;
    int pivots;
    Values products = Values(static_cast<std::size_t>(pivots + 1));

    Matrix matrix() { return {data.data(), rows, pivots + 1}; }
};

Sample noise(int rows, int pivots, double size)
{
    return {.data = scaled(signals::Noise{}.next(rows * (pivots + 1)), size / 4.0), .rows = rows, .pivots = pivots};
}

Values triangle(const Sample& sample)
{
    Values rows;
    for (int j = 0; j <= sample.pivots; ++j)
        for (int i = 0; i <= std::min(j, sample.pivots - 1); ++i)
            rows.push_back(sample.data[static_cast<std::size_t>(j * sample.rows + i)]);
    return rows;
}

// The triangle in extended precision.
Values referenceTriangle(const Sample& sample)
{
    std::vector<reference::Column> columns;
    for (int j = 0; j <= sample.pivots; ++j)
        columns.emplace_back(sample.data.begin() + j * sample.rows, sample.data.begin() + (j + 1) * sample.rows);
    reference::Column right = columns.back();
    columns.pop_back();
    for (std::size_t i = 0; i < columns.size(); ++i)
        reference::eliminate(columns, i, right);
    columns.push_back(right);
    Values rows;
    for (int j = 0; j <= sample.pivots; ++j)
        for (int i = 0; i <= std::min(j, sample.pivots - 1); ++i)
            rows.push_back(static_cast<double>(columns[static_cast<std::size_t>(j)][static_cast<std::size_t>(i)]));
    return rows;
}

TEST(Factor, AgreesWithExtendedPrecisionForAnyNumberOfColumns)
{
    for (const double size : {1.0, 1e-200, 1e200})
        for (int pivots = 1; pivots <= 20; ++pivots)
            for (const int rows : {pivots + 1, 2 * pivots + 7, 100}) {
                Sample sample = noise(rows, pivots, size);
                const Values expected = referenceTriangle(sample);
                factor(sample.matrix(), pivots, rows, sample.products.data());
                const Values got = triangle(sample);
                for (std::size_t i = 0; i < expected.size(); ++i)
                    ASSERT_NEAR(got[i] / size, expected[i] / size, 1e-13) << rows << " x " << pivots << ", " << size;
            }
}

TEST(Factor, TakesFurtherRowsIntoTheTriangle)
{
    for (const double size : {1.0, 1e-200})
        for (const int pivots : {1, 2, 5, 6, 7, 13, 20}) {
            Sample sample = noise(100, pivots, size);
            const Values expected = referenceTriangle(sample);
            factor(sample.matrix(), pivots, 30, sample.products.data());
            absorb(sample.matrix(), pivots, 30, 37, sample.products.data());
            absorb(sample.matrix(), pivots, 37, 37, sample.products.data());
            absorb(sample.matrix(), pivots, 37, 38, sample.products.data());
            absorb(sample.matrix(), pivots, 38, 100, sample.products.data());
            const Values got = triangle(sample);
            // The sign of a row depends on the portions.
            for (std::size_t i = 0; i < expected.size(); ++i)
                ASSERT_NEAR(std::abs(got[i]) / size, std::abs(expected[i]) / size, 1e-13) << pivots << ", " << size;
        }
}

TEST(Factor, GivesTheSameBitsOnEveryInstructionSet)
{
    const auto factoredBits = [](InstructionSet set, int pivots, double size) {
        Sample sample = noise(100, pivots, size);
        Versions<eliminateKernel>::of(set)(sample.matrix(), pivots, 1, 41, 1, sample.products.data());
        Versions<eliminateKernel>::of(set)(sample.matrix(), pivots, 41, 100, 0, sample.products.data());
        return bits(triangle(sample));
    };
    if (bestInstructionSet() == InstructionSet::Baseline)
        GTEST_SKIP() << "this machine has only one";
    for (int set = 1; set <= static_cast<int>(bestInstructionSet()); ++set)
        for (const double size : {1.0, 1e-200})
            for (int pivots = 1; pivots <= 20; ++pivots)
                ASSERT_EQ(factoredBits(static_cast<InstructionSet>(set), pivots, size),
                          factoredBits(InstructionSet::Baseline, pivots, size))
                    << "set " << set << ", " << pivots << " pivots, " << size;
}

Values solution(Values columns, int unknowns)
{
    const Matrix matrix{columns.data(), unknowns, unknowns + 1};
    solveTriangle(matrix, unknowns);
    return {matrix.column(unknowns), matrix.column(unknowns) + unknowns};
}

TEST(SolveTriangle, SubstitutesBackwards)
{
    // By hand: 2x + 3y + z = 11, 4y + 2z = 14, 5z = 15.
    EXPECT_THAT(solution({2.0, 0.0, 0.0, 3.0, 4.0, 0.0, 1.0, 2.0, 5.0, 11.0, 14.0, 15.0}, 3),
                ElementsAre(1.0, 2.0, 3.0));
}

TEST(SolveTriangle, SkipsAZeroEvenAboveAZeroOnTheDiagonal)
{
    EXPECT_THAT(solution({2.0, 0.0, 3.0, 0.0, 8.0, 0.0}, 2), ElementsAre(4.0, 0.0));
}

TEST(SolveTriangle, DividesByAZeroOnTheDiagonal)
{
    EXPECT_THAT(solution({2.0, 0.0, 3.0, 0.0, 8.0, 1.0}, 2), ElementsAre(-kInfinity, kInfinity));
}

} // namespace
} // namespace quordsp
