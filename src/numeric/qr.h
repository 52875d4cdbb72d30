// Householder QR without pivoting, in place, for more rows than are held at a time.
//
// Columns behind the pivots, at least one, are reflected along: right-hand sides, so that Q is never formed. The rows
// of a tall matrix come in portions: factor() makes the upper triangle of the first one, and absorb() takes the next
// into it. A reflector then involves one row of the triangle and the portion only, so that what is zero in the triangle
// stays so. What stands below the triangle afterwards is of no use.
#pragma once

#include <cstdint>

namespace quordsp {

struct Matrix {
    double* data; // column-major
    std::int64_t stride;
    int columns;

    double* column(int j) const noexcept { return data + j * stride; }
};

// Factors the first rows; there are no fewer rows than pivots. `products` has room for a number for each column.
void factor(Matrix a, int pivots, int rows, double* products) noexcept;

// Takes the rows [first, last) into the triangle.
void absorb(Matrix a, int pivots, int first, int last, double* products) noexcept;

// Solves the triangle for the last column, in its place. Divides by whatever stands on the diagonal.
void solveTriangle(Matrix a, int unknowns) noexcept;

} // namespace quordsp
