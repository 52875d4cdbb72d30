// The run-time's resource disposer: told of an object and of the backend entry that frees it, it frees what a client
// leaves behind. Used only where the process has already loaded it.
#pragma once
#include <atomic>

#include "frame/os.h"

namespace quordsp {

class Disposer {
public:
    static constexpr int kUnavailable = -1;

    // The disposer's own result, or kUnavailable.
    int add(void* object, const char* releaseEntry) noexcept;
    int remove(void* object) noexcept;

private:
    // Each is only ever set to its one address.
    std::atomic<os::Symbol> register_{nullptr};
    std::atomic<os::Symbol> callback_{nullptr};
    std::atomic<os::Symbol> unregister_{nullptr};
};

// The one of this process.
inline constinit Disposer disposer;

} // namespace quordsp
