// Transforms of interleaved arrays with a size of their own, an optional table and an optional shift. Forward without a
// factor, inverse with 1/n. The result must not overlap the input.
#pragma once

#include "nianlys.h"

#include <cstdint>

namespace quordsp::backend {

// size points, or n if size <= 0: x is cut or padded with zeros.
void extendedFft(const double* x, std::int64_t n, std::int64_t size, const FftTable* table, bool shift, Complex* y);
void extendedFft(const Complex* x, std::int64_t n, std::int64_t size, const FftTable* table, bool shift, Complex* y);

// The real one looks at bins 0..n/2 only.
void extendedInverseFft(const Complex* x, std::int64_t n, const FftTable* table, bool shifted, double* y);
void extendedInverseFft(const Complex* x, std::int64_t n, const FftTable* table, bool shifted, Complex* y);

} // namespace quordsp::backend
