// The search order on Windows, as a list of calls to the system.
#include "frame/locator.h"

#include <gmock/gmock.h>

#include "fakes/os_fake.h"

namespace quordsp {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;
using ::testing::StartsWith;

const std::string kLock = "lock National Instruments LabWindows/CVI Analysis Library %d";
const std::string kValue = "value SOFTWARE\\National Instruments\\Common\\Installer NISHAREDDIR64";

class LocatorTest : public testing::Test {
protected:
    // The calls to load a file, in order.
    std::vector<std::string> loads() const
    {
        std::vector<std::string> found;
        for (const std::string& call : system.calls)
            if (call.starts_with("load "))
                found.push_back(call.substr(5));
        return found;
    }

    fake::FakeSystem system;
    Locator locator;
};

// A value as the registry keeps text: with its NUL.
std::string registryText(const std::string& text)
{
    return text + '\0';
}

TEST_F(LocatorTest, TriesEveryPlaceInOrderUnderTheLock)
{
    EXPECT_EQ(locator.backend(), nullptr);
    EXPECT_THAT(system.calls,
                ElementsAre(kLock, "activate own context", "load nianlys.dll", "deactivate", "find cvirte.dll",
                            "find instrsup.dll", "find cvi_lvrt.dll", kValue, "unlock"));
}

TEST_F(LocatorTest, EndsTheSearchAtTheBareName)
{
    system.loadable = {"nianlys.dll"};
    system.loaded["cvirte.dll"] = "C:\\cvi\\cvirte.dll";
    EXPECT_EQ(locator.backend(), fake::module("nianlys.dll"));
    EXPECT_THAT(system.calls, ElementsAre(kLock, "activate own context", "load nianlys.dll", "deactivate", "unlock"));
}

TEST_F(LocatorTest, KeepsTheModule)
{
    system.loadable = {"nianlys.dll"};
    locator.backend();
    system.calls.clear();
    EXPECT_EQ(locator.backend(), fake::module("nianlys.dll"));
    EXPECT_THAT(system.calls, ElementsAre());
}

TEST_F(LocatorTest, SearchesAgainAfterAFailure)
{
    EXPECT_EQ(locator.backend(), nullptr);
    const auto firstCalls = system.calls;
    system.calls.clear();
    EXPECT_EQ(locator.backend(), nullptr);
    EXPECT_EQ(system.calls, firstCalls);
    system.loadable = {"nianlys.dll"};
    EXPECT_NE(locator.backend(), nullptr);
}

TEST_F(LocatorTest, GivesUpWithoutTheLock)
{
    system.lockable = false;
    system.loadable = {"nianlys.dll"};
    EXPECT_EQ(locator.backend(), nullptr);
    EXPECT_THAT(system.calls, ElementsAre(kLock));
}

TEST_F(LocatorTest, TakesTheModuleThatAnotherThreadLoadedMeanwhile)
{
    system.loadable = {"nianlys.dll"};
    system.whileWaiting = [this] {
        locator.backend();
        system.calls.clear();
    };
    EXPECT_EQ(locator.backend(), fake::module("nianlys.dll"));
    EXPECT_THAT(system.calls, ElementsAre("unlock"));
}

struct RunTime {
    std::string file;
    std::string path;
    std::string backend;
};
class BesideRunTime : public LocatorTest, public testing::WithParamInterface<RunTime> {};

TEST_P(BesideRunTime, LoadsFromItsFolder)
{
    system.loaded[GetParam().file] = GetParam().path;
    system.loadable = {GetParam().backend};
    EXPECT_EQ(locator.backend(), fake::module(GetParam().backend));
    EXPECT_THAT(system.calls, Not(Contains(kValue)));
}

INSTANTIATE_TEST_SUITE_P(EachRunTime, BesideRunTime,
                         testing::Values(RunTime{"cvirte.dll", "C:\\a\\cvirte.dll", "C:\\a\\nianlys.dll"},
                                         RunTime{"instrsup.dll", "C:\\b c\\instrsup.dll", "C:\\b c\\nianlys.dll"},
                                         RunTime{"cvi_lvrt.dll", "\\\\host\\share\\cvi_lvrt.dll",
                                                 "\\\\host\\share\\nianlys.dll"},
                                         // as many characters go as the name has, whatever they are
                                         RunTime{"cvirte.dll", "C:\\a\\CVIRTE~1.DLL", "C:\\a\\CVnianlys.dll"}));

TEST_F(LocatorTest, AsksOnlyTheFirstRunTimeWhosePathCanBeRead)
{
    system.loaded = {
        {"cvirte.dll", std::nullopt}, {"instrsup.dll", "C:\\b\\instrsup.dll"}, {"cvi_lvrt.dll", "C:\\c\\cvi_lvrt.dll"}};
    EXPECT_EQ(locator.backend(), nullptr);
    EXPECT_THAT(loads(), ElementsAre("nianlys.dll", "C:\\b\\nianlys.dll"));
    EXPECT_THAT(system.calls, Contains(kValue));
}

TEST_F(LocatorTest, SkipsARunTimeInAFolderTooDeepForTheBackendsName)
{
    // 1023 characters are the longest path that fits; the backend's name is one longer than the run-time's.
    system.loaded["cvirte.dll"] = "C:\\" + std::string(1023 - 14, 'a') + "\\cvirte.dll";
    EXPECT_EQ(locator.backend(), nullptr);
    EXPECT_THAT(loads(), ElementsAre("nianlys.dll"));
    EXPECT_THAT(system.calls, Contains(kValue));
}

TEST_F(LocatorTest, SkipsTheAttemptWhenThePathOfTheRunTimeDoesNotFit)
{
    system.loaded = {{"cvirte.dll", std::string(1024, 'a')}, {"instrsup.dll", "C:\\b\\instrsup.dll"}};
    EXPECT_EQ(locator.backend(), nullptr);
    EXPECT_THAT(loads(), ElementsAre("nianlys.dll"));
    EXPECT_THAT(system.calls, Contains(kValue));
}

TEST_F(LocatorTest, SkipsARunTimeWhosePathIsShorterThanItsName)
{
    system.loaded["cvirte.dll"] = "cvirte";
    EXPECT_EQ(locator.backend(), nullptr);
    EXPECT_THAT(loads(), ElementsAre("nianlys.dll"));
}

TEST_F(LocatorTest, TriesTheSharedFolderAsItStandsThenWithABackslash)
{
    system.machineValue = registryText("C:\\Shared");
    EXPECT_EQ(locator.backend(), nullptr);
    EXPECT_THAT(loads(),
                ElementsAre("nianlys.dll", "C:\\SharedAnalysis\\nianlys.dll", "C:\\Shared\\Analysis\\nianlys.dll"));
}

TEST_F(LocatorTest, LoadsFromASharedFolderWithTrailingBackslash)
{
    system.machineValue = registryText("C:\\Shared\\");
    system.loadable = {"C:\\Shared\\Analysis\\nianlys.dll"};
    EXPECT_EQ(locator.backend(), fake::module("C:\\Shared\\Analysis\\nianlys.dll"));
    EXPECT_THAT(loads(), ElementsAre("nianlys.dll", "C:\\Shared\\Analysis\\nianlys.dll"));
}

TEST_F(LocatorTest, LoadsFromASharedFolderWithoutTrailingBackslash)
{
    system.machineValue = registryText("C:\\Shared");
    system.loadable = {"C:\\Shared\\Analysis\\nianlys.dll"};
    EXPECT_EQ(locator.backend(), fake::module("C:\\Shared\\Analysis\\nianlys.dll"));
}

TEST_F(LocatorTest, OverwritesTheLastByteOfAValueThatHasNoNul)
{
    system.machineValue = "C:\\Shared";
    locator.backend();
    EXPECT_THAT(loads(), Contains("C:\\ShareAnalysis\\nianlys.dll"));
}

TEST_F(LocatorTest, SkipsAValueOfSizeZero)
{
    system.machineValue = "";
    EXPECT_EQ(locator.backend(), nullptr);
    EXPECT_THAT(loads(), ElementsAre("nianlys.dll"));
}

TEST_F(LocatorTest, UsesTheLongestSharedFolderThatFits)
{
    // "Analysis\nianlys.dll" takes 20 characters, and the path 1023.
    const std::string folder(1023 - 20, 'a');
    system.machineValue = registryText(folder);
    locator.backend();
    EXPECT_THAT(loads(), ElementsAre("nianlys.dll", folder + "Analysis\\nianlys.dll"));
}

TEST_F(LocatorTest, SkipsASharedFolderThatDoesNotFit)
{
    for (const std::size_t length : {1023u - 19u, 1023u}) {
        system.machineValue = registryText(std::string(length, 'a'));
        system.calls.clear();
        EXPECT_EQ(locator.backend(), nullptr);
        EXPECT_THAT(loads(), ElementsAre("nianlys.dll")) << length;
    }
}

} // namespace
} // namespace quordsp
