#include <array>
#include <atomic>

#include <windows.h>

#include "frame/os.h"

namespace quordsp::os {
namespace {

HMODULE native(Module module) noexcept
{
    return reinterpret_cast<HMODULE>(module);
}

Module portable(HMODULE module) noexcept
{
    return reinterpret_cast<Module>(module);
}

template <class Function>
Function* function(HMODULE module, const char* name) noexcept
{
    return module ? reinterpret_cast<Function*>(symbol(portable(module), name)) : nullptr;
}

// System functions that an older system may lack, looked up by the first scope that asks for them.
template <class Function>
class Optional {
public:
    consteval explicit Optional(const char* name) : name_{name} {}
    Function* find() noexcept
    {
        Function* found = found_.load(std::memory_order_relaxed);
        if (!found) {
            found = function<Function>(GetModuleHandleA("kernel32.dll"), name_);
            found_.store(found, std::memory_order_relaxed);
        }
        return found;
    }

private:
    const char* name_;
    std::atomic<Function*> found_{nullptr};
};

constinit Optional<decltype(GetModuleHandleExA)> getModuleHandleEx{"GetModuleHandleExA"};
constinit Optional<decltype(QueryActCtxW)> queryActivationContext{"QueryActCtxW"};
constinit Optional<decltype(ActivateActCtx)> activateContext{"ActivateActCtx"};
constinit Optional<decltype(DeactivateActCtx)> deactivateContext{"DeactivateActCtx"};

bool liesInModule(const void* address) noexcept
{
    auto* const handleOf = getModuleHandleEx.find();
    HMODULE module = nullptr;
    return handleOf &&
           handleOf(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                    static_cast<const char*>(address), &module) &&
           module;
}

// The activation context of the module that contains the address, without a reference; null when there is none.
HANDLE contextOf(const void* address) noexcept
{
    auto* const query = queryActivationContext.find();
    ACTIVATION_CONTEXT_BASIC_INFORMATION context{};
    constexpr DWORD flags = QUERY_ACTCTX_FLAG_ACTCTX_IS_ADDRESS | QUERY_ACTCTX_FLAG_NO_ADDREF;
    const bool found = query && query(flags, const_cast<void*>(address), nullptr, ActivationContextBasicInformation,
                                      &context, sizeof context, nullptr);
    return found && context.hActCtx != INVALID_HANDLE_VALUE ? context.hActCtx : nullptr;
}

// advapi32.dll for as long as one value is read: the library does not link it.
class Registry {
public:
    Registry() noexcept
        : module_{LoadLibraryA("advapi32.dll")},
          open_{function<decltype(RegOpenKeyExA)>(module_, "RegOpenKeyExA")},
          query_{function<decltype(RegQueryValueExA)>(module_, "RegQueryValueExA")},
          close_{function<decltype(RegCloseKey)>(module_, "RegCloseKey")}
    {}
    ~Registry()
    {
        if (module_)
            FreeLibrary(module_);
    }
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;

    std::size_t read(const char* keyName, const char* valueName, std::span<char> bytes) const noexcept
    {
        HKEY key = nullptr;
        if (!(open_ && query_ && close_) || open_(HKEY_LOCAL_MACHINE, keyName, 0, KEY_READ, &key) != ERROR_SUCCESS)
            return 0;
        auto size = static_cast<DWORD>(bytes.size());
        const LSTATUS status = query_(key, valueName, nullptr, nullptr, reinterpret_cast<BYTE*>(bytes.data()), &size);
        close_(key);
        return status == ERROR_SUCCESS ? size : 0;
    }

private:
    HMODULE module_;
    decltype(RegOpenKeyExA)* open_;
    decltype(RegQueryValueExA)* query_;
    decltype(RegCloseKey)* close_;
};

} // namespace

Module loadModule(const char* path) noexcept
{
    return portable(LoadLibraryA(path));
}

Module loadedModule(const char* fileName) noexcept
{
    return portable(GetModuleHandleA(fileName));
}

std::size_t modulePath(Module module, std::span<char> path) noexcept
{
    return GetModuleFileNameA(native(module), path.data(), static_cast<DWORD>(path.size()));
}

Symbol symbol(Module module, const char* name) noexcept
{
    return reinterpret_cast<Symbol>(GetProcAddress(native(module), name));
}

std::size_t machineValue(const char* key, const char* name, std::span<char> bytes) noexcept
{
    return Registry{}.read(key, name, bytes);
}

ProcessLock::ProcessLock(const char* nameFormat) noexcept
{
    std::array<char, 1024> name{}; // as much as wsprintfA ever writes
    wsprintfA(name.data(), nameFormat, GetCurrentProcessId());
    const HANDLE mutex = CreateMutexA(nullptr, FALSE, name.data());
    if (!mutex)
        return;
    const DWORD waited = WaitForSingleObject(mutex, INFINITE);
    // An abandoned mutex is acquired all the same: what it guards is one pointer, which is never half-written.
    if (waited == WAIT_OBJECT_0 || waited == WAIT_ABANDONED)
        mutex_ = mutex;
    else
        CloseHandle(mutex);
}

ProcessLock::~ProcessLock()
{
    if (!mutex_)
        return;
    ReleaseMutex(mutex_);
    CloseHandle(mutex_);
}

ActivationScope::ActivationScope(const void* address) noexcept
{
    auto* const activate = activateContext.find();
    if (!activate || !deactivateContext.find() || !liesInModule(address))
        return;
    if (const HANDLE context = contextOf(address)) {
        ULONG_PTR cookie = 0;
        active_ = activate(context, &cookie);
        cookie_ = cookie;
    }
}

ActivationScope::~ActivationScope()
{
    if (active_)
        deactivateContext.find()(0, cookie_);
}

} // namespace quordsp::os
