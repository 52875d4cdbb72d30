#include "iir/filtering.h"

namespace quordsp::backend {

// IIRCascadeFiltering
Status AALFunc91(const double* x, std::int64_t n, IirFilter* filter, double* y) noexcept
{
    return filterThroughCascade(x, n, filter, y);
}

// CxIIRCascadeFiltering
Status AALFunc466(const Complex* x, std::int64_t n, IirFilter* filter, ComplexState* state, Complex* y) noexcept
{
    return filterThroughCascade(x, n, filter, state, y);
}

// IIRFiltering
Status AALFunc92(const double* x, std::int64_t n, const double* a, double* ya, std::int32_t na, const double* b,
                 double* xb, std::int32_t nb, double* y) noexcept
{
    return filterThroughDirect(x, n, a, ya, na, b, xb, nb, y);
}

// IIRFiltering_CxInput
Status AALFunc354(const Complex* x, std::int64_t n, const double* a, Complex* ya, std::int32_t na, const double* b,
                  Complex* xb, std::int32_t nb, Complex* y) noexcept
{
    return filterThroughDirect(x, n, a, ya, na, b, xb, nb, y);
}

// ZeroPhaseFiltering
Status AALFunc385(const double* x, std::int64_t n, const double* a, std::int32_t na, const double* b, std::int32_t nb,
                  double* y) noexcept
{
    return filterBothWays(x, n, a, na, b, nb, y);
}

} // namespace quordsp::backend
