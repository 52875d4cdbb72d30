#include <algorithm>
#include <array>
#include <climits>
#include <cstdio>
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
    // The name that the module was loaded by may be relative to a folder that is the working folder no longer; its
    // origin is the two together.
    std::array<char, 2 * PATH_MAX> folder{};
    const link_map* map = nullptr;
    if (dlinfo(module, RTLD_DI_LINKMAP, static_cast<void*>(&map)) != 0 ||
        dlinfo(module, RTLD_DI_ORIGIN, folder.data()) != 0)
        return 0;
    const char* const slash = std::strrchr(map->l_name, '/');
    const int length = std::snprintf(path.data(), path.size(), "%s/%s", folder.data(), slash ? slash + 1 : map->l_name);
    return std::min(static_cast<std::size_t>(std::max(length, 0)), path.size());
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
