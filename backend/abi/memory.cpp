#include "nianlys.h"

#include <cstdlib>

namespace quordsp::backend {

// Results that callers free come from std::malloc.
Status FreeAnalysisMem(void* memory) noexcept
{
    std::free(memory);
    return Status::Success;
}

Status AALFunc238(void* memory) noexcept
{
    return FreeAnalysisMem(memory);
}

} // namespace quordsp::backend
