#include <vector>

#include <windows.h>

#include "support/module.h"

namespace support {
namespace {

std::filesystem::path pathOf(HMODULE module)
{
    std::vector<wchar_t> text(32768);
    const DWORD length = GetModuleFileNameW(module, text.data(), static_cast<DWORD>(text.size()));
    return std::filesystem::path{text.begin(), text.begin() + length};
}

} // namespace

Module Module::load(const std::filesystem::path& file)
{
    return Module{LoadLibraryW(file.c_str())};
}

Module Module::loaded(const std::string& fileName)
{
    return Module{GetModuleHandleA(fileName.c_str())};
}

Module::Symbol Module::symbol(const char* name) const
{
    return reinterpret_cast<Symbol>(GetProcAddress(static_cast<HMODULE>(handle_), name));
}

std::filesystem::path Module::path() const
{
    return pathOf(static_cast<HMODULE>(handle_));
}

void Module::release() const
{
    FreeLibrary(static_cast<HMODULE>(handle_));
}

std::filesystem::path programPath()
{
    return pathOf(nullptr);
}

const char* const kLibraryFile = "QuorDSP_DAQ.dll";
const char* const kBackendFile = "nianlys.dll";

} // namespace support
