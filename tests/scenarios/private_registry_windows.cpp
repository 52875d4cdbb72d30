#include "scenarios/private_registry_windows.h"

PrivateRegistry::PrivateRegistry() : path_{"Software\\QuorDSP_DAQ tests\\" + std::to_string(GetCurrentProcessId())}
{
    RegDeleteTreeA(HKEY_CURRENT_USER, path_.c_str());
    RegCreateKeyExA(HKEY_CURRENT_USER, path_.c_str(), 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr, &root_,
                    nullptr);
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, root_);
}

PrivateRegistry::~PrivateRegistry()
{
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    RegCloseKey(root_);
    RegDeleteTreeA(HKEY_CURRENT_USER, path_.c_str());
}

HKEY PrivateRegistry::openInstallerKey() const
{
    HKEY key = nullptr;
    RegCreateKeyExA(root_, "SOFTWARE\\National Instruments\\Common\\Installer", 0, nullptr, REG_OPTION_VOLATILE,
                    KEY_ALL_ACCESS, nullptr, &key, nullptr);
    return key;
}

void PrivateRegistry::createKey() const
{
    RegCloseKey(openInstallerKey());
}

void PrivateRegistry::setSharedFolder(std::string_view bytes, DWORD type) const
{
    // The system adds a NUL to a string that lacks one, if one follows it in memory: none does here.
    const std::string followed = std::string{bytes} + 'X';
    const HKEY key = openInstallerKey();
    RegSetValueExA(key, "NISHAREDDIR64", 0, type, reinterpret_cast<const BYTE*>(followed.data()),
                   static_cast<DWORD>(bytes.size()));
    RegCloseKey(key);
}
