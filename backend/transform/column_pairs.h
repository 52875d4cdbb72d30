// Inverse transforms along the columns of half a spectrum, to a real matrix: two columns go through one complex lane,
// of which the first is the real part of the result and the second the imaginary part.
#pragma once

#include "transform/prepared.h"
#include "transform/split_buffer.h"

#include <optional>

namespace quordsp::backend {

class ColumnPairs {
public:
    // Throws std::bad_alloc.
    ColumnPairs(std::size_t rows, std::size_t columns);

    // halves: [rows/2 + 1][columns]. Unscaled.
    void inverse(ConstSplit halves, double* y) const;

private:
    static constexpr std::size_t kAtOnce = 2 * kLanes;

    bool hasMany() const { return rows_ > 1 && columns_ >= kAtOnce; }
    bool hasOne() const { return rows_ > 1 && columns_ % kAtOnce > 0; }
    void invertOne(ConstSplit halves, double* y) const;

    std::size_t rows_;
    std::size_t columns_;
    SplitBuffer tile_; // [rows][kLanes]
    SplitBuffer bins_; // of what is left, one column
    Buffer<> column_;
    std::optional<Prepared<LanePlan>> many_;
    std::optional<Prepared<RealPlan>> one_;
};

} // namespace quordsp::backend
