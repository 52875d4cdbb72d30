// Exponentials and logarithms for the families whose poles need them, within a few units in the last place of Real. As
// real.h says, of operations that IEEE 754 fixes alone.
#pragma once

#include "real.h"

namespace quordsp::backend {

// exp(x) - 1, accurate relative to itself for small x; infinite where Real is.
Real expMinusOne(Real x);

Real exponential(Real x);

// log(1 + x) for x > -1, accurate relative to itself for small x.
Real logOnePlus(Real x);

// asinh(x) for x >= 0.
Real arsinh(Real x);

} // namespace quordsp::backend
