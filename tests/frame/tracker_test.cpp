// The resource services over a faked system.
#include "frame/tracker.h"

#include <gmock/gmock.h>

#include "fakes/os_fake.h"

namespace quordsp {
namespace {

using ::testing::ElementsAre;

int registerResource(void*, os::Symbol, const char*)
{
    return 1;
}
int unregisterResource(void*)
{
    return 2;
}
void callback() {}

template <class Function>
os::Symbol address(Function* function)
{
    return reinterpret_cast<os::Symbol>(function);
}

const std::string kDisposer = "cviresourcedisposer.dll";

class ResourceTest : public testing::Test {
protected:
    void loadDisposer(std::map<std::string, os::Symbol> exports)
    {
        system.loaded[kDisposer] = "C:\\" + kDisposer;
        system.exports[kDisposer] = std::move(exports);
    }

    fake::FakeSystem system;
    Disposer disposer;
    int object = 0;
};

TEST_F(ResourceTest, TrackerIsSoughtInTheFirstLoadedRunTimeWithoutAnyContext)
{
    system.loaded["instrsup.dll"] = "C:\\instrsup.dll";
    system.loaded["cvi_lvrt.dll"] = "C:\\cvi_lvrt.dll";
    system.exports["instrsup.dll"]["__CVI_Resource_Release"] = callback;
    EXPECT_EQ(findTrackerEntry("__CVI_Resource_Release"), callback);
    EXPECT_THAT(system.calls, ElementsAre("activate no context", "find cvirte.dll", "find instrsup.dll", "deactivate",
                                          "symbol instrsup.dll __CVI_Resource_Release"));
}

TEST_F(ResourceTest, TrackerEntryMissingInTheFirstRunTimeIsNotSoughtInTheNext)
{
    system.loaded["cvirte.dll"] = "C:\\cvirte.dll";
    system.loaded["instrsup.dll"] = "C:\\instrsup.dll";
    system.exports["instrsup.dll"]["__CVI_Resource_Release"] = callback;
    EXPECT_EQ(findTrackerEntry("__CVI_Resource_Release"), nullptr);
}

TEST_F(ResourceTest, TrackerIsAbsentWithoutARunTime)
{
    EXPECT_EQ(findTrackerEntry("__CVI_Resource_Release"), nullptr);
    EXPECT_THAT(system.calls, ElementsAre("activate no context", "find cvirte.dll", "find instrsup.dll",
                                          "find cvi_lvrt.dll", "deactivate"));
}

TEST_F(ResourceTest, TrackerEntryIsSoughtUntilItIsFound)
{
    ResourceRelease release;
    release.find();
    EXPECT_FALSE(system.calls.empty());
    system.loaded["cvirte.dll"] = "C:\\cvirte.dll";
    system.exports["cvirte.dll"]["__CVI_Resource_Release"] = callback;
    release.find();
    system.calls.clear();
    release.find();
    EXPECT_THAT(system.calls, ElementsAre());
}

TEST_F(ResourceTest, DisposerIsOnlyUsedWhenLoaded)
{
    EXPECT_EQ(disposer.add(&object, "AALFunc261"), Disposer::kUnavailable);
    EXPECT_EQ(disposer.remove(&object), Disposer::kUnavailable);
    EXPECT_THAT(system.calls, ElementsAre("find " + kDisposer, "find " + kDisposer));
}

TEST_F(ResourceTest, DisposerKeepsItsEntries)
{
    loadDisposer({{"RegisterCVIResource", address(registerResource)},
                  {"UnregisterCVIResource", address(unregisterResource)},
                  {"CommonAnalysisResourceDisposer", callback}});
    EXPECT_EQ(disposer.add(&object, "AALFunc261"), 1);
    EXPECT_EQ(disposer.remove(&object), 2);
    system.calls.clear();
    EXPECT_EQ(disposer.add(&object, "AALFunc261"), 1);
    EXPECT_EQ(disposer.remove(&object), 2);
    EXPECT_THAT(system.calls, ElementsAre());
}

TEST_F(ResourceTest, DisposerWithoutItsEntriesIsUnavailable)
{
    loadDisposer({});
    EXPECT_EQ(disposer.add(&object, "AALFunc261"), Disposer::kUnavailable);
    EXPECT_EQ(disposer.remove(&object), Disposer::kUnavailable);
    EXPECT_THAT(system.calls, ElementsAre("find " + kDisposer, "symbol " + kDisposer + " RegisterCVIResource",
                                          "find " + kDisposer, "symbol " + kDisposer + " UnregisterCVIResource"));
}

TEST_F(ResourceTest, DisposerSeeksAMissingCallbackWithANullModuleFromTheSecondTimeOn)
{
    loadDisposer({{"RegisterCVIResource", address(registerResource)}});
    EXPECT_EQ(disposer.add(&object, "AALFunc261"), Disposer::kUnavailable);
    system.exports[kDisposer]["CommonAnalysisResourceDisposer"] = callback;
    system.calls.clear();
    EXPECT_EQ(disposer.add(&object, "AALFunc261"), Disposer::kUnavailable);
    EXPECT_THAT(system.calls, ElementsAre("symbol program CommonAnalysisResourceDisposer"));
    system.exports["program"]["CommonAnalysisResourceDisposer"] = callback;
    EXPECT_EQ(disposer.add(&object, "AALFunc261"), 1);
}

} // namespace
} // namespace quordsp
