// Where the backend is looked for, one body for each system: search_windows.cpp, search_posix.cpp.
#pragma once
#include "frame/os.h"

namespace quordsp {

// Loads the backend from the first place that has it; null when none has.
os::Module searchBackend() noexcept;

} // namespace quordsp
