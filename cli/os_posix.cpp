#include "os.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <string_view>

#include <dlfcn.h>
#include <link.h>
#include <unistd.h>

namespace quordsp::cli::os {
namespace {

struct Search {
    std::string_view fileName;
    std::string path;
};

int compareModule(dl_phdr_info* module, std::size_t, void* data)
{
    auto& search = *static_cast<Search*>(data);
    const std::string_view path = module->dlpi_name;
    if (path.substr(path.rfind('/') + 1) != search.fileName)
        return 0;
    search.path = path;
    return 1; // stops
}

std::string absolute(const std::string& path)
{
    std::error_code error;
    const auto full = std::filesystem::canonical(path, error);
    return error ? path : full.string();
}

} // namespace

const char* const kBackendFile = "libnianlys.so";

Utf8Console::Utf8Console() = default;

Utf8Console::~Utf8Console() = default;

bool sameName(const std::string& one, const std::string& other)
{
    return one == other;
}

bool errorsGoToTerminal()
{
    return isatty(STDERR_FILENO) != 0;
}

void endBySignal(int signal)
{
    std::signal(signal, SIG_DFL);
    std::raise(signal);
    std::abort();
}

std::string loadedModulePath(const std::string& fileName)
{
    Search search{fileName, {}};
    dl_iterate_phdr(compareModule, &search);
    return search.path.empty() ? "" : absolute(search.path);
}

std::string modulePathOf(const void* address)
{
    Dl_info info;
    return dladdr(address, &info) != 0 && info.dli_fname ? absolute(info.dli_fname) : "";
}

void* functionOf(const std::string& fileName, const char* function)
{
    const std::string path = loadedModulePath(fileName);
    void* const module = path.empty() ? nullptr : dlopen(path.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (!module)
        return nullptr;
    void* const address = dlsym(module, function);
    dlclose(module); // it stays loaded: the one who loaded it has it open
    return address;
}

std::string moduleVersion(const std::string&)
{
    return {}; // a shared object carries none
}

std::vector<BackendPlace> backendPlaces(const void* insideLibrary)
{
    const std::filesystem::path library = modulePathOf(insideLibrary);
    return {{"the system's search (LD_LIBRARY_PATH and the folders of the loader)", kBackendFile, {}},
            {"beside the library", (library.parent_path() / kBackendFile).string(), {}}};
}

std::string loadError(const std::string& path)
{
    if (dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL))
        return {};
    const char* const text = dlerror(); // NOLINT(concurrency-mt-unsafe): only the main thread loads modules
    return text ? text : "the system gives no reason";
}

} // namespace quordsp::cli::os
