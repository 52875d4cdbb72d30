// What the numbered IIR entries do, for any family and sample type.
#pragma once

#include "iir/design.h"
#include "nianlys.h"

namespace quordsp::backend {

// Design, then filter n samples from zero state.
template <class Sample>
Status designAndFilter(const Sample* x, std::int64_t n, const Design& design, Sample* y) noexcept;

// Of the complex entries, which take no y for "in place".
inline Status designAndFilter(Complex* x, std::int64_t n, const Design& design, Complex* y) noexcept
{
    return designAndFilter<Complex>(x, n, design, y ? y : x);
}

Status designDirect(const Design& design, double* a, std::int32_t na, double* b, std::int32_t nb) noexcept;

Status designCascade(const Family& family, const Frequencies& frequencies, const Tolerances& tolerances,
                     IirFilter* filter) noexcept;

Status cascadeToDirect(const IirFilter* filter, double* a, std::int32_t na, double* b, std::int32_t nb) noexcept;

} // namespace quordsp::backend
