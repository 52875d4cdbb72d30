// The places of the backend on POSIX systems, in order: the system's own search, and the folder of this library.
#include "frame/path_buffer.h"
#include "frame/search.h"

namespace quordsp {
namespace {

constexpr const char* kBackendFile = "libnianlys.so";
constexpr const char* kThisLibrary = "libQuorDSP_DAQ.so";

os::Module loadBesideThisLibrary() noexcept
{
    const os::Module self = os::loadedModule(kThisLibrary);
    PathBuffer path;
    const std::size_t length = self ? os::modulePath(self, path.storage()) : 0;
    if (length == 0 || !path.setLength(length))
        return nullptr;
    const std::size_t folder = path.view().rfind('/') + 1;
    return path.cut(length - folder) && path.append(kBackendFile) ? os::loadModule(path.text()) : nullptr;
}

} // namespace

os::Module searchBackend() noexcept
{
    if (const os::Module module = os::loadModule(kBackendFile))
        return module;
    return loadBesideThisLibrary();
}

} // namespace quordsp
