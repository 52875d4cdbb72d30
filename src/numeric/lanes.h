// Eight neighbouring elements of an array, computed alike, whatever the width of the registers.
#pragma once

namespace quordsp {

// Anywhere in memory. Never passed by value: how that is done depends on the instruction set.
using Lanes [[gnu::vector_size(64), gnu::aligned(8), gnu::may_alias]] = double;
constexpr int kLanes = 8;

[[gnu::always_inline]] inline const Lanes& lanesAt(const double* elements) noexcept
{
    return *reinterpret_cast<const Lanes*>(elements);
}

[[gnu::always_inline]] inline Lanes& lanesAt(double* elements) noexcept
{
    auto* const lanes = reinterpret_cast<Lanes*>(elements);
    return *lanes;
}

[[gnu::always_inline]] inline double sumOf(const Lanes& x) noexcept
{
    return ((x[0] + x[4]) + (x[2] + x[6])) + ((x[1] + x[5]) + (x[3] + x[7]));
}

} // namespace quordsp
