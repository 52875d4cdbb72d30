// Filtering through a cascade filter record: state and reset.
#include "backend/support/iir.h"
#include "data/backend/iir_vectors.inc"
#include "reference/direct_form.h"

#include <gmock/gmock.h>

namespace quordsp::test {
namespace {

using testing::DoubleNear;
using testing::Each;
using testing::Pointwise;
using vectors::kSignal;

std::vector<double> filtered(backend::IirFilter* filter, std::vector<double> x)
{
    EXPECT_EQ(backend::AALFunc91(x.data(), static_cast<std::int64_t>(x.size()), filter, x.data()), Status::Success);
    return x;
}

TEST(IirCascadeFiltering, RunsTheSectionsOneAfterTheOther)
{
    for (int type : kTypes)
        for (int order : {1, 2, 5}) {
            const Filter filter = cascade(type, order, 0.1, 0.3);
            std::vector<double> wanted = kSignal;
            for (const Section& section : sections(*filter))
                wanted = reference::directForm(section.a, section.b, wanted);
            EXPECT_THAT(filtered(filter.get(), kSignal), Pointwise(DoubleNear(1e-11), wanted)) << type << ' ' << order;
        }
}

TEST(IirCascadeFiltering, GivesTheSameBitsInBlocksAsInOneCall)
{
    for (int type : kTypes) {
        const Filter whole = cascade(type, 5, 0.1, 0.3), parts = cascade(type, 5, 0.1, 0.3);
        const std::vector<double> wanted = filtered(whole.get(), kSignal);
        std::vector<double> joined;
        std::size_t size = 1;
        for (std::size_t i = 0; i < kSignal.size(); i += size++) {
            const auto begin = kSignal.begin() + static_cast<std::ptrdiff_t>(i);
            const auto length = static_cast<std::ptrdiff_t>(std::min(size, kSignal.size() - i));
            const std::vector<double> block = filtered(parts.get(), {begin, begin + length});
            joined.insert(joined.end(), block.begin(), block.end());
        }
        EXPECT_EQ(joined, wanted);
    }
}

TEST(IirCascadeFiltering, LeavesTheInputAloneUnlessItIsTheOutput)
{
    const Filter filter = cascade(BandPass, 2, 0.1, 0.3);
    std::vector<double> x = kSignal, y(x.size());
    backend::AALFunc91(x.data(), static_cast<std::int64_t>(x.size()), filter.get(), y.data());
    EXPECT_EQ(x, kSignal);
    backend::ResetIIRFilter(filter.get());
    EXPECT_EQ(filtered(filter.get(), kSignal), y);
}

TEST(IirCascadeFiltering, ClearsTheStateWhenTheFlagIsSetAndThenTheFlag)
{
    const Filter filter = cascade(LowPass, 3, 0.1, 0);
    const std::vector<double> first = filtered(filter.get(), kSignal);
    EXPECT_EQ(filter->reset, 0);
    EXPECT_NE(filtered(filter.get(), kSignal), first);
    EXPECT_EQ(backend::ResetIIRFilter(filter.get()), Status::Success);
    EXPECT_NE(filter->reset, 0);
    EXPECT_NE(filter->state[0], 0);
    EXPECT_EQ(filtered(filter.get(), kSignal), first);
    filter->reset = -5;
    EXPECT_EQ(filtered(filter.get(), kSignal), first);
}

TEST(IirCascadeFiltering, StartsAnewAfterADesign)
{
    const Filter filter = cascade(HighPass, 4, 0.1, 0);
    const std::vector<double> first = filtered(filter.get(), kSignal);
    ASSERT_EQ(backend::AALFunc18(1, 0.1, 0, filter.get()), Status::Success);
    EXPECT_NE(filter->reset, 0);
    EXPECT_EQ(filtered(filter.get(), kSignal), first);
}

// s[i] = x[i] - a1 s[i-1] - a2 s[i-2]: after the samples 1, 0 the newest is -a1, the one before it 1.
TEST(IirCascadeFiltering, KeepsTheNewestStateFirst)
{
    const Filter filter = cascade(LowPass, 2, 0.1, 0);
    filtered(filter.get(), {1, 0});
    EXPECT_EQ(filter->state[0], -filter->reverse[0]);
    EXPECT_EQ(filter->state[1], 1);
    const Filter band = cascade(BandPass, 2, 0.1, 0.3);
    filtered(band.get(), {1, 0, 0});
    EXPECT_EQ(band->state[1], -band->reverse[0]);
    EXPECT_EQ(band->state[2], 1);
    EXPECT_EQ(band->state[3], 0);
}

TEST(IirCascadeFiltering, GivesZerosBeforeAnyDesign)
{
    const Filter filter = allocate(BandStop, 3);
    EXPECT_THAT(filtered(filter.get(), kSignal), Each(0));
}

TEST(IirCascadeFiltering, ReportsTheFirstOfItsBadArguments)
{
    const Filter filter = cascade(LowPass, 3, 0.1, 0);
    double x = 1, y = 7;
    EXPECT_EQ(backend::AALFunc91(nullptr, 0, nullptr, nullptr), Status::CountNotPositive);
    EXPECT_EQ(backend::AALFunc91(&x, -1, filter.get(), &y), Status::CountNotPositive);
    EXPECT_EQ(backend::AALFunc91(nullptr, 1, nullptr, &y), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc91(&x, 1, filter.get(), nullptr), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc91(&x, 1, nullptr, &y), Status::IirFilter);
    EXPECT_EQ(y, 7);
    EXPECT_NE(filter->reset, 0) << "a refused call leaves the filter as it was";
}

} // namespace
} // namespace quordsp::test
