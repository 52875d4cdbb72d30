// Removal of the least-squares straight line, for the library's own use.
#pragma once

namespace quordsp {

// What linear_regression does.
void removeLine(double* data, int count) noexcept;

struct IndexSums {
    double x;
    double xx; // of squares that wrap modulo 2^32 into the signed range
};

// Over the indices below count, to the bits of additions one after the other.
IndexSums sumIndices(int count) noexcept;

} // namespace quordsp
