#include "nianlys.h"

namespace quordsp::backend {

Status AALFunc21(const double*, std::int64_t, double, double, std::int32_t, double*) noexcept
{
    return Status::Success;
}

} // namespace quordsp::backend
