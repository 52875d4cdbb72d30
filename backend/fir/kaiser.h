// The Kaiser window, a ratio of modified Bessel functions I0.
#pragma once

namespace quordsp::backend {

// I0(beta sqrt(1 - v^2)) / I0(beta) for 0 <= v <= 1 and any finite beta >= 0, in extended precision.
long double kaiserValue(long double beta, long double v);

} // namespace quordsp::backend
