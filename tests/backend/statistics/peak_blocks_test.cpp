// The peak detector from block to block, its threads and its refusals.
#include "backend/statistics/peaks.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <thread>

namespace quordsp::backend {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr PeakSettings kAllPeaks = {-100, 3};

void append(Peaks& all, const Peaks& more)
{
    all.insert(all.end(), more.begin(), more.end());
}

// nextSize: of the block that begins at a sample.
Peaks peaksInBlocks(const Array& x, const PeakSettings& settings,
                    const std::function<std::size_t(std::size_t)>& nextSize)
{
    Peaks all;
    for (std::size_t begin = 0, end = 0; begin < x.size(); begin = end) {
        end = std::min(x.size(), begin + nextSize(begin));
        const Array block(x.begin() + static_cast<std::ptrdiff_t>(begin), x.begin() + static_cast<std::ptrdiff_t>(end));
        append(all, peaksOfBlock(block, settings, begin == 0, end == x.size()));
    }
    return all;
}

std::function<std::size_t(std::size_t)> randomSizes(std::size_t most, unsigned seed)
{
    return [most, generator = std::mt19937(seed)](std::size_t) mutable { return 1 + generator() % most; };
}

TEST(PeakBlocks, GiveTheBitsOfOneBlockHoweverTheyAreCut)
{
    const Array x = noise(60, 1);
    for (const std::int64_t width : {3, 4, 7, 59, 60, 61})
        for (const std::int32_t polarity : {0, 1}) {
            const PeakSettings settings = {polarity == 0 ? -100.0 : 100.0, width, polarity};
            const Peaks whole = peaksOf(x, settings);
            for (std::size_t size = 1; size < x.size(); ++size) {
                EXPECT_EQ(peaksInBlocks(x, settings, [&](std::size_t) { return size; }), whole) << size;
                EXPECT_EQ(peaksInBlocks(x, settings, [&](std::size_t i) { return i == 0 ? size : x.size(); }), whole);
            }
        }
}

TEST(PeakBlocks, OfRandomSizesGiveTheBitsOfOneBlock)
{
    const Array x = noise(6000, 2);
    for (const std::int64_t width : {3, 100, 1023, 1024, 1025, 1500, 2999, 5999})
        for (const std::size_t most : {50u, 700u, 4000u}) {
            SCOPED_TRACE(testing::Message() << width << ", blocks up to " << most);
            EXPECT_EQ(peaksInBlocks(x, {-100, width}, randomSizes(most, 3)), peaksOf(x, {-100, width}));
        }
}

TEST(PeakBlocks, CountLocationsFromTheFirstSampleOfTheSignal)
{
    peaksOfBlock({0, 0, 0, 0}, kAllPeaks, true, false);
    EXPECT_THAT(peaksOfBlock({0, 1, 0}, kAllPeaks, false, true), ElementsAre(Peak{5, 1, -2}));
}

// The first 0 after the peak completes the group whose slope falls.
TEST(PeakBlocks, ReportAPeakWithTheBlockThatCompletesItsGroup)
{
    EXPECT_THAT(peaksOfBlock({0, 0, 1}, kAllPeaks, true, false), IsEmpty());
    EXPECT_THAT(peaksOfBlock({0}, kAllPeaks, false, true), ElementsAre(Peak{2, 1, -2}));
}

TEST(PeakBlocks, BeginWithoutBeingToldAfterTheEndOfData)
{
    peaksOfBlock({0, 1, 0}, kAllPeaks, true, true);
    EXPECT_THAT(peaksOfBlock({0, 0, 1}, {-100, 5}, false, false), IsEmpty());
    EXPECT_THAT(peaksOfBlock({0, 0}, {-100, 5}, false, true), testing::SizeIs(1));
}

TEST(PeakBlocks, BeginAnewWhenTold)
{
    peaksOfBlock(noise(50, 4), {-100, 20, 1}, true, false);
    EXPECT_THAT(peaksOfBlock({0, 1, 0}, kAllPeaks, true, true), ElementsAre(Peak{1, 1, -2}));
}

TEST(PeakBlocks, MayChangeTheThreshold)
{
    EXPECT_THAT(peaksOfBlock({0, 1, 0, 0}, {2, 3}, true, false), IsEmpty());
    EXPECT_THAT(peaksOfBlock({0, 1, 0, 0}, {0.5, 3}, false, true), ElementsAre(Peak{5, 1, -2}));
}

// Each refused call between two blocks, which must not notice.
class RefusedPeakBlock : public testing::Test {
protected:
    RefusedPeakBlock() { peaksOfBlock(first_, kAllPeaks, true, false); }

    ~RefusedPeakBlock() override
    {
        EXPECT_TRUE(found.areUntouched());
        Array both = first_;
        both.insert(both.end(), second_.begin(), second_.end());
        Peaks expected = peaksOfBlock(second_, kAllPeaks, false, true);
        EXPECT_FALSE(expected.empty());
        Peaks whole = peaksOf(both, kAllPeaks);
        whole.erase(whole.begin(), whole.end() - static_cast<std::ptrdiff_t>(expected.size()));
        EXPECT_EQ(expected, whole);
    }

    Status detectOne(std::int64_t n, const PeakSettings& settings, bool initialize = false)
    {
        const double one = 1;
        return AALFunc194(&one, n, settings.threshold, settings.width, settings.polarity, initialize, true,
                          &found.count, &found.locations, &found.amplitudes, &found.secondDerivatives);
    }

    PeakArrays found;

private:
    const Array first_ = noise(20, 5);
    const Array second_ = noise(20, 6);
};

TEST_F(RefusedPeakBlock, HasACountThatIsNotPositive)
{
    for (const std::int64_t n : {std::int64_t{0}, std::int64_t{-1}, std::numeric_limits<std::int64_t>::min()})
        for (const bool initialize : {false, true})
            EXPECT_EQ(detectOne(n, {-100, 5}, initialize), Status::CountNotPositive);
    EXPECT_EQ(AALFunc194(nullptr, 0, 0, 9, 0, 0, 0, nullptr, nullptr, nullptr, nullptr), Status::CountNotPositive);
}

TEST_F(RefusedPeakBlock, HasANullPointer)
{
    const double x[] = {1};
    const auto call = [&](const double* in, std::int64_t* count, double** a, double** b, double** c) {
        return AALFunc194(in, 1, 0, 9, 0, 0, 0, count, a, b, c);
    };
    double** const a = &found.locations;
    double** const b = &found.amplitudes;
    double** const c = &found.secondDerivatives;
    EXPECT_EQ(call(nullptr, &found.count, a, b, c), Status::ArraySize);
    EXPECT_EQ(call(x, nullptr, a, b, c), Status::ArraySize);
    EXPECT_EQ(call(x, &found.count, nullptr, b, c), Status::ArraySize);
    EXPECT_EQ(call(x, &found.count, a, nullptr, c), Status::ArraySize);
    EXPECT_EQ(call(x, &found.count, a, b, nullptr), Status::ArraySize);
}

TEST_F(RefusedPeakBlock, HasAnotherWidthOrPolarity)
{
    EXPECT_EQ(detectOne(1, {-100, 4}), Status::StateNotInitialized);
    EXPECT_EQ(detectOne(1, {-100, 3, 1}), Status::StateNotInitialized);
}

TEST_F(RefusedPeakBlock, IsTooLongForMemory)
{
    for (const bool initialize : {false, true})
        EXPECT_EQ(detectOne(std::numeric_limits<std::int64_t>::max(), kAllPeaks, initialize), Status::OutOfMemory);
}

TEST(PeakBlocks, OfTheSameWidthAndPolarityNeedNotNameThemAlike)
{
    peaksOfBlock({0, 0}, {0, 3, 5}, true, false);
    EXPECT_THAT(peaksOfBlock({-1, 0}, {0, -7, 1}, false, true), ElementsAre(Peak{2, -1, 2}));
}

TEST(PeakThreads, EachHaveTheirOwnSignal)
{
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < 4; ++i)
        threads.emplace_back([i] {
            const std::int64_t width = i % 2 == 0 ? 3 + i : 1100 + i;
            const Array x = noise(4000, i);
            const Peaks inBlocks = peaksInBlocks(x, {-100, width}, randomSizes(60, i));
            EXPECT_EQ(inBlocks, peaksOf(x, {-100, width}));
        });
    for (std::thread& thread : threads)
        thread.join();
}

// What they held is freed: the leak check of the address sanitizer would tell.
TEST(PeakThreads, MayEndInTheMiddleOfASignal)
{
    for (int i = 0; i < 20; ++i)
        std::thread([] {
            peaksOfBlock(noise(10, 1), {-100, 3}, true, false);
            peaksOfBlock(noise(3000, 1), {-100, 1500}, true, false);
        }).join();
}

} // namespace
} // namespace quordsp::backend
