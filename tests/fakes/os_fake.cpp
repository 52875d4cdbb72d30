#include "fakes/os_fake.h"

#include <algorithm>
#include <utility>

// The program's image, as the linker lays it out.
extern const char __executable_start;
extern const char end;

namespace quordsp {
namespace fake {

System* system = nullptr;

os::Module module(const std::string& file)
{
    static std::set<std::string> names; // a node's address stays
    return reinterpret_cast<os::Module>(const_cast<std::string*>(&*names.insert(file).first));
}

static const std::string& fileOf(os::Module module)
{
    static const std::string program = "program";
    return module ? *reinterpret_cast<const std::string*>(module) : program;
}

static void log(const std::string& call)
{
    system->calls.push_back(call);
}

static std::size_t copyWhole(const std::string& from, std::size_t size, std::span<char> to)
{
    if (size > to.size())
        return 0;
    std::copy_n(from.c_str(), size, to.data());
    return size;
}

} // namespace fake

namespace os {

Module loadModule(const char* path) noexcept
{
    fake::log(std::string{"load "} + path);
    return fake::system->loadable.contains(path) ? fake::module(path) : nullptr;
}

Module loadedModule(const char* fileName) noexcept
{
    fake::log(std::string{"find "} + fileName);
    return fake::system->loaded.contains(fileName) ? fake::module(fileName) : nullptr;
}

std::size_t modulePath(Module module, std::span<char> path) noexcept
{
    const auto& known = fake::system->loaded.at(fake::fileOf(module));
    if (!known)
        return 0;
    return fake::copyWhole(*known, known->size() + 1, path) ? known->size() : path.size();
}

Symbol symbol(Module module, const char* name) noexcept
{
    const std::string& file = fake::fileOf(module);
    fake::log("symbol " + file + " " + name);
    const auto& exports = fake::system->exports[file];
    const auto found = exports.find(name);
    return found == exports.end() ? nullptr : found->second;
}

std::size_t machineValue(const char* key, const char* name, std::span<char> bytes) noexcept
{
    fake::log(std::string{"value "} + key + " " + name);
    const auto& value = fake::system->machineValue;
    return value ? fake::copyWhole(*value, value->size(), bytes) : 0;
}

ProcessLock::ProcessLock(const char* nameFormat) noexcept
{
    fake::log(std::string{"lock "} + nameFormat);
    std::exchange(fake::system->whileWaiting, [] {})();
    if (fake::system->lockable)
        mutex_ = fake::system;
}

ProcessLock::~ProcessLock()
{
    if (mutex_)
        fake::log("unlock");
}

ActivationScope::ActivationScope(const void* address) noexcept
{
    const bool inside = address >= &__executable_start && address < &end;
    fake::log(inside ? "activate own context" : "activate no context");
}

ActivationScope::~ActivationScope()
{
    fake::log("deactivate");
}

} // namespace os
} // namespace quordsp
