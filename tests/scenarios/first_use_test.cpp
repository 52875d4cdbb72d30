// The first call that needs the backend: without one, with one that comes later, and from many threads at once.
#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

#include <gmock/gmock.h>

#include "scenarios/search_folder.h"
#include "support/starting_line.h"

namespace {

using testing::Contains;
using testing::Each;
using testing::IsEmpty;
using testing::StartsWith;

constexpr int kNotFound = -5093;

// What as many threads get from one call each, all started at the same moment.
template <class Call>
auto callFromThreads(Call call)
{
    constexpr std::size_t count = 32;
    support::StartingLine start{count};
    std::vector<decltype(call())> results(count);
    std::vector<std::jthread> threads;
    for (auto& result : results)
        threads.emplace_back([&start, &result, call] {
            start.arriveAndWait();
            result = call();
        });
    threads.clear();
    return results;
}

void loadSlowly()
{
    std::this_thread::sleep_for(std::chrono::milliseconds{100});
}

TEST_F(FirstUse, FailsOnEveryCallWhileThereIsNoBackend)
{
    for (int call = 0; call < 3; ++call)
        EXPECT_EQ(callLibrary(), kNotFound);
}

TEST_F(FirstUse, SucceedsOnceABackendIsPutInPlace)
{
    ASSERT_EQ(callLibrary(), kNotFound);
    installBackend("backend");
    fakes::stage().status = 5;
    EXPECT_EQ(callLibrary(), 5);
}

TEST_F(FirstUse, SucceedsOnceTheProgramHasLoadedABackendItself)
{
    ASSERT_EQ(callLibrary(), kNotFound);
    ASSERT_TRUE(support::Module::load(support::fake(std::filesystem::path{"backend"} / support::kBackendFile)));
    fakes::stage().status = 6;
    EXPECT_EQ(callLibrary(), 6);
}

TEST_F(FirstUse, FailsWithABackendThatDoesNotLoadAndSucceedsOnceItIsReplaced)
{
    installBackend("backend_refusing");
    ASSERT_EQ(callLibrary(), kNotFound);
    installBackend("backend");
    fakes::stage().status = 7;
    EXPECT_EQ(callLibrary(), 7);
}

TEST_F(FirstUse, LoadsTheBackendOnceForAllEntriesAndCalls)
{
    installBackend("backend");
    for (int call = 0; call < 100; ++call) {
        callLibrary();
        EXPORT(QuorDSP_Spectrum)(nullptr, 0);
        EXPORT(QuorDSP_CreateFFTTable)(0);
    }
    EXPECT_THAT(fakes::takeNotes(), Contains(StartsWith("load ")).Times(1));
}

TEST_F(FirstUse, LoadsNothingBeforeTheFirstCall)
{
    installBackend("backend");
    ASSERT_TRUE(support::library());
    EXPECT_FALSE(support::Module::loaded(support::kBackendFile));
    EXPECT_THAT(fakes::takeNotes(), IsEmpty());
}

TEST_F(FirstUse, HoldsExactlyOneReferenceToTheBackend)
{
    installBackend("backend");
    callLibrary();
    EXPORT(QuorDSP_Spectrum)(nullptr, 0);
    const auto backend = support::Module::loaded(support::kBackendFile);
    ASSERT_TRUE(backend);
    backend.release();
    EXPECT_FALSE(support::Module::loaded(support::kBackendFile));
}

TEST_F(FirstUse, KeepsTheBackendThatTheProgramLetsGo)
{
    installBackend("backend");
    const auto backend = support::Module::load(support::ownFolder() / support::kBackendFile);
    callLibrary();
    backend.release();
    fakes::stage().status = 8;
    EXPECT_EQ(callLibrary(), 8);
}

TEST_F(FirstUse, SucceedsInAllThreadsThatMakeItAtOnce)
{
    installBackend("backend");
    fakes::stage().onLoad = loadSlowly;
    fakes::stage().status = 9;
    EXPECT_THAT(callFromThreads(callLibrary), Each(9));
    const auto notes = fakes::takeNotes();
    EXPECT_THAT(notes, Contains(StartsWith("load ")).Times(1));
    EXPECT_THAT(notes, Contains(StartsWith("AALFunc21 ")).Times(32));
}

TEST_F(FirstUse, LoadsTheBackendInOneOfTheThreadsThatMakeItAtOnce)
{
    installBackend("backend");
    fakes::stage().onLoad = loadSlowly;
    callFromThreads(callLibrary);
    const auto backend = support::Module::loaded(support::kBackendFile);
    backend.release();
    EXPECT_FALSE(support::Module::loaded(support::kBackendFile)) << "loaded more than once";
}

TEST_F(FirstUse, FailsInAllThreadsThatMakeItAtOnceWithoutABackend)
{
    EXPECT_THAT(callFromThreads(callLibrary), Each(kNotFound));
}

TEST_F(FirstUse, AnnouncesTheObjectsOfAllThreadsThatMakeThemAtOnce)
{
    installBackend("backend");
    support::Module::load(support::fake("run_time/cvirte.dll"));
    support::Module::load(support::fake("disposer/cviresourcedisposer.dll"));
    int object = 0;
    fakes::stage().object = &object;
    callFromThreads([] { return EXPORT(QuorDSP_CreateFFTTable)(64); });
    const auto notes = fakes::takeNotes();
    EXPECT_THAT(notes, Contains(StartsWith("register ")).Times(32));
    EXPECT_THAT(notes, Contains(StartsWith("cvirte.dll acquire ")).Times(32));
}

// Start-up code of a backend may call the library on the thread that is loading it.
TEST_F(FirstUse, EndsWhenTheBackendCallsBackWhileItLoads)
{
    installBackend("backend");
    fakes::stage().status = 10;
    int inner = 0;
    fakes::stage().onLoad = [&inner] { inner = callLibrary(); };
    EXPECT_EQ(callLibrary(), 10);
    EXPECT_EQ(inner, 10);
}

} // namespace
