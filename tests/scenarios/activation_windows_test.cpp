// The backend is resolved in the library's own activation context, not in its caller's.
#include <fstream>
#include <utility>

#include "scenarios/search_fixture_windows.h"

namespace {

// A context in which the backend's bare name means the copy beside the manifest.
class CallersContext : public Search {
protected:
    CallersContext()
    {
        redirected_ = installBackend("redirected");
        const Path manifest = folder("redirected") / "caller.manifest";
        std::ofstream{manifest} << "<assembly xmlns='urn:schemas-microsoft-com:asm.v1' manifestVersion='1.0'>"
                                   "<file name='nianlys.dll'/></assembly>";
        ACTCTXW source{};
        source.cbSize = sizeof source;
        source.lpSource = manifest.c_str();
        const HANDLE context = CreateActCtxW(&source);
        EXPECT_NE(context, INVALID_HANDLE_VALUE);
        EXPECT_TRUE(ActivateActCtx(context, &cookie_));
    }
    ~CallersContext() override { leave(); }

    // The context also redirects the test's own look for the loaded copy.
    void leave()
    {
        if (cookie_)
            DeactivateActCtx(0, std::exchange(cookie_, 0));
    }

    Path redirected_;

private:
    ULONG_PTR cookie_ = 0;
};

TEST_F(CallersContext, RedirectsThisProgram)
{
    ASSERT_NE(LoadLibraryA("nianlys.dll"), nullptr);
    EXPECT_EQ(loadedBackend(), redirected_);
}

TEST_F(CallersContext, DoesNotRedirectTheLibrary)
{
    EXPECT_EQ(callLibrary(), kNotFound);
}

TEST_F(CallersContext, GivesWayToTheSystemsSearch)
{
    const Path expected = installBackend("path");
    setPath("path");
    EXPECT_EQ(callLibrary(), 0);
    leave();
    EXPECT_EQ(loadedBackend(), expected);
}

TEST_F(CallersContext, IsActiveAgainAfterTheSearch)
{
    ASSERT_EQ(callLibrary(), kNotFound);
    ASSERT_NE(LoadLibraryA("nianlys.dll"), nullptr);
    EXPECT_EQ(loadedBackend(), redirected_);
}

} // namespace
