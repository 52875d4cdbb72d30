// Modules loaded at run time, alike on every system.
#pragma once
#include <filesystem>
#include <string>

namespace support {

class Module {
public:
    using Symbol = void (*)();

    // Loads a file, or finds one that is loaded already (which takes no reference).
    static Module load(const std::filesystem::path& file);
    static Module loaded(const std::string& fileName);

    explicit operator bool() const { return handle_ != nullptr; }
    bool operator==(const Module&) const = default;

    Symbol symbol(const char* name) const;
    template <class Function>
    Function* function(const char* name) const
    {
        return reinterpret_cast<Function*>(symbol(name));
    }
    std::filesystem::path path() const;
    void release() const; // one reference

private:
    explicit Module(void* handle) : handle_{handle} {}
    void* handle_;
};

std::filesystem::path programPath();

// The file names of the library and of the backend on this system.
extern const char* const kLibraryFile;
extern const char* const kBackendFile;

} // namespace support
