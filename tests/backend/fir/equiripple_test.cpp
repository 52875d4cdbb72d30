// Equiripple designs against SciPy, by hand and by the theorem that tells the best of all filters from the others.
#include "backend/support/equiripple.h"

#include "data/backend/equiripple_vectors.inc"

#include <gtest/gtest.h>

#include <cstdlib>

namespace quordsp::test {
namespace {

using backend::Complex;

// SciPy searches on a grid, and so under-reports: what is compared is its largest error beside the grid.
TEST(Equiripple, AgreesWithSciPy)
{
    for (const vectors::Equiripple& row : vectors::kEquiripple) {
        const auto [status, h, ripple] = design({row.taps, row.type, row.bands});
        ASSERT_EQ(status, Status::Success) << row.taps;
        EXPECT_LE(ripple, row.ripple * (1 + 1e-12)) << row.taps;
        EXPECT_GE(ripple, row.ripple * (1 - 2e-4)) << row.taps;
        for (std::size_t k = 0; k < row.h.size(); ++k)
            EXPECT_NEAR(h[k], row.h[k], 2e-3 * row.ripple + 1e-15) << row.taps << " taps, " << k;
    }
}

// With three taps the amplitude is a + b cos w, and the extrema are three of the four edges. For 0..1/6 and 1/3..1/2
// these are cos w = 1, 1/2, -1/2 with the errors d, -d, d, or 1/2, -1/2, -1 by symmetry: a = 1/2, b = 2/3, d = 1/6.
TEST(Equiripple, OfThreeTapsIsAsComputedByHand)
{
    const auto [status, h, ripple] = design({3, kMultiBand, {{1, 0, 1.0 / 6, 1}, {0, 1.0 / 3, 0.5, 1}}});
    EXPECT_EQ(status, Status::Success);
    EXPECT_NEAR(ripple, 1.0 / 6, 1e-15);
    EXPECT_NEAR(h[1], 0.5, 1e-15);
    EXPECT_NEAR(h[0], 1.0 / 3, 1e-15);
}

// 24 taps at 1000 Hz, 0..300 Hz passes, 400..500 Hz stops.
TEST(Equiripple, PassesBelow300HzAndStopsAbove400Hz)
{
    const EquirippleOrder order{24, kMultiBand, {{1, 0, 0.3, 1}, {0, 0.4, 0.5, 1}}};
    const double amplitudes[] = {1, 0}, weights[] = {1, 1}, edges[] = {0, 300, 400, 500};
    std::vector<double> h(24);
    double ripple = -1;
    ASSERT_EQ(backend::AALFunc65(2, amplitudes, weights, 1000, edges, kMultiBand, 24, h.data(), &ripple),
              Status::Success);
    EXPECT_NEAR(ripple, 0.0065263858, 1e-10); // SciPy on a grid of 256 points an extremum: 0.00652656
    EXPECT_NEAR(largest(extrema(order, h, 400)), ripple, 1e-6 * ripple);
}

TEST(Equiripple, IsSymmetricOrAntisymmetricToTheLastBit)
{
    for (const int taps : {3, 4, 24, 25, 128, 201})
        for (const int type : {kMultiBand, kDifferentiator, kHilbert}) {
            const std::vector<double> h = design({taps, type, {{1, 0.05, 0.4, 1}}}).h;
            const double sign = type == kMultiBand ? 1 : -1;
            for (std::size_t k = 0; k < h.size(); ++k)
                EXPECT_EQ(h[k], sign * h[h.size() - 1 - k]) << taps << " taps, type " << type;
            if (type != kMultiBand && taps % 2 != 0)
                EXPECT_EQ(h[h.size() / 2], 0);
        }
}

TEST(Equiripple, HasTheZerosThatItsSymmetryForces)
{
    const EquirippleOrder even{30, kMultiBand, {{1, 0, 0.2, 1}, {0, 0.3, 0.5, 1}}};
    EXPECT_NEAR(static_cast<double>(amplitude(design(even).h, false, 0.5L)), 0, 1e-15);
    const EquirippleOrder odd{31, kHilbert, {{1, 0.05, 0.45, 1}}};
    for (const long double f : {0.0L, 0.5L})
        EXPECT_NEAR(static_cast<double>(amplitude(design(odd).h, true, f)), 0, 1e-14);
}

// A differentiator's output for a ramp is the slope: 2 pi f is what slope 2 pi makes of a frequency f.
TEST(Equiripple, DifferentiatesWithAnErrorInProportionToTheFrequency)
{
    const auto [status, h, ripple] = design({24, kDifferentiator, {{2 * std::numbers::pi, 0, 0.5, 1}}});
    EXPECT_EQ(status, Status::Success);
    double slope = 0;
    for (std::size_t k = 0; k < h.size(); ++k)
        slope -= static_cast<double>(k) * h[k];
    EXPECT_NEAR(slope, 1, 1.0001 * ripple / (2 * std::numbers::pi));
    EXPECT_GT(h[11], 0);
}

TEST(Equiripple, IsTheSameInAnyUnitOfFrequency)
{
    std::vector<double> h(51), scaled(51);
    double ripple = 0, scaledRipple = 0;
    ASSERT_EQ(backend::AALFunc69(1, 0.125, 0.25, 51, h.data(), &ripple), Status::Success);
    ASSERT_EQ(backend::AALFunc69(0x1p40, 0x1p37, 0x1p38, 51, scaled.data(), &scaledRipple), Status::Success);
    EXPECT_EQ(h, scaled);
    EXPECT_EQ(ripple, scaledRipple);
}

TEST(Equiripple, OfFourResponsesIsThatOfTheirBands)
{
    const auto check = [](auto entry, std::initializer_list<double> edges, double first) {
        EquirippleOrder order{45, kMultiBand, {}};
        double lower = 0, amplitude = first;
        for (const double* edge = edges.begin(); edge != edges.end(); edge += 2, amplitude = 1 - amplitude) {
            order.bands.push_back({amplitude, lower, edge[0], 1});
            lower = edge[1];
        }
        order.bands.push_back({amplitude, lower, 0.5, 1});
        std::vector<double> h(45);
        double ripple = 0;
        EXPECT_EQ(entry(h.data(), &ripple), Status::Success);
        const Equiripple expected = design(order);
        EXPECT_EQ(h, expected.h);
        EXPECT_EQ(ripple, expected.ripple);
    };
    check([](double* h, double* r) { return backend::AALFunc69(1, 0.1, 0.15, 45, h, r); }, {0.1, 0.15}, 1);
    check([](double* h, double* r) { return backend::AALFunc68(1, 0.1, 0.15, 45, h, r); }, {0.1, 0.15}, 0);
    check([](double* h, double* r) { return backend::AALFunc66(1, 0.1, 0.15, 0.3, 0.36, 45, h, r); },
          {0.1, 0.15, 0.3, 0.36}, 0);
    check([](double* h, double* r) { return backend::AALFunc67(1, 0.1, 0.15, 0.3, 0.36, 45, h, r); },
          {0.1, 0.15, 0.3, 0.36}, 1);
}

TEST(Equiripple, IsTheSameFromBandRecords)
{
    for (const int type : {kMultiBand, kDifferentiator, kHilbert}) {
        const EquirippleOrder order{40, type, {{1, 0.05, 0.2, 1}, {0, 0.3, 0.45, 3}}};
        std::vector<double> h(40);
        double ripple = 0;
        EXPECT_EQ(backend::AALFunc408(40, 1, order.bands.data(), 2, type - 1, h.data(), &ripple), Status::Success);
        EXPECT_EQ(h, design(order).h);
        EXPECT_EQ(ripple, design(order).ripple);
    }
}

// Gain 1 everywhere is the unit impulse, gain 0 nothing at all.
TEST(Equiripple, OfOneBandIsExact)
{
    const auto [status, h, ripple] = design({31, kMultiBand, {{1, 0, 0.5, 1}}});
    EXPECT_EQ(status, Status::Success);
    EXPECT_LE(ripple, 1e-18);
    for (std::size_t k = 0; k < h.size(); ++k)
        EXPECT_NEAR(h[k], k == 15 ? 1 : 0, 1e-18);
    const Equiripple nothing = design({31, kMultiBand, {{0, 0, 0.2, 1}, {0, 0.3, 0.5, 1}}});
    EXPECT_EQ(nothing.ripple, 0);
    EXPECT_EQ(nothing.h, std::vector<double>(31));
}

// Half-band filters: by symmetry an even reference starts with an error of 0.
TEST(Equiripple, StartsFromReferencesWithoutAnError)
{
    for (int taps = 3; taps < 60; ++taps)
        for (const double edge : {0.1, 0.2, 0.24}) {
            const EquirippleOrder order{taps, kMultiBand, {{1, 0, edge, 1}, {0, 0.5 - edge, 0.5, 1}}};
            const Equiripple filter = design(order);
            EXPECT_EQ(filter.status, Status::Success) << taps;
            EXPECT_NEAR(largest(extrema(order, filter.h, 40)), filter.ripple, 0.01 * filter.ripple) << taps;
        }
}

// The best low-pass filters of 1001 taps deviate by less than 1e-80: coefficients in double cannot.
TEST(Equiripple, StopsWhereDoubleEnds)
{
    const EquirippleOrder order{1001, kMultiBand, {{1, 0, 0.2, 1}, {0, 0.3, 0.5, 1}}};
    const auto [status, h, ripple] = design(order);
    ASSERT_EQ(status, Status::Success);
    EXPECT_LT(ripple, 1e-13);
    EXPECT_GT(ripple, 1e-14);
    EXPECT_NEAR(largest(extrema(order, h, 8)), ripple, 0.02 * ripple);
    EXPECT_EQ(h.front(), 0);
    EXPECT_EQ(h.back(), 0);
}

// Within a second or so each: bands too narrow for two places, and more of a filter than is worked out.
TEST(Equiripple, AnswersAbsurdOrders)
{
    const auto isAnswered = [](const EquirippleOrder& order) {
        const auto [status, h, ripple] = design(order);
        if (status == Status::Success)
            EXPECT_NEAR(largest(extrema(order, h, 16)), ripple, 0.01 * ripple + 1e-15);
        return status == Status::Success || status == Status::DesignFailed;
    };
    EXPECT_TRUE(isAnswered({101, kMultiBand, {{1, 0, 1e-12, 1}, {0, 0.1, 0.5, 1}}}));
    EXPECT_TRUE(isAnswered({101, kMultiBand, {{1, 0.1, 0.1 + 1e-12, 1}, {0, 0.2, 0.5, 1}}}));
    EXPECT_TRUE(isAnswered({101, kMultiBand, {{1, 0, 0.1, 1}, {0, 0.1 + 1e-12, 0.5, 1}}}));
    EXPECT_TRUE(isAnswered({101, kMultiBand, {{1, 0, 0.1, 1e-200}, {0, 0.2, 0.5, 1e200}}}));
    EXPECT_TRUE(isAnswered({101, kMultiBand, {{1e300, 0, 0.1, 1}, {-1e300, 0.2, 0.5, 1}}}));
    EXPECT_EQ(design({4097, kMultiBand, {{1, 0, 0.1, 1}, {0, 0.2, 0.5, 1}}}).status, Status::DesignFailed);
    EXPECT_EQ(design({100000, kMultiBand, {{1, 0, 0.1, 1}, {0, 0.2, 0.5, 1}}}).status, Status::DesignFailed);
}

// So far below the sampling frequency that a quotient in double is 0, and of two neighbouring doubles.
TEST(Equiripple, AnswersBandsThatDoubleTakesForOnePlace)
{
    const auto isAnswered = [](double fs, const std::vector<double>& edges) {
        const double amplitudes[] = {1, 0, 0}, weights[] = {1, 1, 1};
        std::vector<double> h(21);
        double ripple = -1;
        const Status status = backend::AALFunc65(static_cast<int>(edges.size() / 2), amplitudes, weights, fs,
                                                 edges.data(), kMultiBand, 21, h.data(), &ripple);
        return status == Status::Success || status == Status::DesignFailed;
    };
    EXPECT_TRUE(isAnswered(1e300, {0, 1e-30, 2e-30, 3e-30, 1e299, 4e299}));
    EXPECT_TRUE(isAnswered(5, {1, std::nextafter(1.0, 2.0), 2, 2.5}));
    EXPECT_TRUE(isAnswered(5, {0, 0.5, 1, std::nextafter(1.0, 2.0), 2, 2.5}));
}

} // namespace
} // namespace quordsp::test
