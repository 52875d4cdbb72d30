#include "iir/entries.h"
#include "iir/filter_record.h"
#include "status.h"

#include <cstdlib>

namespace quordsp::backend {

IirFilter* AllocIIRFilterPtr(std::int32_t type, std::int32_t order) noexcept
{
    return newFilter(Response{type}, order);
}

Status ResetIIRFilter(IirFilter* filter) noexcept
{
    return guarded([filter] {
        requireConsistent(filter);
        filter->reset = 1;
    });
}

Status FreeIIRFilterPtr(IirFilter* filter) noexcept
{
    std::free(filter);
    return Status::Success;
}

Status CascadeToDirectCoef(const IirFilter* filter, double* a, std::int32_t na, double* b, std::int32_t nb) noexcept
{
    return cascadeToDirect(filter, a, na, b, nb);
}

} // namespace quordsp::backend
