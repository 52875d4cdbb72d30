// How thermocouple functions are written down: polynomials, and the voltages for which each of them holds.
//
// The ends of ranges are double constants, and the voltage is a single. A range keeps the first and the last single
// between its ends, so that a comparison of singles decides exactly what a comparison of doubles would.
#pragma once
#include <bit>
#include <cstdint>
#include <limits>

namespace quordsp {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr int kThermocoupleTypes = 8;

struct Polynomial {
    int degree = 0;
    float coefficients[11] = {}; // lowest power first
};

// Both ends belong to it. Empty by default.
struct Range {
    float first = 0.0f;
    float last = -1.0f;

    constexpr bool holds(float value) const noexcept { return value >= first && value <= last; }
};

// The next single upwards of a finite one.
constexpr float above(float value) noexcept
{
    const auto bits = std::bit_cast<std::int32_t>(value);
    return value == 0.0f ? std::numeric_limits<float>::denorm_min()
                         : std::bit_cast<float>(value > 0.0f ? bits + 1 : bits - 1);
}

constexpr float leastNotBelow(double end) noexcept
{
    const auto nearest = static_cast<float>(end);
    return static_cast<double>(nearest) >= end ? nearest : above(nearest);
}

constexpr float greatestBelow(double end) noexcept
{
    return -above(-leastNotBelow(end));
}

constexpr float greatestNotAbove(double end) noexcept
{
    return -leastNotBelow(-end);
}

constexpr Range halfOpen(double low, double high) noexcept
{
    return {leastNotBelow(low), greatestBelow(high)};
}

constexpr Range closed(double low, double high) noexcept
{
    return {leastNotBelow(low), greatestNotAbove(high)};
}

// 20.646 as a single is below 20.646, and 54.9 is above 54.9.
static_assert(halfOpen(0.0, 20.646).holds(20.646f) && !closed(20.646, 54.9).holds(20.646f));
static_assert(closed(20.646, 54.9).holds(above(20.646f)) && !closed(20.646, 54.9).holds(54.9f));
static_assert(!closed(-6.478, 54.9).holds(-6.478f) && closed(-6.478, 54.9).holds(above(-6.478f)));
static_assert(!halfOpen(-1.0, 0.0).holds(-0.0f) &&
              halfOpen(-1.0, 0.0).last == -std::numeric_limits<float>::denorm_min());

// Voltage to temperature.
struct InverseFunction {
    struct Rule {
        Range voltages;
        Polynomial temperature;
    };
    Rule rules[3] = {};   // the first that holds decides
    Polynomial elsewhere; // for NaN also
    bool limited = false; // a voltage elsewhere ends the conversion, but NaN does not
};
extern const InverseFunction kInverseFunctions[kThermocoupleTypes];

// Temperature to voltage: a polynomial, and a0 exp(a1 (t - a2)^2).
struct ReferenceFunction {
    Polynomial negative;
    Polynomial positive;
    float a0;
    float a1;
    double a2;
};
extern const ReferenceFunction kTypeK;

} // namespace quordsp
