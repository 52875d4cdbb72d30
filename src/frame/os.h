// The fence to the operating system: what the frame needs of it, in plain types. os_windows.cpp and os_posix.cpp are
// its two bodies; a third one, which only keeps a list of the calls, stands with the tests.
#pragma once
#include <cstddef>
#include <cstdint>
#include <span>

namespace quordsp::os {

struct ModuleRecord;
using Module = ModuleRecord*;
using Symbol = void (*)();

// Loads a module by file name or path; null when that fails. The frame keeps what it loads.
Module loadModule(const char* path) noexcept;

// A module that the process has already loaded, by its file name; takes no reference to it.
Module loadedModule(const char* fileName) noexcept;

// The module's full path with its terminating NUL; its length, or 0 when it cannot be read, or path.size() when it does
// not fit.
std::size_t modulePath(Module module, std::span<char> path) noexcept;

// An exported function by name. A null module means what the system makes of it: the program's own exports.
Symbol symbol(Module module, const char* name) noexcept;

// The bytes of a value under the machine-wide configuration key, of whatever type; their number, or 0 when the value is
// missing or does not fit.
std::size_t machineValue(const char* key, const char* name, std::span<char> bytes) noexcept;

// A lock that all modules of this process share by its name. The name is a format that takes the process id (%d).
class ProcessLock {
public:
    explicit ProcessLock(const char* nameFormat) noexcept;
    ~ProcessLock();
    ProcessLock(const ProcessLock&) = delete;
    ProcessLock& operator=(const ProcessLock&) = delete;
    // False when the lock could not be had.
    explicit operator bool() const noexcept { return mutex_ != nullptr; }

private:
    void* mutex_ = nullptr;
};

// While it lives, modules are resolved in the activation context of the module that contains the address, if there is
// one.
class ActivationScope {
public:
    explicit ActivationScope(const void* address) noexcept;
    ~ActivationScope();
    ActivationScope(const ActivationScope&) = delete;
    ActivationScope& operator=(const ActivationScope&) = delete;

private:
    [[maybe_unused]] bool active_ = false;
    [[maybe_unused]] std::uintptr_t cookie_ = 0;
};

} // namespace quordsp::os
