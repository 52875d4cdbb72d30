// Finds and loads the analysis backend on first use and keeps it for the life of the process.
#pragma once
#include <atomic>

#include "frame/os.h"

namespace quordsp {

class Locator {
public:
    // The backend module, or null when it is not to be had now. A failed search leaves no trace: the next call searches
    // again.
    os::Module backend() noexcept;

private:
    // Relaxed: a module handle is valid in every thread that sees it.
    std::atomic<os::Module> backend_{nullptr};
};

// The one of this process.
inline constinit Locator locator;

} // namespace quordsp
