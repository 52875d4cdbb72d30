// What the designing entries answer to bad arguments, in which order, and that they then write nothing.
#include "backend/support/iir.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace quordsp::test {
namespace {

using testing::Each;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr int kLargestInt = std::numeric_limits<int>::max();

struct Frequencies {
    double fs, fl, fh;
};

// Bad for a low-pass or high-pass filter, whose fh counts for nothing.
const Frequencies kBadCutoffs[] = {
    {0, 0.1, 0}, {-1, 0.1, 0}, {kNaN, 0.1, 0}, {1, 0, 0},         {1, -0.1, 0},  {1, 0.5, 0},
    {1, 0.6, 0}, {1, kNaN, 0}, {1, -0.0, 0},   {1, kInfinity, 0}, {-1, -0.1, 0}, {5e-324, 5e-324, 0},
};

const Frequencies kBadBands[] = {
    {0, 0.1, 0.2}, {-1, 0.1, 0.2}, {kNaN, 0.1, 0.2}, {1, 0, 0.2},    {1, -0.1, 0.2},      {1, kNaN, 0.2},
    {1, 0.1, 0.1}, {1, 0.2, 0.1},  {1, 0.1, 0.5},    {1, 0.1, kNaN}, {1, 0.1, kInfinity}, {1, 0.6, 0.7},
};

TEST(ButterworthArguments, OfOneCutoffAreRejectedWithItsCode)
{
    double x = 1, y = 7;
    for (int type : {LowPass, HighPass})
        for (const auto& [fs, fl, fh] : kBadCutoffs)
            EXPECT_EQ(butterworth(type, &x, 1, fs, fl, fh, 2, &y), Status::Cutoff) << fs << ' ' << fl;
    EXPECT_EQ(y, 7);
}

TEST(ButterworthArguments, OfABandAreRejectedWithItsCode)
{
    double x = 1, y = 7;
    for (int type : {BandPass, BandStop})
        for (const auto& [fs, fl, fh] : kBadBands)
            EXPECT_EQ(butterworth(type, &x, 1, fs, fl, fh, 2, &y), Status::Band) << fs << ' ' << fl << ' ' << fh;
    EXPECT_EQ(y, 7);
}

TEST(ButterworthArguments, AreReportedCountFirstThenArraysThenOrderThenFrequencies)
{
    double x = 1, y = 7;
    for (int type : kTypes) {
        const Status frequencies = type < BandPass ? Status::Cutoff : Status::Band;
        EXPECT_EQ(butterworth(type, nullptr, 0, 0, 0, 0, 0, nullptr), Status::CountNotPositive);
        EXPECT_EQ(butterworth(type, &x, -1, 1, 0.1, 0.2, 2, &y), Status::CountNotPositive);
        EXPECT_EQ(butterworth(type, nullptr, 1, 0, 0, 0, 0, &y), Status::ArraySize);
        EXPECT_EQ(butterworth(type, &x, 1, 0, 0, 0, 0, nullptr), Status::ArraySize);
        EXPECT_EQ(butterworth(type, &x, 1, 0, 0, 0, 0, &y), Status::OrderNotPositive);
        EXPECT_EQ(butterworth(type, &x, 1, 1, 0.1, 0.2, -3, &y), Status::OrderNotPositive);
        EXPECT_EQ(butterworth(type, &x, 1, 0, 0, 0, 1, &y), frequencies);
        EXPECT_EQ(butterworth(type, &x, 1, 0, 0, 0, kLargestInt, &y), frequencies);
    }
    EXPECT_EQ(y, 7);
}

TEST(ButterworthArguments, OfAnOrderBeyondAllMemoryAreAnsweredAtOnce)
{
    double x = 1, y = 7;
    for (int type : kTypes)
        for (int order : {kLargestInt, kLargestInt - 1, kLargestInt / 2, kLargestInt / 4 * 3})
            EXPECT_EQ(butterworth(type, &x, 1, 1, 0.1, 0.2, order, &y), Status::OutOfMemory);
    EXPECT_EQ(backend::AALFunc19(LowPass, kLargestInt - 1, 1, 0.1, 0, &x, kLargestInt, &y, kLargestInt),
              Status::OutOfMemory);
    EXPECT_EQ(backend::AALFunc19(BandPass, kLargestInt / 2, 1, 0.1, 0.2, &x, kLargestInt, &y, kLargestInt),
              Status::OutOfMemory);
    EXPECT_EQ(backend::AALFunc19(BandPass, kLargestInt, 1, 0.1, 0.2, &x, -1, &y, -1), Status::ArraySize);
    EXPECT_EQ(y, 7);
}

TEST(ButterworthArguments, AcceptAHighOrder)
{
    std::vector<double> y(10);
    const std::vector<double> x = impulse(10);
    EXPECT_EQ(butterworth(BandPass, x.data(), 10, 1, 0.1, 0.4, 20000, y.data()), Status::Success);
    EXPECT_THAT(y, Each(testing::Truly([](double value) { return std::isfinite(value); })));
}

struct CoefCall {
    int type, order;
    double fs, fl, fh;
    bool hasA, hasB;
    int na, nb;
    Status expected;
};

const CoefCall kCoefCalls[] = {
    {9, 0, 0, 0, 0, false, true, 0, 0, Status::ArraySize},
    {9, 0, 0, 0, 0, true, false, 0, 0, Status::ArraySize},
    {9, 0, 0, 0, 0, true, true, 0, 0, Status::OrderNotPositive},
    {LowPass, -1, 1, 0.1, 0, true, true, 3, 3, Status::OrderNotPositive},
    {9, 2, 1, 0.5, 0, true, true, 0, 0, Status::Cutoff},
    {LowPass, 2, 1, 0.5, 0, true, true, 0, 0, Status::Cutoff},
    {HighPass, 2, 0, 0.1, 0, true, true, 3, 3, Status::Cutoff},
    {BandPass, 2, 1, 0.3, 0.2, true, true, 0, 0, Status::Band},
    {BandStop, 2, -1, 0.1, 0.2, true, true, 5, 5, Status::Band},
    {4, 2, 1, 0.1, 0.2, true, true, 0, 0, Status::InvalidSelection},
    {-1, 2, 1, 0.1, 0.2, true, true, 5, 5, Status::InvalidSelection},
    {LowPass, 2, 1, 0.1, 0.2, true, true, 4, 3, Status::ArraySize},
    {LowPass, 2, 1, 0.1, 0.2, true, true, 3, 2, Status::ArraySize},
    {BandPass, 2, 1, 0.1, 0.2, true, true, 3, 3, Status::ArraySize},
    {BandStop, 2, 1, 0.1, 0.2, true, true, 5, -5, Status::ArraySize},
    {LowPass, 2, 1, 0.1, kNaN, true, true, 3, 3, Status::Success},
    {BandPass, 1, 1, 0.1, 0.2, true, true, 3, 3, Status::Success},
};

TEST(ButterworthArguments, OfTheCoefficientEntryAreReportedInOrder)
{
    for (const CoefCall& call : kCoefCalls) {
        std::vector<double> a(5, 7.0), b(5, 7.0);
        EXPECT_EQ(backend::AALFunc19(call.type, call.order, call.fs, call.fl, call.fh, call.hasA ? a.data() : nullptr,
                                     call.na, call.hasB ? b.data() : nullptr, call.nb),
                  call.expected)
            << "row " << &call - kCoefCalls;
        if (call.expected != Status::Success) {
            EXPECT_THAT(a, Each(7));
            EXPECT_THAT(b, Each(7));
        }
    }
}

TEST(ButterworthArguments, OfTheCascadeEntryAreJudgedByTheTypeOfTheFilter)
{
    for (int type : kTypes) {
        const Filter filter = cascade(type, 3, 0.1, 0.2);
        const std::vector<double> before(filter->reverse, filter->reverse + filter->reverseCount);
        filter->reset = 0;
        EXPECT_EQ(backend::AALFunc18(1, 0.3, 0.2, filter.get()), type < BandPass ? Status::Success : Status::Band);
        EXPECT_EQ(filter->reset, type < BandPass ? 1 : 0);
        EXPECT_EQ(std::vector(filter->reverse, filter->reverse + filter->reverseCount) == before, type >= BandPass);
        EXPECT_EQ(backend::AALFunc18(0, 0.1, 0.2, filter.get()), type < BandPass ? Status::Cutoff : Status::Band);
    }
    EXPECT_EQ(backend::AALFunc18(0, 0, 0, nullptr), Status::IirFilter);
}

} // namespace
} // namespace quordsp::test
