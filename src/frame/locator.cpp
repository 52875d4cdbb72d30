#include "frame/locator.h"

#include "frame/search.h"

namespace quordsp {

// Shared by all modules of the process that load the backend in this way.
static constexpr const char* kLockName = "National Instruments LabWindows/CVI Analysis Library %d";

os::Module Locator::backend() noexcept
{
    if (const os::Module known = backend_.load(std::memory_order_relaxed))
        return known;
    const os::ProcessLock lock{kLockName};
    if (!lock)
        return nullptr;
    if (const os::Module known = backend_.load(std::memory_order_relaxed))
        return known; // another thread was first
    const os::Module found = searchBackend();
    backend_.store(found, std::memory_order_relaxed);
    return found;
}

} // namespace quordsp
