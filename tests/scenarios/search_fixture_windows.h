// Places where the backend may be found, each a folder of the running test's own.
#pragma once
#include <filesystem>
#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <windows.h>

#include "fakes/stage.h"
#include "scenarios/private_registry_windows.h"
#include "support/folders.h"
#include "support/library.h"

class Search : public testing::Test {
protected:
    using Path = std::filesystem::path;

    static constexpr int kNotFound = -5093;

    static int callLibrary() { return EXPORT(QuorDSP_Bw_LPF)(nullptr, 0, 0.0, 0.0, 0, nullptr); }

    static Path folder(const Path& name) { return support::ownFolder() / name; }

    // A copy of a fake backend in that folder.
    static Path installBackend(const Path& name, const Path& variant = "backend")
    {
        return support::copyTo(folder(name) / support::kBackendFile, support::fake(variant / support::kBackendFile));
    }

    // A fake run-time module, loaded from that folder.
    static support::Module loadRunTime(const Path& name, const Path& file)
    {
        const auto module =
            support::Module::load(support::copyTo(folder(name) / file, support::fake("run_time" / file)));
        EXPECT_TRUE(module);
        return module;
    }

    static void setPath(const Path& name) { SetEnvironmentVariableW(L"PATH", folder(name).c_str()); }

    // The shared folder as the registry names it, with its NUL.
    void setSharedFolder(const Path& name, std::string_view ending = "") const
    {
        registry_.setSharedFolder(folder(name).string() + std::string{ending} + '\0');
    }

    // The copy that the library has loaded; empty if none.
    static Path loadedBackend()
    {
        const auto module = support::Module::loaded(support::kBackendFile);
        return module ? module.path() : Path{};
    }

    PrivateRegistry registry_;
};
