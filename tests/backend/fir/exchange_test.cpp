// How many exchanges a design takes, and what they are made of. The table of docs/accuracy.md is what this test prints,
// for all rows when the environment has QUORDSP_ALL_ROWS.
#include "backend/support/equiripple_table.h"
#include "cpu/instruction_set.h"
#include "extended_precision.h"
#include "fir/barycentric_kernel.h"
#include "fir/equiripple.h"
#include "fir/quick_errors.h"
#include "fir/reference.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace quordsp::test {
namespace {

using namespace backend;

Approximation approximationOf(const EquirippleOrder& order)
{
    Approximation result{{static_cast<std::size_t>(order.taps), order.type != kMultiBand}, {}};
    for (const Band& band : order.bands)
        result.bands.push_back({band.lowerFrequency, band.upperFrequency, band.amplitude, band.weight,
                                order.type == kDifferentiator && band.amplitude != 0});
    return result;
}

EquirippleFilter solve(const EquirippleOrder& order)
{
    return inExtendedPrecision([&] { return equiripple(approximationOf(order)); });
}

int mostExchanges(int taps)
{
    return static_cast<int>(7 * (2 + std::log2(taps)));
}

TEST(Exchange, SettlesInFewStepsASize)
{
    std::printf("| bands | symmetry | taps | exchanges | ripple | true ripple |\n|---|---|---|---|---|---|\n");
    for (const EquirippleRow& row : kEquirippleRows)
        for (const int taps : row.taps) {
            if (taps > 101 && !std::getenv("QUORDSP_ALL_ROWS"))
                continue;
            const EquirippleOrder order = orderOf(row, taps);
            const EquirippleFilter filter = solve(order);
            const double measured = largest(extrema(order, filter.h, 100));
            std::printf("| %s | %s, %s | %d | %d | %.9g | %.9g |\n", row.what,
                        row.type == kMultiBand ? "symmetric" : "antisymmetric", taps % 2 ? "odd" : "even", taps,
                        filter.exchanges, filter.ripple, measured);
            EXPECT_LE(filter.exchanges, mostExchanges(taps)) << row.what << ", " << taps << " taps";
            EXPECT_NEAR(measured, filter.ripple, 1e-5 * filter.ripple) << row.what << ", " << taps << " taps";
        }
}

TEST(Exchange, SettlesInFewStepsForLongFiltersToo)
{
    for (const EquirippleRow& row : {kEquirippleRows[0], kEquirippleRows[3]})
        EXPECT_LE(solve(orderOf(row, 2048)).exchanges, mostExchanges(2048)) << row.what;
}

TEST(Exchange, EndsWithTheEffortThatIsAllowed)
{
    const EquirippleOrder order{101, kMultiBand, lowPass(0.03)};
    const auto effortOf = [&](Effort effort) {
        inExtendedPrecision([&] { equiripple(approximationOf(order), effort); });
        return effort.spent();
    };
    Effort whole;
    const Real spent = effortOf(whole);
    EXPECT_GT(spent, 0);
    whole.spend(Effort::kMost - spent);
    EXPECT_EQ(effortOf(whole), Effort::kMost);
    whole.spend(1);
    EXPECT_THROW(effortOf(whole), Failure);
}

// The errors of interpolants in double precision and in extended precision, over and over the bands.
TEST(Exchange, SeesTheSameInDoublePrecision)
{
    for (const EquirippleRow& row : kEquirippleRows)
        inExtendedPrecision([&] {
            const Approximation approximation = approximationOf(orderOf(row, row.type == kMultiBand ? 60 : 59));
            const Reference reference = evenReference(approximation, approximation.filter.size() + 1);
            const auto interpolant = Interpolant::through(approximation, reference);
            ASSERT_TRUE(interpolant);
            const QuickErrors quick{*interpolant, approximation};
            ASSERT_TRUE(quick.areInRange());
            for (std::size_t band = 0; band < approximation.bands.size(); ++band) {
                const ApproximationBand limits = approximation.bands[band];
                std::vector<double> f(1001), errors(f.size());
                for (std::size_t i = 0; i < f.size(); ++i)
                    f[i] = static_cast<double>(limits.lower + limits.width() * static_cast<Real>(i) / 1000);
                quick.evaluate(band, f, errors.data());
                for (std::size_t i = 0; i < f.size(); ++i) {
                    const Real exact = interpolant->error({f[i], band});
                    EXPECT_NEAR(errors[i], static_cast<double>(exact),
                                static_cast<double>(1e-11L * (1 + std::abs(exact))))
                        << row.what << ", " << f[i];
                }
            }
        });
}

TEST(Exchange, GivesTheSameBitsWithEveryInstructionSet)
{
    constexpr std::size_t kNodes = 12, kCount = 64;
    double x[kNodes], weights[kNodes], weightedValues[kNodes], frequencies[kCount];
    for (std::size_t i = 0; i < kNodes; ++i) {
        x[i] = std::cos(0.25 * static_cast<double>(i));
        weights[i] = i % 2 == 0 ? 1 / (1 + static_cast<double>(i)) : -0.7;
        weightedValues[i] = weights[i] * std::sin(static_cast<double>(i));
    }
    for (std::size_t i = 0; i < kCount; ++i)
        frequencies[i] = static_cast<double>(i) / 126;
    const auto resultsBy = [&](InstructionSet set) {
        std::vector<double> results(3 * kCount);
        Versions<interpolate>::of(set)({kNodes, x, weights, weightedValues}, frequencies, kCount, results.data(),
                                       results.data() + kCount, results.data() + 2 * kCount);
        return results;
    };
    const std::vector<double> baseline = resultsBy(InstructionSet::Baseline);
    for (std::size_t i = 0; i < kCount; ++i) {
        EXPECT_NEAR(baseline[kCount + i], std::cos(std::numbers::pi * frequencies[i]), 3e-16);
        EXPECT_NEAR(baseline[2 * kCount + i], std::sin(std::numbers::pi * frequencies[i]), 3e-16);
    }
    for (const InstructionSet set : {InstructionSet::Avx2, InstructionSet::Avx512})
        if (bestInstructionSet() >= set)
            EXPECT_EQ(resultsBy(set), baseline);
}

} // namespace
} // namespace quordsp::test
