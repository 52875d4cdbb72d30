// The named mutex that all users of the backend in a process share while it is looked for.
#include <functional>
#include <thread>

#include "scenarios/search_fixture_windows.h"

namespace {

std::string lockName()
{
    return "National Instruments LabWindows/CVI Analysis Library " + std::to_string(GetCurrentProcessId());
}

HANDLE createLock()
{
    return CreateMutexA(nullptr, FALSE, lockName().c_str());
}

// A call on a thread of its own.
class Background {
public:
    explicit Background(std::function<int()> call)
        : thread_{[this, call] {
              result_ = call();
              SetEvent(done_);
          }}
    {}
    bool hasEndedAfter(DWORD milliseconds) const { return WaitForSingleObject(done_, milliseconds) == WAIT_OBJECT_0; }
    int result()
    {
        thread_.join();
        return result_;
    }

private:
    HANDLE done_ = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    int result_ = 0;
    std::jthread thread_;
};

bool lockExists()
{
    const HANDLE lock = OpenMutexA(SYNCHRONIZE, FALSE, lockName().c_str());
    return lock && CloseHandle(lock);
}

class Lock : public Search {
protected:
    Lock()
    {
        installBackend("path");
        setPath("path");
    }
};

TEST_F(Lock, HoldsTheFirstCallUpUntilItIsReleased)
{
    const HANDLE lock = createLock();
    WaitForSingleObject(lock, INFINITE);
    Background call{callLibrary};
    EXPECT_FALSE(call.hasEndedAfter(300));
    EXPECT_EQ(loadedBackend(), Path{});
    ReleaseMutex(lock);
    EXPECT_EQ(call.result(), 0);
}

TEST_F(Lock, HoldsEveryCallOfAFailingSearchUp)
{
    setPath("nowhere");
    ASSERT_EQ(callLibrary(), kNotFound);
    const HANDLE lock = createLock();
    WaitForSingleObject(lock, INFINITE);
    Background call{callLibrary};
    EXPECT_FALSE(call.hasEndedAfter(300));
    ReleaseMutex(lock);
    EXPECT_EQ(call.result(), kNotFound);
}

TEST_F(Lock, HoldsNoCallUpOnceTheBackendIsLoaded)
{
    ASSERT_EQ(callLibrary(), 0);
    const HANDLE lock = createLock();
    WaitForSingleObject(lock, INFINITE);
    const Background bound{callLibrary};
    const Background firstOfItsEntry{[] { return EXPORT(QuorDSP_Spectrum)(nullptr, 0); }};
    EXPECT_TRUE(bound.hasEndedAfter(10'000));
    EXPECT_TRUE(firstOfItsEntry.hasEndedAfter(10'000));
    ReleaseMutex(lock);
}

TEST_F(Lock, CountsAsHeldWhenItsOwnerHasEndedWithoutReleasingIt)
{
    const HANDLE lock = createLock();
    std::thread{[lock] { WaitForSingleObject(lock, INFINITE); }}.join();
    EXPECT_EQ(callLibrary(), 0);
}

TEST_F(Lock, IsFreeAfterItWasAbandonedAndTaken)
{
    setPath("nowhere");
    const HANDLE lock = createLock();
    std::thread{[lock] { WaitForSingleObject(lock, INFINITE); }}.join();
    EXPECT_EQ(callLibrary(), kNotFound);
    Background taken{[lock] { return static_cast<int>(WaitForSingleObject(lock, 0)); }};
    EXPECT_EQ(taken.result(), int{WAIT_OBJECT_0});
}

TEST_F(Lock, FailsTheCallWhileItsNameBelongsToAnotherKindOfObject)
{
    const HANDLE event = CreateEventA(nullptr, FALSE, FALSE, lockName().c_str());
    ASSERT_NE(event, nullptr);
    EXPECT_EQ(callLibrary(), kNotFound);
    CloseHandle(event);
    EXPECT_EQ(callLibrary(), 0);
}

TEST_F(Lock, IsGoneAfterTheBackendWasLoaded)
{
    ASSERT_EQ(callLibrary(), 0);
    EXPECT_FALSE(lockExists());
}

TEST_F(Lock, IsGoneAfterAFailure)
{
    setPath("nowhere");
    ASSERT_EQ(callLibrary(), kNotFound);
    EXPECT_FALSE(lockExists());
}

TEST_F(Lock, IsThereWhileTheBackendLoads)
{
    bool there = false;
    fakes::stage().onLoad = [&there] { there = lockExists(); };
    ASSERT_EQ(callLibrary(), 0);
    EXPECT_TRUE(there);
}

} // namespace
