// Functions of the backend that the library does not export. The library's header tells how clients come by them.
#pragma once
#include "os.h"

namespace quordsp::cli {

// Null when the backend is not loaded, which a call of the library does, or has no such function.
template <class Function>
Function backendFunction(const char* name)
{
    return reinterpret_cast<Function>(os::functionOf(os::kBackendFile, name));
}

} // namespace quordsp::cli
