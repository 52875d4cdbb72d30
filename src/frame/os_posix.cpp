#include <algorithm>
#include <cstring>

#include <dlfcn.h>
#include <link.h>
#include <pthread.h>

#include "frame/os.h"

namespace quordsp::os {
namespace {

// Recursive: loading a module runs its start-up code, which may call the library again on the same thread.
pthread_mutex_t processMutex = PTHREAD_RECURSIVE_MUTEX_INITIALIZER_NP;

} // namespace

Module loadModule(const char* path) noexcept
{
    return static_cast<Module>(dlopen(path, RTLD_NOW | RTLD_LOCAL));
}

Module loadedModule(const char* fileName) noexcept
{
    void* const module = dlopen(fileName, RTLD_NOW | RTLD_NOLOAD);
    if (module)
        dlclose(module); // gives back the reference only
    return static_cast<Module>(module);
}

std::size_t modulePath(Module module, std::span<char> path) noexcept
{
    const link_map* map = nullptr;
    if (dlinfo(module, RTLD_DI_LINKMAP, static_cast<void*>(&map)) != 0)
        return 0;
    const std::size_t length = std::strlen(map->l_name);
    if (length >= path.size())
        return 0;
    std::copy_n(map->l_name, length + 1, path.data());
    return length;
}

Symbol symbol(Module module, const char* name) noexcept
{
    return reinterpret_cast<Symbol>(dlsym(module, name));
}

std::size_t machineValue(const char*, const char*, std::span<char>) noexcept
{
    return 0; // no such registry here
}

// One lock a process: the library is the only module that takes it.
ProcessLock::ProcessLock(const char*) noexcept
{
    if (pthread_mutex_lock(&processMutex) == 0)
        mutex_ = &processMutex;
}

ProcessLock::~ProcessLock()
{
    if (mutex_)
        pthread_mutex_unlock(&processMutex);
}

ActivationScope::ActivationScope(const void*) noexcept {}

ActivationScope::~ActivationScope() = default;

} // namespace quordsp::os
