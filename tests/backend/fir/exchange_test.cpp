// How many exchanges a design takes. The table of docs/accuracy.md is what this test prints, for all rows when the
// environment has QUORDSP_ALL_ROWS.
#include "backend/support/equiripple_table.h"
#include "extended_precision.h"
#include "fir/equiripple.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace quordsp::test {
namespace {

using namespace backend;

EquirippleFilter solve(const EquirippleOrder& order)
{
    return inExtendedPrecision([&] {
        Approximation wanted{{static_cast<std::size_t>(order.taps), order.type != kMultiBand}, {}};
        for (const Band& band : order.bands)
            wanted.bands.push_back({band.lowerFrequency, band.upperFrequency, band.amplitude, band.weight,
                                    order.type == kDifferentiator && band.amplitude != 0});
        return equiripple(wanted);
    });
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
            const double sizes = 2 + std::log2(taps);
            EXPECT_LE(filter.exchanges, 12 * sizes) << row.what << ", " << taps << " taps";
            EXPECT_NEAR(measured, filter.ripple, 1e-5 * filter.ripple) << row.what << ", " << taps << " taps";
        }
}

} // namespace
} // namespace quordsp::test
