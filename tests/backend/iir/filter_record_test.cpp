// The life of a cascade filter record, and what makes one inconsistent.
#include "backend/support/iir.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <limits>

namespace quordsp::test {
namespace {

using backend::IirFilter;
using testing::Each;

static_assert(offsetof(IirFilter, reset) == 8 && offsetof(IirFilter, reverse) == 16 &&
              offsetof(IirFilter, forwardCount) == 24 && offsetof(IirFilter, stateCount) == 40 &&
              offsetof(IirFilter, state) == 48);

TEST(IirFilterRecord, HasTheCountsOfItsTypeAndOrder)
{
    for (int type : kTypes)
        for (auto [order, parts] : {std::pair{1, 1}, {2, 1}, {3, 2}, {4, 2}, {21, 11}}) {
            const Filter filter = allocate(type, order);
            const int degree = type < BandPass ? 2 : 4;
            ASSERT_TRUE(filter);
            EXPECT_EQ(filter->type, type);
            EXPECT_EQ(filter->order, order);
            EXPECT_EQ(filter->reverseCount, degree * parts);
            EXPECT_EQ(filter->forwardCount, (degree + 1) * parts);
            EXPECT_EQ(filter->stateCount, degree * parts);
        }
}

TEST(IirFilterRecord, BeginsEmptyAndToBeReset)
{
    const Filter filter = allocate(BandPass, 5);
    EXPECT_NE(filter->reset, 0);
    EXPECT_THAT(std::vector(filter->reverse, filter->reverse + filter->reverseCount), Each(0));
    EXPECT_THAT(std::vector(filter->forward, filter->forward + filter->forwardCount), Each(0));
    EXPECT_THAT(std::vector(filter->state, filter->state + filter->stateCount), Each(0));
}

TEST(IirFilterRecord, IsNotMadeOfABadTypeOrOrder)
{
    const int largest = std::numeric_limits<int>::max();
    for (auto [type, order] : {std::pair{-1, 2}, {4, 2}, {0, 0}, {0, -1}, {0, largest}, {3, largest}, {2, largest / 2}})
        EXPECT_FALSE(allocate(type, order)) << type << ' ' << order;
}

TEST(IirFilterRecord, IsMadeUpToTheLargestOrder)
{
    for (int type : kTypes) {
        EXPECT_TRUE(allocate(type, 1 << 20));
        EXPECT_FALSE(allocate(type, (1 << 20) + 1));
    }
}

TEST(IirFilterRecord, MayBeFreedWhenItIsNull)
{
    EXPECT_EQ(backend::FreeIIRFilterPtr(nullptr), Status::Success);
    EXPECT_EQ(backend::FreeIIRFilterPtr(backend::AllocIIRFilterPtr(LowPass, 4)), Status::Success);
}

// Every entry that takes a filter.
std::vector<Status> answersTo(IirFilter* filter)
{
    double x = 1, y = 7, a[3] = {7, 7, 7}, b[3] = {7, 7, 7};
    std::vector<Status> answers{backend::ResetIIRFilter(filter), backend::AALFunc18(1, 0.1, 0.2, filter),
                                backend::AALFunc91(&x, 1, filter, &y),
                                backend::CascadeToDirectCoef(filter, a, 3, b, 3)};
    EXPECT_EQ(y, 7);
    EXPECT_THAT(a, Each(7));
    EXPECT_THAT(b, Each(7));
    return answers;
}

TEST(IirFilterRecord, IsRefusedByEveryEntryWhenItIsNullOrInconsistent)
{
    const std::function<void(IirFilter&)> damages[] = {
        [](IirFilter& f) { f.type = 4; },          [](IirFilter& f) { f.type = -1; },
        [](IirFilter& f) { f.type = BandPass; },   [](IirFilter& f) { f.order = 0; },
        [](IirFilter& f) { f.order = 5; },         [](IirFilter& f) { f.order = std::numeric_limits<int>::max(); },
        [](IirFilter& f) { f.reverseCount = 3; },  [](IirFilter& f) { f.forwardCount = 7; },
        [](IirFilter& f) { f.stateCount = -4; },   [](IirFilter& f) { f.reverse = nullptr; },
        [](IirFilter& f) { f.forward = nullptr; }, [](IirFilter& f) { f.state = nullptr; },
    };
    EXPECT_THAT(answersTo(nullptr), Each(Status::IirFilter));
    const Filter filter = cascade(LowPass, 3, 0.1, 0);
    for (const auto& damage : damages) {
        IirFilter damaged = *filter;
        damage(damaged);
        EXPECT_THAT(answersTo(&damaged), Each(Status::IirFilter));
    }
}

TEST(CascadeToDirectCoef, ReportsTheFirstOfItsBadArguments)
{
    const Filter filter = cascade(LowPass, 3, 0.1, 0);
    std::vector<double> a(4, 7.0), b(4, 7.0);
    EXPECT_EQ(backend::CascadeToDirectCoef(nullptr, nullptr, 0, b.data(), 4), Status::ArraySize);
    EXPECT_EQ(backend::CascadeToDirectCoef(nullptr, a.data(), 0, b.data(), 4), Status::IirFilter);
    EXPECT_EQ(backend::CascadeToDirectCoef(filter.get(), a.data(), 5, b.data(), 4), Status::ArraySize);
    EXPECT_EQ(backend::CascadeToDirectCoef(filter.get(), a.data(), 4, b.data(), 3), Status::ArraySize);
    EXPECT_THAT(a, Each(7));
    EXPECT_THAT(b, Each(7));
}

TEST(CascadeToDirectCoef, RefusesCoefficientsThatAreNotFinite)
{
    const Filter filter = cascade(LowPass, 2, 0.1, 0);
    filter->forward[1] = std::numeric_limits<double>::infinity();
    std::vector<double> a(3, 7.0), b(3, 7.0);
    EXPECT_EQ(backend::CascadeToDirectCoef(filter.get(), a.data(), 3, b.data(), 3), Status::DesignFailed);
    EXPECT_THAT(a, Each(7));
}

struct DirectForm {
    Status status;
    std::vector<double> a, b;
};

DirectForm directOf(const IirFilter& filter)
{
    const int count = filter.order * (filter.type < BandPass ? 1 : 2) + 1;
    const std::vector<double> sevens(static_cast<std::size_t>(count), 7.0);
    DirectForm form{{}, sevens, sevens};
    form.status = backend::CascadeToDirectCoef(&filter, form.a.data(), count, form.b.data(), count);
    return form;
}

TEST(CascadeToDirectCoef, IsOneAndZerosBeforeAnyDesign)
{
    for (int type : kTypes)
        for (int order : {1, 2, 5, 1 << 20}) {
            const auto [status, a, b] = directOf(*allocate(type, order));
            EXPECT_EQ(status, Status::Success);
            EXPECT_EQ(a.front(), 1);
            EXPECT_EQ(std::ranges::count(a, 0), std::ssize(a) - 1);
            EXPECT_EQ(std::ranges::count(b, 0), std::ssize(b));
        }
}

TEST(CascadeToDirectCoef, PadsAFilterOfLowerDegreeWithZeros)
{
    const Filter filter = allocate(LowPass, 4);
    filter->reverse[0] = -0.5;
    filter->forward[0] = 2;
    filter->forward[3] = 3;
    filter->forward[4] = 1;
    const auto [status, a, b] = directOf(*filter);
    EXPECT_EQ(status, Status::Success);
    EXPECT_THAT(a, testing::ElementsAre(1, -0.5, 0, 0, 0));
    EXPECT_THAT(b, testing::ElementsAre(6, 2, 0, 0, 0));
}

// Sections 1 + 0.4 x^2 and 1 - 0.4 x^2 in turn, whose products stay within the range of double up to high degrees.
void fillEvenly(double* coefficients, int count, int sectionSize, int first)
{
    for (int k = 0; k * sectionSize < count; ++k) {
        double* const section = coefficients + k * sectionSize;
        section[0] = first;
        section[first + 1] = k % 2 == 0 ? 0.4 : -0.4;
    }
}

Filter withPoles(int order)
{
    Filter filter = allocate(LowPass, order);
    fillEvenly(filter->reverse, filter->reverseCount, 2, 0);
    return filter;
}

Filter withZeros(int order)
{
    Filter filter = allocate(HighPass, order);
    fillEvenly(filter->forward, filter->forwardCount, 3, 1);
    return filter;
}

TEST(CascadeToDirectCoef, TakesADegreeOf16384)
{
    const auto [status, a, b] = directOf(*withPoles(1 << 14));
    EXPECT_EQ(status, Status::Success);
    EXPECT_NEAR(a[4], -0.16 * 4096, 1e-10); // of (1 - 0.16 x^4)^4096
}

// The work grows with the square of the degree: these would take an hour each.
TEST(CascadeToDirectCoef, RefusesSoonADegreeBeyondThatOfDesigns)
{
    for (const auto make : {withPoles, withZeros}) {
        const auto [status, a, b] = directOf(*make(1 << 20));
        EXPECT_EQ(status, Status::DesignFailed);
        EXPECT_EQ(a.front(), 7);
        EXPECT_EQ(b.back(), 7);
    }
}

TEST(FreeAnalysisMem, AcceptsNullUnderBothItsNames)
{
    EXPECT_EQ(backend::FreeAnalysisMem(nullptr), Status::Success);
    EXPECT_EQ(backend::AALFunc238(nullptr), Status::Success);
}

} // namespace
} // namespace quordsp::test
