// The alternation theorem, held against the module's designs.
#include "backend/support/equiripple_table.h"

#include <gtest/gtest.h>

namespace quordsp::test {
namespace {

TEST(EquirippleAlternation, HoldsFor3To1001Taps)
{
    for (const EquirippleRow& row : kEquirippleRows)
        for (const int taps : row.taps) {
            const EquirippleOrder order = orderOf(row, taps);
            const auto [status, h, ripple] = design(order);
            ASSERT_EQ(status, Status::Success) << row.what << ", " << taps << " taps";
            const std::vector<double> errors = extrema(order, h, 24);
            EXPECT_NEAR(largest(errors), ripple, 2e-3 * ripple) << row.what << ", " << taps << " taps";
            EXPECT_GE(alternations(errors, 0.99 * ripple), freeCoefficients(order) + 1)
                << row.what << ", " << taps << " taps";
        }
}

} // namespace
} // namespace quordsp::test
