// IIR filtering of complex signals.
#include "backend/support/complex.h"
#include "backend/support/iir.h"
#include "data/backend/filtering_vectors.inc"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace quordsp::test {
namespace {

using backend::Complex;
using testing::DoubleNear;
using testing::Each;
using testing::Pointwise;

constexpr double Complex::* kPartsOfOne[] = {&Complex::real, &Complex::imaginary};

Status complexButterworth(int type, Complex* x, std::int64_t n, double fs, double fl, double fh, int order, Complex* y)
{
    switch (type) {
    case LowPass:
        return backend::AALFunc450(x, n, fs, fl, order, y);
    case HighPass:
        return backend::AALFunc451(x, n, fs, fl, order, y);
    case BandPass:
        return backend::AALFunc452(x, n, fs, fl, fh, order, y);
    default:
        return backend::AALFunc453(x, n, fs, fl, fh, order, y);
    }
}

ComplexSignal complexButterworth(int type, ComplexSignal x, double fl, double fh, int order)
{
    EXPECT_EQ(complexButterworth(type, x.data(), lengthOf(x), 1, fl, fh, order, nullptr), Status::Success);
    return x;
}

TEST(ComplexButterworthFilter, GivesEachPartTheBitsOfTheRealFilter)
{
    for (int type : kTypes)
        for (int order : {1, 2, 5, 8, 16, 20})
            for (std::size_t n : {1u, 3u, 31u, 32u, 5000u}) {
                const ComplexSignal x = complexNoise(n), y = complexButterworth(type, x, 0.1, 0.3, order);
                for (auto part : kPartsOfOne)
                    EXPECT_EQ(partOf(y, part), butterworth(type, partOf(x, part), 0.1, 0.3, order))
                        << type << ' ' << order << ' ' << n;
            }
}

TEST(ComplexButterworthFilter, AgreesWithSciPy)
{
    for (const auto& [type, order, fl, fh, y] : vectors::kComplexCascades)
        EXPECT_THAT(valuesOf(complexButterworth(type, complexOf(vectors::kComplexSignal), fl, fh, order)),
                    Pointwise(DoubleNear(1e-12), y))
            << type;
}

TEST(ComplexButterworthFilter, LeavesTheInputAloneWhenThereIsAnOutput)
{
    for (int type : kTypes) {
        const ComplexSignal before = complexNoise(100);
        ComplexSignal x = before, y(x.size());
        ASSERT_EQ(complexButterworth(type, x.data(), 100, 1, 0.1, 0.2, 3, y.data()), Status::Success);
        EXPECT_EQ(valuesOf(x), valuesOf(before));
        EXPECT_EQ(valuesOf(y), valuesOf(complexButterworth(type, before, 0.1, 0.2, 3)));
    }
}

TEST(ComplexButterworthFilter, ReportsTheFirstOfItsBadArgumentsAndWritesNothing)
{
    Complex x{1, 2};
    for (int type : kTypes) {
        const Status frequencies = type < BandPass ? Status::Cutoff : Status::Band;
        EXPECT_EQ(complexButterworth(type, nullptr, 0, 0, 0, 0, 0, nullptr), Status::CountNotPositive);
        EXPECT_EQ(complexButterworth(type, nullptr, 1, 0, 0, 0, 0, nullptr), Status::ArraySize);
        EXPECT_EQ(complexButterworth(type, &x, 1, 0, 0, 0, 0, nullptr), Status::OrderNotPositive);
        EXPECT_EQ(complexButterworth(type, &x, 1, NAN, 0.1, 0.2, 1, nullptr), frequencies);
    }
    EXPECT_EQ(x.real, 1);
    EXPECT_EQ(x.imaginary, 2);
}

struct CascadeRun {
    ComplexSignal y;
    ComplexSignal state;
};

CascadeRun filtered(backend::IirFilter* filter, ComplexSignal x, ComplexSignal state)
{
    backend::ComplexState record{static_cast<int>(state.size()), state.data()};
    EXPECT_EQ(backend::AALFunc466(x.data(), lengthOf(x), filter, &record, x.data()), Status::Success);
    return {x, state};
}

TEST(ComplexCascadeFiltering, GivesEachPartTheBitsOfTheRealFilterAndItsState)
{
    for (int type : kTypes)
        for (int order : {1, 4, 9, 20})
            for (std::size_t n : {1u, 40u, 5000u}) {
                const Filter filter = cascade(type, order, 0.1, 0.3);
                const ComplexSignal x = complexNoise(n);
                const ComplexSignal atRest(static_cast<std::size_t>(filter->reverseCount));
                const auto [y, state] = filtered(filter.get(), x, atRest);
                for (auto part : kPartsOfOne) {
                    std::vector<double> real = partOf(x, part);
                    filter->reset = 1;
                    backend::AALFunc91(real.data(), lengthOf(real), filter.get(), real.data());
                    EXPECT_EQ(partOf(y, part), real);
                    EXPECT_EQ(partOf(state, part), std::vector(filter->state, filter->state + filter->stateCount));
                }
            }
}

TEST(ComplexCascadeFiltering, GivesTheSameBitsInBlocksAsInOneCall)
{
    for (int type : kTypes) {
        const Filter filter = cascade(type, 7, 0.1, 0.3);
        const ComplexSignal x = complexNoise(500);
        CascadeRun whole = filtered(filter.get(), x, complexNoise(static_cast<std::size_t>(filter->reverseCount)));
        CascadeRun part{{}, complexNoise(static_cast<std::size_t>(filter->reverseCount))};
        std::vector<double> joined;
        for (auto begin = x.begin(); begin != x.end();) {
            const auto end = begin + std::min<std::ptrdiff_t>(x.end() - begin, 1 + 2 * (begin - x.begin()));
            part = filtered(filter.get(), {begin, end}, part.state);
            const std::vector<double> values = valuesOf(part.y);
            joined.insert(joined.end(), values.begin(), values.end());
            begin = end;
        }
        EXPECT_EQ(joined, valuesOf(whole.y));
        EXPECT_EQ(valuesOf(part.state), valuesOf(whole.state));
    }
}

TEST(ComplexCascadeFiltering, StartsFromZerosAndKeepsNothingWithoutAStateOfTheRightSize)
{
    const Filter filter = cascade(BandPass, 3, 0.1, 0.3);
    const ComplexSignal x = complexNoise(20);
    const auto count = static_cast<std::size_t>(filter->reverseCount);
    const std::vector<double> wanted = valuesOf(filtered(filter.get(), x, ComplexSignal(count)).y);
    for (std::size_t other : {count - 1, count + 1, std::size_t{1}}) {
        const ComplexSignal state = complexNoise(other);
        const auto [y, after] = filtered(filter.get(), x, state);
        EXPECT_EQ(valuesOf(y), wanted);
        EXPECT_EQ(valuesOf(after), valuesOf(state));
    }
    ComplexSignal y(x.size());
    ASSERT_EQ(backend::AALFunc466(x.data(), lengthOf(x), filter.get(), nullptr, y.data()), Status::Success);
    EXPECT_EQ(valuesOf(y), wanted);
    backend::ComplexState none{filter->reverseCount, nullptr};
    ASSERT_EQ(backend::AALFunc466(x.data(), lengthOf(x), filter.get(), &none, y.data()), Status::Success);
    EXPECT_EQ(valuesOf(y), wanted);
}

TEST(ComplexCascadeFiltering, LeavesTheStateOfTheFilterAlone)
{
    const Filter filter = cascade(LowPass, 4, 0.1, 0);
    std::fill_n(filter->state, filter->stateCount, 7.0);
    for (int reset : {0, 1}) {
        filter->reset = reset;
        filtered(filter.get(), complexNoise(50), ComplexSignal(4));
        EXPECT_EQ(filter->reset, reset);
        EXPECT_THAT(std::vector(filter->state, filter->state + filter->stateCount), Each(7));
    }
}

TEST(ComplexCascadeFiltering, ReportsTheFirstOfItsBadArguments)
{
    const Filter filter = cascade(LowPass, 2, 0.1, 0);
    Complex x{1, 2}, y{7, 7}, elements[] = {{8, 8}, {8, 8}};
    backend::ComplexState state{2, elements};
    EXPECT_EQ(backend::AALFunc466(nullptr, 0, nullptr, nullptr, nullptr), Status::CountNotPositive);
    EXPECT_EQ(backend::AALFunc466(nullptr, 1, nullptr, &state, &y), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc466(&x, 1, filter.get(), &state, nullptr), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc466(&x, 1, nullptr, &state, &y), Status::IirFilter);
    EXPECT_EQ(y.real, 7);
    EXPECT_THAT(valuesOf({elements, elements + 2}), Each(8));
}

struct DirectRun {
    ComplexSignal y, ya, xb;
};

DirectRun filtered(const std::vector<double>& a, const std::vector<double>& b, DirectRun run)
{
    EXPECT_EQ(backend::AALFunc354(run.y.data(), lengthOf(run.y), a.data(), run.ya.data(), static_cast<int>(a.size()),
                                  b.data(), run.xb.data(), static_cast<int>(b.size()), run.y.data()),
              Status::Success);
    return run;
}

TEST(ComplexIirFiltering, ContinuesFromTheStateAsSciPyDoes)
{
    for (const auto& [a, b, ya, xb, y, yaAfter, xbAfter] : vectors::kComplexContinued) {
        const DirectRun run = filtered(a, b, {complexOf(vectors::kComplexSignal), complexOf(ya), complexOf(xb)});
        EXPECT_THAT(valuesOf(run.y), Pointwise(DoubleNear(1e-12), y));
        EXPECT_THAT(valuesOf(run.ya), Pointwise(DoubleNear(1e-12), yaAfter));
        EXPECT_EQ(valuesOf(run.xb), xbAfter);
    }
}

TEST(ComplexIirFiltering, GivesEachPartTheBitsOfTheRealFilter)
{
    for (std::size_t degree = 0; degree < 20; ++degree) {
        std::vector<double> a(degree + 1, 0.5 / static_cast<double>(degree + 1)), b(degree / 2 + 1, 0.75);
        a[0] = degree % 3 == 0 ? 1 : 1.5;
        const ComplexSignal x = complexNoise(1700);
        const DirectRun run = filtered(a, b, {x, complexNoise(degree), complexNoise(degree / 2)});
        for (auto part : kPartsOfOne) {
            std::vector<double> y = partOf(x, part), ya = partOf(complexNoise(degree), part),
                                xb = partOf(complexNoise(degree / 2), part);
            backend::AALFunc92(y.data(), lengthOf(y), a.data(), ya.data(), static_cast<int>(a.size()), b.data(),
                               xb.data(), static_cast<int>(b.size()), y.data());
            EXPECT_EQ(partOf(run.y, part), y) << degree;
            EXPECT_EQ(partOf(run.ya, part), ya) << degree;
            EXPECT_EQ(partOf(run.xb, part), xb) << degree;
        }
    }
}

TEST(ComplexIirFiltering, GivesTheSameBitsInBlocksAsInOneCall)
{
    const std::vector<double> a{2, -1, 0.5, 0.25, -0.1, 0.05, 0.02}, b{1, 0.5, 0.25};
    const DirectRun whole = filtered(a, b, {complexNoise(300), complexNoise(6), complexNoise(2)});
    DirectRun part{{}, complexNoise(6), complexNoise(2)};
    std::vector<double> joined;
    for (const Complex& sample : complexNoise(300)) {
        part.y = {sample};
        part = filtered(a, b, part);
        joined.insert(joined.end(), {part.y[0].real, part.y[0].imaginary});
    }
    EXPECT_EQ(joined, valuesOf(whole.y));
    EXPECT_EQ(valuesOf(part.ya), valuesOf(whole.ya));
}

TEST(ComplexIirFiltering, ReportsTheFirstOfItsBadArgumentsAndWritesNothing)
{
    const double good[] = {1, 0.5}, bad[] = {0, 0.5};
    Complex x{1, 1}, y{7, 7}, ya{8, 8}, xb{9, 9};
    const auto call = [&](const Complex* in, int n, const double* a, const double* b, Complex* out) {
        return backend::AALFunc354(in, n, a, &ya, 2, b, &xb, 2, out);
    };
    EXPECT_EQ(call(nullptr, 0, nullptr, nullptr, nullptr), Status::CountNotPositive);
    EXPECT_EQ(call(nullptr, 1, bad, good, &y), Status::ArraySize);
    EXPECT_EQ(call(&x, 1, good, nullptr, &y), Status::ArraySize);
    EXPECT_EQ(call(&x, 1, bad, good, nullptr), Status::ArraySize);
    EXPECT_EQ(call(&x, 1, bad, good, &y), Status::DivisionByZero);
    EXPECT_THAT(valuesOf({y, ya, xb}), testing::ElementsAre(7, 7, 8, 8, 9, 9));
}

} // namespace
} // namespace quordsp::test
