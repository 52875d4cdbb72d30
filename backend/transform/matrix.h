// Two-dimensional transforms of any size. Forward without a factor, inverse with 1/(rows columns). Matrices are
// row-major; the result must not overlap the input.
#pragma once

#include "nianlys.h"

#include <cstdint>

namespace quordsp::backend {

struct MatrixSize {
    std::int64_t rows;
    std::int64_t columns;
};

// The matrix is cut, or padded with zeros, to the size of the result; a size that is not positive is that of the
// matrix. shift: frequency 0 at the centre of both axes.
void matrixFft(const double* x, MatrixSize size, MatrixSize result, bool shift, Complex* y);
void matrixFft(const Complex* x, MatrixSize size, MatrixSize result, bool shift, Complex* y);

// The real one looks at rows 0..rows/2 only.
void matrixInverseFft(const Complex* x, MatrixSize size, bool shifted, double* y);
void matrixInverseFft(const Complex* x, MatrixSize size, bool shifted, Complex* y);

} // namespace quordsp::backend
