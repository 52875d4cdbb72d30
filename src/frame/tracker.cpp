#include "frame/tracker.h"

#include "frame/run_time_modules.h"

namespace quordsp {
namespace {

os::Module loadedRunTime() noexcept
{
    // Intended: this address lies in no module, so that no context is ever activated and the look-up stays in the
    // caller's.
    const char onTheStack = 0;
    const os::ActivationScope noContext{&onTheStack};
    for (const char* const fileName : kRunTimeModules)
        if (const os::Module module = os::loadedModule(fileName))
            return module;
    return nullptr;
}

} // namespace

os::Symbol findTrackerEntry(const char* name) noexcept
{
    const os::Module module = loadedRunTime();
    return module ? os::symbol(module, name) : nullptr;
}

} // namespace quordsp
