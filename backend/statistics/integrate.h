// Running integral of a sampled signal.
#pragma once

#include <cstdint>

namespace quordsp::backend {

// Simpson's rule: y[i] = dt/6 times the sum over j <= i of x[j-1] + 4 x[j] + x[j+1], with x[-1] = initial and x[n] =
// final. y may be x.
void integrate(const double* x, std::int64_t n, double dt, double initial, double final, double* y);

} // namespace quordsp::backend
