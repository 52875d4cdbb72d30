// Calls that fail hold nothing of the system afterwards.
#include <gmock/gmock.h>

#include "scenarios/search_folder.h"
#include "support/resources.h"

namespace {

using support::heldResources;

constexpr int kCalls = 10'000;

class FailingCalls : public FirstUse {};

TEST_F(FailingCalls, LeaveTheOpenHandlesAsTheyAre)
{
    callLibrary();
    const auto before = heldResources().handles;
    for (int call = 0; call < kCalls; ++call)
        ASSERT_EQ(callLibrary(), -5093);
    EXPECT_EQ(heldResources().handles, before);
}

TEST_F(FailingCalls, LeaveTheLoadedModulesAsTheyAre)
{
    ASSERT_TRUE(support::library());
    const auto before = heldResources().modules;
    for (int call = 0; call < 10; ++call)
        ASSERT_EQ(callLibrary(), -5093);
    EXPECT_EQ(heldResources().modules, before);
}

TEST_F(FailingCalls, LeaveHandlesAndModulesAsTheyAreWhenTheEntryIsMissing)
{
    installBackend("backend_partial");
    callLibrary();
    const auto before = heldResources();
    for (int call = 0; call < kCalls; ++call)
        ASSERT_EQ(callLibrary(), -5094);
    EXPECT_EQ(heldResources(), before);
}

// A comparison that sees no difference would be worth nothing.
TEST(HeldResources, TellOfOneLeakedHandle)
{
    const auto before = heldResources();
    support::leakHandle();
    EXPECT_EQ(heldResources().handles, before.handles + 1);
}

TEST(HeldResources, TellOfOneLoadedModule)
{
    const auto before = heldResources();
    ASSERT_TRUE(support::Module::load(support::fake("run_time/cvirte.dll")));
    EXPECT_GT(heldResources().modules.size(), before.modules.size());
}

} // namespace
