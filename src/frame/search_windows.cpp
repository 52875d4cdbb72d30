// The places of the backend on Windows, in order: the system's own search, the folder of a run-time module that the
// process has already loaded, and the shared folder that the registry names.
#include "frame/path_buffer.h"
#include "frame/run_time_modules.h"
#include "frame/search.h"

namespace quordsp {
namespace {

constexpr const char* kBackendFile = "nianlys.dll";
constexpr std::string_view kSubFolder = "Analysis\\";
constexpr const char* kInstallerKey = "SOFTWARE\\National Instruments\\Common\\Installer";
constexpr const char* kSharedFolderValue = "NISHAREDDIR64";

// Any address inside this library tells its activation context from the caller's.
constexpr char kInsideThisLibrary = 0;

os::Module loadFromSystem() noexcept
{
    const os::ActivationScope ownContext{&kInsideThisLibrary};
    return os::loadModule(kBackendFile);
}

// The first run-time module whose path can be read decides; its own file name gives way to the backend's.
os::Module loadBesideRunTime() noexcept
{
    for (const char* const fileName : kRunTimeModules) {
        const os::Module module = os::loadedModule(fileName);
        PathBuffer path;
        const std::size_t length = module ? os::modulePath(module, path.storage()) : 0;
        if (length == 0)
            continue;
        const bool built =
            path.setLength(length) && path.cut(std::string_view{fileName}.size()) && path.append(kBackendFile);
        return built ? os::loadModule(path.text()) : nullptr;
    }
    return nullptr;
}

os::Module loadFromSharedFolder() noexcept
{
    PathBuffer folder;
    const std::size_t size = os::machineValue(kInstallerKey, kSharedFolderValue, folder.storage());
    if (size == 0 || !folder.setLength(size - 1)) // the last byte is the value's NUL
        return nullptr;
    // The value may or may not end with a backslash: first as it stands, then with one.
    for (const std::string_view separator : {"", "\\"}) {
        PathBuffer path = folder;
        if (!(path.append(separator) && path.append(kSubFolder) && path.append(kBackendFile)))
            return nullptr;
        if (const os::Module module = os::loadModule(path.text()))
            return module;
    }
    return nullptr;
}

} // namespace

os::Module searchBackend() noexcept
{
    for (const auto attempt : {loadFromSystem, loadBesideRunTime, loadFromSharedFolder})
        if (const os::Module module = attempt())
            return module;
    return nullptr;
}

} // namespace quordsp
