#include "iir/entries.h"

namespace quordsp::backend {

// IIRCascadeFiltering
Status AALFunc91(const double* x, std::int64_t n, IirFilter* filter, double* y) noexcept
{
    return filterThroughCascade(x, n, filter, y);
}

// IIRFiltering
Status AALFunc92(const double* x, std::int64_t n, const double* a, double* ya, std::int32_t na, const double* b,
                 double* xb, std::int32_t nb, double* y) noexcept
{
    return filterThroughDirect(x, n, a, ya, na, b, xb, nb, y);
}

} // namespace quordsp::backend
