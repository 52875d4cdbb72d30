// Designs of all four symmetries, and what makes one of them the best: the alternation theorem says that its weighted
// error reaches the largest value, with signs in turn, at one place more than it has free coefficients.
#pragma once

#include "backend/support/equiripple.h"

namespace quordsp::test {

struct EquirippleRow {
    const char* what;
    int type;
    std::vector<int> taps;
    // The transition bands narrow as the taps increase: this many times 1 / taps.
    std::vector<Band> (*bands)(double transition);
    double steepness;
};

inline std::vector<Band> lowPass(double t)
{
    return {{1, 0, 0.2, 1}, {0, 0.2 + t, 0.5, 10}};
}

inline std::vector<Band> bandPass(double t)
{
    return {{0, 0, 0.15 - t, 5}, {1, 0.15, 0.3, 1}, {0, 0.3 + t, 0.5, 1}};
}

inline std::vector<Band> manyBands(double t)
{
    return {{1, 0, 0.1, 1}, {0, 0.1 + t, 0.2, 1}, {0.5, 0.2 + t, 0.3, 1}, {0, 0.3 + t, 0.4, 20}, {0, 0.4 + t, 0.5, 1}};
}

inline std::vector<Band> upToAHalf(double t)
{
    return {{1, t, 0.5, 1}};
}

inline std::vector<Band> belowAHalf(double t)
{
    return {{1, t, 0.5 - t, 1}};
}

inline std::vector<Band> slopeUpToAHalf(double)
{
    return {{1, 0, 0.5, 1}};
}

inline std::vector<Band> slopeBelowAHalf(double t)
{
    return {{1, 0, 0.5 - t, 1}};
}

inline const EquirippleRow kEquirippleRows[] = {
    {"low-pass", kMultiBand, {3, 4, 15, 64, 101, 300, 1000, 1001}, lowPass, 3},
    {"band-pass", kMultiBand, {15, 64, 101, 501, 1001}, bandPass, 2},
    {"five bands", kMultiBand, {41, 100, 501, 1001}, manyBands, 2},
    {"Hilbert", kHilbert, {4, 30, 100, 500, 1000}, upToAHalf, 0.5},
    {"Hilbert", kHilbert, {3, 15, 101, 501, 1001}, belowAHalf, 0.5},
    {"differentiator", kDifferentiator, {4, 30, 100, 500, 1000}, slopeUpToAHalf, 1},
    {"differentiator", kDifferentiator, {3, 15, 101, 501, 1001}, slopeBelowAHalf, 1},
};

inline std::size_t freeCoefficients(const EquirippleOrder& order)
{
    const auto taps = static_cast<std::size_t>(order.taps);
    return (order.type == kMultiBand ? taps + 1 : taps) / 2;
}

// Pairs of neighbours that fall short of the ripple are not among the places.
inline std::size_t alternations(const std::vector<double>& errors, double ripple)
{
    std::size_t count = 0;
    double former = 0;
    for (const double error : errors)
        if (std::abs(error) > ripple && error * former <= 0) {
            ++count;
            former = error;
        }
    return count;
}

inline EquirippleOrder orderOf(const EquirippleRow& row, int taps)
{
    return {taps, row.type, row.bands(std::min(row.steepness / taps, 0.09))};
}

} // namespace quordsp::test
