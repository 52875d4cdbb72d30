// What the numbered entries do that filter with given coefficients.
#pragma once

#include "nianlys.h"

namespace quordsp::backend {

// Filters on from the state that the filter keeps.
Status filterThroughCascade(const double* x, std::int64_t n, IirFilter* filter, double* y) noexcept;

// Filters on from a state of the caller's, or from zeros when there is none of the right size.
Status filterThroughCascade(const Complex* x, std::int64_t n, const IirFilter* filter, ComplexState* state,
                            Complex* y) noexcept;

template <class Sample>
Status filterThroughDirect(const Sample* x, std::int64_t n, const double* a, Sample* ya, std::int32_t na,
                           const double* b, Sample* xb, std::int32_t nb, Sample* y) noexcept;

// From zero state forwards, then from zero state backwards.
Status filterBothWays(const double* x, std::int64_t n, const double* a, std::int32_t na, const double* b,
                      std::int32_t nb, double* y) noexcept;

} // namespace quordsp::backend
