// A machine-wide registry of the process's own: what is read there comes from an empty key of this process, so that
// tests neither touch the real one nor see each other's values.
#pragma once
#include <string>
#include <string_view>

#include <windows.h>

class PrivateRegistry {
public:
    PrivateRegistry();
    ~PrivateRegistry();
    PrivateRegistry(const PrivateRegistry&) = delete;
    PrivateRegistry& operator=(const PrivateRegistry&) = delete;

    // The key that names the shared folder, without the value.
    void createKey() const;
    // The value, of exactly these bytes; a terminating NUL is for the caller to give.
    void setSharedFolder(std::string_view bytes, DWORD type = REG_SZ) const;

private:
    HKEY openInstallerKey() const;

    std::string path_;
    HKEY root_ = nullptr;
};
