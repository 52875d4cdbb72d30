// The groups of width consecutive samples of a signal that comes piece by piece.
#pragma once

#include "statistics/parabola.h"

#include <cstddef>

namespace quordsp::backend {

class Groups {
public:
    static constexpr std::size_t kMostAtOnce = 1024;

    Groups() = default;
    Groups(const Groups&) = delete;
    Groups& operator=(const Groups&) = delete;
    virtual ~Groups() = default;

    // Makes room for n samples, so that taking them needs no memory. Throws std::bad_alloc.
    virtual void reserve(std::size_t n) = 0;

    // Takes at most kMostAtOnce samples. Returns how many groups they complete, and the sum `slope` of each.
    virtual std::size_t take(const double* x, std::size_t n, double* slopes) noexcept = 0;

    // Of group i of those. What the sums are depends on the samples of the group alone, not on the pieces they came in;
    // of a group with NaN or infinity not all of them are finite.
    virtual GroupSums sums(std::size_t i) const noexcept = 0;
};

} // namespace quordsp::backend
