#include "frame/disposer.h"

namespace quordsp {
namespace {

constexpr const char* kDisposerFile = "cviresourcedisposer.dll";

using Register = int(void* object, os::Symbol callback, const char* releaseEntry);
using Unregister = int(void* object);

// Keeps what it finds; null, and nothing kept, when it finds nothing.
os::Symbol keep(std::atomic<os::Symbol>& kept, os::Module module, const char* name) noexcept
{
    const os::Symbol found = os::symbol(module, name);
    kept.store(found, std::memory_order_relaxed);
    return found;
}

} // namespace

int Disposer::add(void* object, const char* releaseEntry) noexcept
{
    os::Module module = nullptr;
    os::Symbol registerEntry = register_.load(std::memory_order_relaxed);
    if (!registerEntry) {
        module = os::loadedModule(kDisposerFile);
        registerEntry = module ? keep(register_, module, "RegisterCVIResource") : nullptr;
        if (!registerEntry)
            return kUnavailable;
    }
    // Intended: once the register entry is known the module is not asked for again, so that a callback which was
    // missing then is looked for with a null module from here on.
    os::Symbol callback = callback_.load(std::memory_order_relaxed);
    if (!callback)
        callback = keep(callback_, module, "CommonAnalysisResourceDisposer");
    return callback ? reinterpret_cast<Register*>(registerEntry)(object, callback, releaseEntry) : kUnavailable;
}

int Disposer::remove(void* object) noexcept
{
    os::Symbol unregisterEntry = unregister_.load(std::memory_order_relaxed);
    if (!unregisterEntry) {
        const os::Module module = os::loadedModule(kDisposerFile);
        unregisterEntry = module ? keep(unregister_, module, "UnregisterCVIResource") : nullptr;
    }
    return unregisterEntry ? reinterpret_cast<Unregister*>(unregisterEntry)(object) : kUnavailable;
}

} // namespace quordsp
