// A backend that is found and fails to load. It notes the folder that it was found in.
#include <array>
#include <filesystem>

#include <windows.h>

#include "fakes/stage.h"

BOOL WINAPI DllMain(HINSTANCE self, DWORD reason, void*)
{
    if (reason == DLL_PROCESS_ATTACH) {
        std::array<wchar_t, 1024> path{};
        GetModuleFileNameW(self, path.data(), static_cast<DWORD>(path.size()));
        fakes::note("refuse " + std::filesystem::path{path.data()}.parent_path().string());
    }
    return FALSE;
}
