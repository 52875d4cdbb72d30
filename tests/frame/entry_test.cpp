// The binding of an entry, over a faked system whose backend exports what the test says.
#include "frame/entry.h"

#include <climits>

#include <gmock/gmock.h>

#include "fakes/os_fake.h"

namespace quordsp {
namespace {

using ::testing::ElementsAre;

// What may be passed for what: equal types, and pointers that gain const.
static_assert(PassedUnchanged<int, int> && PassedUnchanged<double*, const double*>);
static_assert(!PassedUnchanged<int, Size> && !PassedUnchanged<Size, int> && !PassedUnchanged<int, double>);
static_assert(!PassedUnchanged<float, double> && !PassedUnchanged<const double*, double*>);

using Scale = Status(const double* in, Size n, double factor);
template <class... Args>
concept ScaleTakes = std::is_invocable_v<Entry<Scale, "AALFunc1">, Args...>;
static_assert(ScaleTakes<double*, Size, double>);
static_assert(!ScaleTakes<double*, int, double>, "a count that was not widened");
static_assert(!ScaleTakes<double*, double, Size>, "a changed order");
static_assert(!ScaleTakes<double*, Size> && !ScaleTakes<double*, Size, double, double>);
static_assert(widen(-1) == Size{-1} && widen(INT_MIN) == Size{INT_MIN});

Size receivedCount = 0;
Status scale(const double*, Size n, double) noexcept
{
    receivedCount = n;
    return static_cast<Status>(7);
}

template <EntryName name>
Status callScale()
{
    constexpr const double* none = nullptr;
    return Entry<Scale, name>{}(none, widen(-1), 1.0);
}

void exportScale(fake::System& system, const char* name)
{
    system.loadable = {"nianlys.dll"};
    system.exports["nianlys.dll"][name] = reinterpret_cast<os::Symbol>(scale);
}

// The bound address and the module are the process's own: each test binds an entry of another name.
TEST(Entry, AnswersThatThereIsNoBackendOnEveryCall)
{
    fake::FakeSystem system;
    EXPECT_EQ(callScale<"AALFunc1">(), QUORDSP_BACKEND_NOT_FOUND);
    EXPECT_EQ(callScale<"AALFunc1">(), QUORDSP_BACKEND_NOT_FOUND);
    EXPECT_EQ(std::ranges::count(system.calls, "load nianlys.dll"), 2);
}

TEST(Entry, AnswersThatTheEntryIsMissingAndLooksItUpAgain)
{
    fake::FakeSystem system;
    system.loadable = {"nianlys.dll"};
    EXPECT_EQ(callScale<"AALFunc2">(), QUORDSP_ENTRY_NOT_FOUND);
    system.calls.clear();
    EXPECT_EQ(callScale<"AALFunc2">(), QUORDSP_ENTRY_NOT_FOUND);
    EXPECT_THAT(system.calls, ElementsAre("symbol nianlys.dll AALFunc2"));
    exportScale(system, "AALFunc2");
    EXPECT_EQ(callScale<"AALFunc2">(), 7);
}

TEST(Entry, StaysBoundWhenALookUpThatBeganEarlierFails)
{
    fake::FakeSystem system;
    Status meanwhile = QUORDSP_SUCCESS;
    system.lockable = false;
    system.whileWaiting = [&] {
        system.lockable = true;
        exportScale(system, "AALFunc7");
        meanwhile = callScale<"AALFunc7">();
        system.lockable = false;
    };
    EXPECT_EQ(callScale<"AALFunc7">(), QUORDSP_BACKEND_NOT_FOUND);
    EXPECT_EQ(meanwhile, 7);
    system.calls.clear();
    EXPECT_EQ(callScale<"AALFunc7">(), 7);
    EXPECT_THAT(system.calls, ElementsAre());
}

TEST(Entry, PassesArgumentsAndStatusUnchangedAndLooksUpOnce)
{
    fake::FakeSystem system;
    exportScale(system, "AALFunc3");
    EXPECT_EQ(callScale<"AALFunc3">(), 7);
    EXPECT_EQ(receivedCount, -1);
    system.calls.clear();
    EXPECT_EQ(callScale<"AALFunc3">(), 7);
    EXPECT_THAT(system.calls, ElementsAre());
}

TEST(Entry, GivesANullHandleOrNothingWhenItCannotBeCalled)
{
    fake::FakeSystem system;
    constexpr Entry<QuorDSP_FFTTable*(Size), "AALFunc4"> create;
    constexpr Entry<void(QuorDSP_FFTTable*), "AALFunc5"> destroy;
    EXPECT_EQ(create(Size{8}), nullptr);
    EXPECT_EQ(create.bind(), QUORDSP_BACKEND_NOT_FOUND);
    destroy(static_cast<QuorDSP_FFTTable*>(nullptr));
}

TEST(Entry, BindsWithoutACall)
{
    fake::FakeSystem system;
    exportScale(system, "AALFunc6");
    receivedCount = 0;
    EXPECT_EQ((Entry<Scale, "AALFunc6">{}.bind()), QUORDSP_SUCCESS);
    EXPECT_EQ(receivedCount, 0);
    system.calls.clear();
    EXPECT_EQ(callScale<"AALFunc6">(), 7);
    EXPECT_THAT(system.calls, ElementsAre());
}

} // namespace
} // namespace quordsp
