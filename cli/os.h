// The fence to the operating system: what the tool needs of it, in plain types. Text is UTF-8. os_windows.cpp and
// os_posix.cpp are its two bodies.
#pragma once
#include <string>
#include <vector>

namespace quordsp::cli::os {

// While it lives, the console shows UTF-8.
class Utf8Console {
public:
    Utf8Console();
    ~Utf8Console();
    Utf8Console(const Utf8Console&) = delete;
    Utf8Console& operator=(const Utf8Console&) = delete;

private:
    unsigned before_ = 0;
};

// True when the system takes both paths for the same one, whether it is there or not.
bool sameName(const std::string& one, const std::string& other);

// True when a person reads the error stream as it is written.
bool errorsGoToTerminal();

// Ends the process as if it had never handled the signal: a script in a shell stops then as well.
[[noreturn]] void endBySignal(int signal);

// The full path of a module that this process has loaded, by its file name; empty when it has not.
std::string loadedModulePath(const std::string& fileName);

// The full path of the module that contains an address; empty when there is none.
std::string modulePathOf(const void* address);

// The address of a function that a loaded module exports, the module by its file name; null when there is none.
void* functionOf(const std::string& fileName, const char* function);

// The version that a module file states about itself; empty when it states none.
std::string moduleVersion(const std::string& path);

// The file name of the analysis backend on this system.
extern const char* const kBackendFile;

// A place where the library looks for the backend: a path for the system's loader, or the reason why there is none.
struct BackendPlace {
    std::string where;
    std::string path;
    std::string notTried;
};

// In the library's order. The address is one inside the library.
std::vector<BackendPlace> backendPlaces(const void* insideLibrary);

// What the system says when it is asked to load a module; empty when it loads.
std::string loadError(const std::string& path);

} // namespace quordsp::cli::os
