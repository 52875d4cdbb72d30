#include "frame/entry.h"

#include "frame/locator.h"

namespace quordsp {

Binding bindEntry(const char* name) noexcept
{
    const os::Module backend = locator.backend();
    if (!backend)
        return {nullptr, QUORDSP_BACKEND_NOT_FOUND};
    const os::Symbol address = os::symbol(backend, name);
    return {address, address ? QUORDSP_SUCCESS : QUORDSP_ENTRY_NOT_FOUND};
}

} // namespace quordsp
