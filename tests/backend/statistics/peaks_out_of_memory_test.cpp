// Allocation n fails, for every n: the peak detector answers "not enough memory", writes nothing, leaks nothing and has
// not seen the block, which can be given again.
#include "backend/support/failing_new.h"

#include "backend/statistics/peaks.h"

namespace {

std::size_t refusedSize = 0;
int grantsLeft = 0;

} // namespace

#if !__has_feature(address_sanitizer) // which has replaced it
extern "C" void* __libc_malloc(std::size_t size);

extern "C" [[gnu::visibility("default")]] void* malloc(std::size_t size)
{
    if (size == refusedSize && size > 0 && grantsLeft-- == 0)
        return nullptr;
    return __libc_malloc(size);
}
#endif

namespace quordsp::backend {
namespace {

constexpr std::ptrdiff_t kFirst = 1000;

class PeaksOutOfMemory : public testing::TestWithParam<std::int64_t> {
protected:
    Peaks takeFirst() const { return peaksOfBlock({x.begin(), x.begin() + kFirst}, settings, true, false); }

    static void expectRefused(Status status, const PeakArrays& found)
    {
        EXPECT_EQ(status, Status::OutOfMemory);
        EXPECT_TRUE(found.areUntouched());
    }

    void expectAll(Peaks ofFirst, const Peaks& ofSecond) const
    {
        ofFirst.insert(ofFirst.end(), ofSecond.begin(), ofSecond.end());
        EXPECT_EQ(ofFirst, peaksOf(x, settings));
        EXPECT_FALSE(ofFirst.empty());
    }

    const PeakSettings settings = {-100, GetParam()};
    const Array x = noise(4000, 1);
    const Array second{x.begin() + kFirst, x.end()};
    PeakArrays found;
};

TEST_P(PeaksOutOfMemory, OfOneBlockAreFoundAfterwards)
{
    const auto call = [&] { return detect(x, settings, true, true, found); };
    EXPECT_GT(failEveryAllocation(call, [&] { return found.areUntouched(); }), 1);
    EXPECT_EQ(found.take(), peaksOf(x, settings));
}

TEST_P(PeaksOutOfMemory, OfANewSignalLeaveTheOneBeforeInPlace)
{
    const Peaks ofFirst = takeFirst();
    support::failure = {0};
    const Status status = detect(second, settings, true, true, found);
    support::failure = {};
    expectRefused(status, found);
    expectAll(ofFirst, peaksOfBlock(second, settings, false, true));
}

TEST_P(PeaksOutOfMemory, OfALaterBlockAreFoundAfterwards)
{
    const Peaks ofFirst = takeFirst();
    bool failed = true;
    for (int n = 0; failed; ++n) {
        const int before = support::blocksAlive;
        support::failure = {n};
        const Status status = detect(second, settings, false, true, found);
        failed = support::failure.hasCome;
        support::failure = {};
        if (failed) {
            expectRefused(status, found);
            EXPECT_EQ(support::blocksAlive, before) << "allocation " << n;
        }
    }
    expectAll(ofFirst, found.take());
}

TEST_P(PeaksOutOfMemory, NeedThreeArrays)
{
#if __has_feature(address_sanitizer)
    GTEST_SKIP() << "the sanitizer has a malloc of its own";
#endif
    const Peaks ofFirst = takeFirst();
    for (int array = 0; array < 3; ++array) {
        refusedSize = (second.size() / 2 + 1) * sizeof(double);
        grantsLeft = array;
        const Status status = detect(second, settings, false, true, found);
        refusedSize = 0;
        expectRefused(status, found);
    }
    expectAll(ofFirst, peaksOfBlock(second, settings, false, true));
}

INSTANTIATE_TEST_SUITE_P(Widths, PeaksOutOfMemory, testing::Values(3, 1500), testing::PrintToStringParamName());

} // namespace
} // namespace quordsp::backend
