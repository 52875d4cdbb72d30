// What the numbered IIR entries do, for any family and sample type.
#pragma once

#include "iir/design.h"
#include "nianlys.h"

namespace quordsp::backend {

// Design, then filter n samples from zero state.
template <class Sample>
Status designAndFilter(const Sample* x, std::int64_t n, const Design& design, Sample* y) noexcept;

Status designDirect(const Design& design, double* a, std::int32_t na, double* b, std::int32_t nb) noexcept;

Status designCascade(const Family& family, const Frequencies& frequencies, const Tolerances& tolerances,
                     IirFilter* filter) noexcept;

Status cascadeToDirect(const IirFilter* filter, double* a, std::int32_t na, double* b, std::int32_t nb) noexcept;

// Filters on from the state that the filter keeps.
Status filterThroughCascade(const double* x, std::int64_t n, IirFilter* filter, double* y) noexcept;

template <class Sample>
Status filterThroughDirect(const Sample* x, std::int64_t n, const double* a, Sample* ya, std::int32_t na,
                           const double* b, Sample* xb, std::int32_t nb, Sample* y) noexcept;

} // namespace quordsp::backend
