#include "frame/disposer.h"

namespace quordsp {
namespace {

constexpr const char* kDisposerFile = "cviresourcedisposer.dll";

using Register = int(void* object, os::Symbol callback, const char* releaseEntry);
using Unregister = int(void* object);

// Keeps what it finds; what another thread has found is never overwritten by null.
os::Symbol find(std::atomic<os::Symbol>& kept, os::Module module, const char* name) noexcept
{
    const os::Symbol found = os::symbol(module, name);
    if (found)
        kept.store(found, std::memory_order_release);
    return found;
}

} // namespace

int Disposer::add(void* object, const char* releaseEntry) noexcept
{
    // Intended: once the register entry is known the module is not asked for again, so that a callback which was
    // missing then is looked for with a null module from here on.
    os::Module module = nullptr;
    os::Symbol registerEntry = register_.load(std::memory_order_acquire);
    if (!registerEntry) {
        module = os::loadedModule(kDisposerFile);
        registerEntry = module ? os::symbol(module, "RegisterCVIResource") : nullptr;
    }
    if (!registerEntry)
        return kUnavailable;
    os::Symbol callback = callback_.load(std::memory_order_relaxed);
    if (!callback)
        callback = find(callback_, module, "CommonAnalysisResourceDisposer");
    // Published after the callback: a thread that knows the one knows the other.
    register_.store(registerEntry, std::memory_order_release);
    return callback ? reinterpret_cast<Register*>(registerEntry)(object, callback, releaseEntry) : kUnavailable;
}

int Disposer::remove(void* object) noexcept
{
    os::Symbol unregisterEntry = unregister_.load(std::memory_order_relaxed);
    if (!unregisterEntry) {
        const os::Module module = os::loadedModule(kDisposerFile);
        unregisterEntry = module ? find(unregister_, module, "UnregisterCVIResource") : nullptr;
    }
    return unregisterEntry ? reinterpret_cast<Unregister*>(unregisterEntry)(object) : kUnavailable;
}

} // namespace quordsp
