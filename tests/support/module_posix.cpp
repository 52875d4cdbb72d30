#include <dlfcn.h>
#include <link.h>

#include "support/module.h"

namespace support {

Module Module::load(const std::filesystem::path& file)
{
    return Module{dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)};
}

Module Module::loaded(const std::string& fileName)
{
    void* const handle = dlopen(fileName.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (handle)
        dlclose(handle);
    return Module{handle};
}

Module::Symbol Module::symbol(const char* name) const
{
    return reinterpret_cast<Symbol>(dlsym(handle_, name));
}

std::filesystem::path Module::path() const
{
    const link_map* map = nullptr;
    return dlinfo(handle_, RTLD_DI_LINKMAP, &map) == 0 ? map->l_name : "";
}

void Module::release() const
{
    dlclose(handle_);
}

std::filesystem::path programPath()
{
    return std::filesystem::read_symlink("/proc/self/exe");
}

const char* const kLibraryFile = "libQuorDSP_DAQ.so";
const char* const kBackendFile = "libnianlys.so";

} // namespace support
