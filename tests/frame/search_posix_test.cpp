// The search order on POSIX systems, as a list of calls to the system.
#include "frame/search.h"

#include <gmock/gmock.h>

#include "fakes/os_fake.h"

namespace quordsp {
namespace {

using ::testing::ElementsAre;

TEST(PosixSearch, TriesTheBareNameFirst)
{
    fake::FakeSystem system;
    system.loadable = {"libnianlys.so"};
    EXPECT_EQ(searchBackend(), fake::module("libnianlys.so"));
    EXPECT_THAT(system.calls, ElementsAre("load libnianlys.so"));
}

TEST(PosixSearch, ThenTriesTheFolderOfTheLibrary)
{
    fake::FakeSystem system;
    system.loaded["libQuorDSP_DAQ.so"] = "/opt/daq/lib/libQuorDSP_DAQ.so.1";
    system.loadable = {"/opt/daq/lib/libnianlys.so"};
    EXPECT_EQ(searchBackend(), fake::module("/opt/daq/lib/libnianlys.so"));
    EXPECT_THAT(system.calls,
                ElementsAre("load libnianlys.so", "find libQuorDSP_DAQ.so", "load /opt/daq/lib/libnianlys.so"));
}

TEST(PosixSearch, FindsNothingBesideALibraryWhosePathIsUnknown)
{
    fake::FakeSystem system;
    EXPECT_EQ(searchBackend(), nullptr);
    system.loaded["libQuorDSP_DAQ.so"] = std::nullopt;
    EXPECT_EQ(searchBackend(), nullptr);
    EXPECT_THAT(system.calls, ElementsAre("load libnianlys.so", "find libQuorDSP_DAQ.so", "load libnianlys.so",
                                          "find libQuorDSP_DAQ.so"));
}

TEST(PosixSearch, SkipsAFolderTooDeepForTheBackendsName)
{
    fake::FakeSystem system;
    system.loaded["libQuorDSP_DAQ.so"] = "/" + std::string(1023 - 14, 'a') + "/libnian.so";
    EXPECT_EQ(searchBackend(), nullptr);
    EXPECT_THAT(system.calls, ElementsAre("load libnianlys.so", "find libQuorDSP_DAQ.so"));
}

} // namespace
} // namespace quordsp
