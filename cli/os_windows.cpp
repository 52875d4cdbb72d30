#include "os.h"

#include <array>
#include <filesystem>
#include <iterator>
#include <optional>
#include <system_error>

#include <windows.h>

namespace quordsp::cli::os {
namespace {

// The run-time modules beside which the library looks, in its order.
constexpr const char* kRunTimeModules[] = {"cvirte.dll", "instrsup.dll", "cvi_lvrt.dll"};
constexpr const char* kInstallerKey = "SOFTWARE\\National Instruments\\Common\\Installer";
constexpr const char* kSharedFolderValue = "NISHAREDDIR64";
constexpr std::size_t kPathSize = 1024; // of the library's buffers: what is longer it does not try

std::string pathOf(HMODULE module)
{
    std::array<char, kPathSize> path;
    const DWORD length = GetModuleFileNameA(module, path.data(), static_cast<DWORD>(path.size()));
    return length < path.size() ? std::string(path.data(), length) : "";
}

// The bytes of the value but the last, as the library takes them: of any type, nothing expanded, and whether the last
// one is a NUL or not.
std::optional<std::string> sharedFolder()
{
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, kInstallerKey, 0, KEY_READ, &key) != ERROR_SUCCESS)
        return std::nullopt;
    std::array<char, kPathSize> text;
    auto size = static_cast<DWORD>(text.size());
    const LSTATUS status =
        RegQueryValueExA(key, kSharedFolderValue, nullptr, nullptr, reinterpret_cast<BYTE*>(text.data()), &size);
    RegCloseKey(key);
    if (status != ERROR_SUCCESS || size == 0)
        return std::nullopt;
    return std::string(text.data(), size - 1);
}

// The system's loader reads a path up to its first NUL, which a value may have inside.
BackendPlace place(const std::string& where, const std::string& path)
{
    if (path.size() >= kPathSize)
        return {where, {}, "the path is too long"};
    return {where, path.c_str(), {}};
}

BackendPlace besideRunTime()
{
    for (const char* const fileName : kRunTimeModules) {
        const std::string module = loadedModulePath(fileName);
        if (!module.empty())
            return place(std::string("beside the loaded ") + fileName,
                         module.substr(0, module.size() - std::string(fileName).size()) + kBackendFile);
    }
    return {"beside a loaded run-time module",
            {},
            "this process has loaded none of cvirte.dll, instrsup.dll, cvi_lvrt.dll"};
}

void addSharedFolder(std::vector<BackendPlace>& places)
{
    const std::string where = std::string("HKLM\\") + kInstallerKey + ", value " + kSharedFolderValue;
    const auto folder = sharedFolder();
    if (!folder) {
        places.push_back({where, {}, "the value is not set or cannot be read"});
        return;
    }
    for (const char* const separator : {"", "\\"})
        places.push_back(place(where, *folder + separator + "Analysis\\" + kBackendFile));
}

std::string message(DWORD code)
{
    return std::system_category().message(static_cast<int>(code)) + " (" + std::to_string(code) + ")";
}

} // namespace

const char* const kBackendFile = "nianlys.dll";

Utf8Console::Utf8Console() : before_(GetConsoleOutputCP())
{
    SetConsoleOutputCP(CP_UTF8);
}

Utf8Console::~Utf8Console()
{
    if (before_ != 0)
        SetConsoleOutputCP(before_);
}

bool sameName(const std::string& one, const std::string& other)
{
    const std::wstring first = std::filesystem::path(std::u8string(one.begin(), one.end()));
    const std::wstring second = std::filesystem::path(std::u8string(other.begin(), other.end()));
    return CompareStringOrdinal(first.c_str(), -1, second.c_str(), -1, TRUE) == CSTR_EQUAL;
}

bool errorsGoToTerminal()
{
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &mode) != 0;
}

void endBySignal(int)
{
    ExitProcess(static_cast<UINT>(STATUS_CONTROL_C_EXIT));
}

std::string loadedModulePath(const std::string& fileName)
{
    const HMODULE module = GetModuleHandleA(fileName.c_str());
    return module ? pathOf(module) : "";
}

std::string modulePathOf(const void* address)
{
    HMODULE module = nullptr;
    constexpr DWORD kByAddress = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    return GetModuleHandleExA(kByAddress, static_cast<const char*>(address), &module) ? pathOf(module) : "";
}

void* functionOf(const std::string& fileName, const char* function)
{
    const HMODULE module = GetModuleHandleA(fileName.c_str());
    return module ? reinterpret_cast<void*>(GetProcAddress(module, function)) : nullptr;
}

std::string moduleVersion(const std::string& path)
{
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeA(path.c_str(), &ignored);
    std::vector<char> block(size);
    VS_FIXEDFILEINFO* info = nullptr;
    UINT length = 0;
    if (size == 0 || !GetFileVersionInfoA(path.c_str(), 0, size, block.data()) ||
        !VerQueryValueA(block.data(), "\\", reinterpret_cast<void**>(&info), &length) || !info)
        return {};
    return std::to_string(HIWORD(info->dwFileVersionMS)) + '.' + std::to_string(LOWORD(info->dwFileVersionMS)) + '.' +
           std::to_string(HIWORD(info->dwFileVersionLS)) + '.' + std::to_string(LOWORD(info->dwFileVersionLS));
}

std::vector<BackendPlace> backendPlaces(const void*)
{
    std::vector<BackendPlace> places{
        {"the system's search (the program's folder, the system's folders, PATH)", kBackendFile, {}}, besideRunTime()};
    addSharedFolder(places);
    return places;
}

std::string loadError(const std::string& path)
{
    return LoadLibraryA(path.c_str()) ? std::string{} : message(GetLastError());
}

} // namespace quordsp::cli::os
