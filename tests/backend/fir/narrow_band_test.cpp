// Narrow-band filters: their spectral masks, their delay, their record, and what is refused.
#include "backend/support/equiripple.h"
#include "backend/support/fir.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace quordsp::test {
namespace {

using backend::FirFilter;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN(), kInfinity = std::numeric_limits<double>::infinity();

enum Type : int { LowPass, HighPass, BandPass, BandStop, WideLowPass, WideHighPass };

struct FreeFilter {
    void operator()(FirFilter* filter) const { backend::AALFunc492(filter); }
};
using Filter = std::unique_ptr<FirFilter, FreeFilter>;

struct NarrowBand {
    int type;
    double passBand, stopBand, center = 0.12;
    double ripple = 0.01, attenuation = 60;
    double fs = 1;
};

Status design(const NarrowBand& order, FirFilter* filter)
{
    return backend::AALFunc409(order.fs, order.passBand, order.stopBand, order.center, order.ripple, order.attenuation,
                               order.type, filter);
}

Filter designed(const NarrowBand& order)
{
    Filter filter{backend::AALFunc491()};
    EXPECT_EQ(design(order, filter.get()), Status::Success) << "type " << order.type;
    return filter;
}

std::int64_t lengthOf(const FirFilter& filter)
{
    return (filter.modelCount - 1) * filter.interpolation + filter.imageCount;
}

Array impulseResponse(const FirFilter& filter)
{
    Array x(static_cast<std::size_t>(lengthOf(filter))), y(x.size());
    x[0] = 1;
    EXPECT_EQ(backend::AALFunc410(x.data(), countOf(x), filter, y.data()), Status::Success);
    return y;
}

struct Range {
    double from, to;
};

struct Mask {
    std::vector<Range> passes, stops;
};

// With fs 1.
Mask maskOf(const NarrowBand& order)
{
    const double p = order.passBand, s = order.stopBand, c = order.center;
    const Mask masks[] = {{{{0, p}}, {{s, 0.5}}},
                          {{{0.5 - p, 0.5}}, {{0, 0.5 - s}}},
                          {{{c - p / 2, c + p / 2}}, {{0, c - s / 2}, {c + s / 2, 0.5}}},
                          {{{0, c - p / 2}, {c + p / 2, 0.5}}, {{c - s / 2, c + s / 2}}},
                          {{{0, 0.5 - s}}, {{0.5 - p, 0.5}}},
                          {{{s, 0.5}}, {{0, p}}}};
    return masks[order.type];
}

double largestDeviation(const Array& h, const std::vector<Range>& ranges, double ideal)
{
    double result = 0;
    for (const auto [from, to] : ranges) {
        const int steps = 50 + static_cast<int>(3 * static_cast<double>(h.size()) * (to - from));
        for (int i = 0; i <= steps; ++i) {
            const auto value = static_cast<double>(amplitude(h, false, from + (to - from) * i / steps));
            result = std::max(result, std::abs(value - ideal));
        }
    }
    return result;
}

void expectMask(const NarrowBand& order)
{
    const Array h = impulseResponse(*designed(order));
    const Mask mask = maskOf(order);
    EXPECT_LE(largestDeviation(h, mask.passes, 1), order.ripple) << order.type << ", " << order.passBand;
    EXPECT_LE(20 * std::log10(largestDeviation(h, mask.stops, 0)), -order.attenuation)
        << order.type << ", " << order.passBand;
}

TEST(NarrowBand, KeepsItsMaskInAllSixTypes)
{
    for (const auto [narrow, wide] : {Range{0.01, 0.02}, Range{0.1, 0.15}, Range{0.03, 0.034}, Range{0.2, 0.22}})
        for (const int type : {LowPass, HighPass, BandPass, BandStop, WideLowPass, WideHighPass})
            expectMask({type, type == BandStop ? wide : narrow, type == BandStop ? narrow : wide});
}

TEST(NarrowBand, KeepsItsMaskForAnyRippleAndAttenuation)
{
    for (const auto [ripple, attenuation] : {Range{1e-4, 100}, Range{0.2, 20}, Range{0.5, 3}, Range{2, 40}})
        for (const int type : {LowPass, BandPass, BandStop, WideHighPass})
            expectMask(
                {type, type == BandStop ? 0.08 : 0.05, type == BandStop ? 0.05 : 0.08, 0.2, ripple, attenuation});
}

TEST(NarrowBand, NeedsFarFewerTapsThanOneFilter)
{
    const Filter filter = designed({LowPass, 0.01, 0.012});
    EXPECT_GT(filter->interpolation, 10);
    EXPECT_LT(filter->modelCount + filter->imageCount, lengthOf(*filter) / 5);
}

TEST(NarrowBand, IsStoredAsDocumented)
{
    for (const int type : {LowPass, HighPass, BandPass, BandStop, WideLowPass, WideHighPass}) {
        const Filter filter = designed({type, type == BandStop ? 0.03 : 0.02, type == BandStop ? 0.02 : 0.03});
        EXPECT_EQ(filter->type, type);
        EXPECT_EQ(filter->interpolation, type == BandPass || type == BandStop ? 1 : 10);
        EXPECT_EQ(filter->modelCount % 2, 1);
        EXPECT_EQ(filter->imageCount % 2, 1);
    }
    const Filter bandPass = designed({BandPass, 0.02, 0.03});
    EXPECT_EQ(bandPass->imageCount, 1);
    EXPECT_EQ(bandPass->image[0], 1);
}

// The impulse response is symmetric about the delay ((modelCount - 1) interpolation + imageCount - 1) / 2.
TEST(NarrowBand, DelaysByHalfItsLength)
{
    for (const int type : {LowPass, HighPass, BandPass, BandStop, WideLowPass, WideHighPass}) {
        const Filter filter = designed({type, type == BandStop ? 0.06 : 0.04, type == BandStop ? 0.04 : 0.06});
        const Array h = impulseResponse(*filter);
        for (std::size_t k = 0; k < h.size(); ++k)
            EXPECT_NEAR(h[k], h[h.size() - 1 - k], 1e-16) << type;
    }
}

// By the definition, with samples before the first one 0, in place as elsewhere, whatever the length.
TEST(NarrowBand, FiltersAsItsRecordSays)
{
    double model[] = {0.5, -0.25, 2}, image[] = {1, 0.5};
    for (const int type : {LowPass, WideLowPass, WideHighPass})
        for (const std::size_t n : {1u, 3u, 4u, 60u}) {
            const FirFilter filter{type, 3, 3, model, 2, image};
            const Array x = noise(n);
            Array u(n), expected(n), y(n), inPlace = x;
            for (std::size_t i = 0; i < n; ++i) {
                for (std::size_t m = 0; m < 3 && 3 * m <= i; ++m)
                    u[i] += model[m] * x[i - 3 * m];
                expected[i] = u[i] + (i > 0 ? 0.5 * u[i - 1] : 0);
                if (type != LowPass)
                    expected[i] = (i < 3 ? 0 : x[i - 3]) - expected[i];
            }
            EXPECT_EQ(backend::AALFunc410(x.data(), countOf(x), filter, y.data()), Status::Success);
            EXPECT_EQ(backend::AALFunc410(inPlace.data(), countOf(x), filter, inPlace.data()), Status::Success);
            for (std::size_t i = 0; i < n; ++i)
                EXPECT_NEAR(y[i], expected[i], 1e-14);
            EXPECT_EQ(inPlace, y);
        }
}

TEST(NarrowBand, TreatsRealAndImaginaryPartsAlike)
{
    const Array re = noise(300), im = noise(300, 2);
    const ComplexArray z = joined(re, im);
    for (const int type : {LowPass, BandPass, WideHighPass}) {
        const Filter filter = designed({type, 0.03, 0.05});
        Array u(300), v(300);
        ComplexArray y(300);
        backend::AALFunc410(re.data(), 300, *filter, u.data());
        backend::AALFunc410(im.data(), 300, *filter, v.data());
        EXPECT_EQ(backend::AALFunc411(z.data(), 300, *filter, y.data()), Status::Success);
        EXPECT_EQ(real(y), u);
        EXPECT_EQ(imaginary(y), v);
    }
}

TEST(NarrowBand, IsTheSameInAnyUnitOfFrequency)
{
    const Filter one = designed({BandPass, 0.0625, 0.125, 0.25});
    const Filter other = designed({BandPass, 0x1p26, 0x1p27, 0x1p28, 0.01, 60, 0x1p30});
    EXPECT_EQ(impulseResponse(*one), impulseResponse(*other));
}

TEST(NarrowBand, NeedsNoCenterFrequencyWhereItHasNone)
{
    for (const int type : {LowPass, HighPass, WideLowPass, WideHighPass})
        EXPECT_EQ(impulseResponse(*designed({type, 0.1, 0.2, 0})), impulseResponse(*designed({type, 0.1, 0.2, 0.5})));
}

TEST(NarrowBand, RefusesWhatItDocumentsInItsOrder)
{
    Filter filter = designed({LowPass, 0.1, 0.2});
    const FirFilter before = *filter;
    const auto expect = [&](const NarrowBand& order, Status status) {
        EXPECT_EQ(design(order, filter.get()), status);
        EXPECT_EQ(filter->model, before.model);
        EXPECT_EQ(filter->modelCount, before.modelCount);
    };
    for (const int type : {LowPass, HighPass, WideLowPass, WideHighPass})
        for (const auto [pass, stop] : {Range{0, 0.1}, Range{-1, 0.1}, Range{0.1, 0.1}, Range{0.2, 0.1},
                                        Range{0.1, 0.5}, Range{kNan, 0.1}, Range{0.1, kNan}, Range{0.1, kInfinity}})
            expect({type, pass, stop, 0.12, -1}, Status::Band);
    for (const auto [pass, stop] : {Range{0.1, 0.1}, Range{0.2, 0.1}, Range{0.1, 0.24}, Range{0.1, kNan}}) {
        expect({BandPass, pass, stop}, Status::Band);
        expect({BandStop, stop, pass}, Status::Band);
    }
    expect({BandPass, 0.1, 0.2, 0.4}, Status::Band);
    expect({BandPass, 0.1, 0.2, kNan}, Status::Band);
    for (const int type : {LowPass, HighPass, WideLowPass, WideHighPass})
        for (const double center : {-0.1, 0.51, kNan, kInfinity})
            expect({type, 0.1, 0.2, center}, Status::Band);
    for (const double fs : {0.0, -1.0, kNan, kInfinity})
        expect({LowPass, 0.1, 0.2, 0.12, 0.01, 60, fs}, Status::Band);
    for (const double bad : {0.0, -1.0, kNan, kInfinity}) {
        expect({LowPass, 0.1, 0.2, 0.12, bad, bad}, Status::RippleNotPositive);
        expect({6, 0.1, 0.2, 0.12, 0.01, bad}, Status::AttenuationNotPositive);
    }
    for (const int type : {-1, 6, std::numeric_limits<int>::max()})
        expect({type, 0.2, 0.1}, Status::InvalidSelection);
    EXPECT_EQ(design({LowPass, 0, 0}, nullptr), Status::ArraySize);
}

// Too sharp, too narrow, too deep.
TEST(NarrowBand, FailsWhereNoDesignIsPossible)
{
    const Filter filter{backend::AALFunc491()};
    EXPECT_EQ(design({LowPass, 0.1, 0.1 + 1e-9}, filter.get()), Status::DesignFailed);
    EXPECT_EQ(design({LowPass, 1e-12, 2e-12}, filter.get()), Status::DesignFailed);
    EXPECT_EQ(design({BandStop, 2e-12, 1e-12}, filter.get()), Status::DesignFailed);
    EXPECT_EQ(design({LowPass, 0.1, 0.2, 0.12, 0.01, 400}, filter.get()), Status::DesignFailed);
    EXPECT_EQ(design({LowPass, 0.1, 0.2, 0.12, 0.01, 1e300}, filter.get()), Status::DesignFailed);
    EXPECT_EQ(filter->model, nullptr);
}

TEST(NarrowBand, RefusesRecordsThatHoldNoFilter)
{
    double tap = 1, x = 1, y = 8;
    const FirFilter good{LowPass, 1, 1, &tap, 1, &tap};
    const auto expect = [&](Status status, auto change) {
        FirFilter filter = good;
        change(filter);
        EXPECT_EQ(backend::AALFunc410(&x, 1, filter, &y), status);
        EXPECT_EQ(y, 8);
    };
    expect(Status::ArraySize, [](FirFilter& filter) { filter.model = nullptr; });
    expect(Status::ArraySize, [](FirFilter& filter) { filter.image = nullptr; });
    expect(Status::ArraySize, [](FirFilter& filter) { filter.modelCount = 0; });
    expect(Status::ArraySize, [](FirFilter& filter) { filter.imageCount = -1; });
    expect(Status::ArraySize, [](FirFilter& filter) { filter.interpolation = 0; });
    expect(Status::InvalidSelection, [](FirFilter& filter) { filter.type = 6; });
    expect(Status::InvalidSelection, [](FirFilter& filter) { filter.type = -1; });
    EXPECT_EQ(backend::AALFunc410(&x, 0, {}, &y), Status::CountNotPositive);
    EXPECT_EQ(backend::AALFunc410(nullptr, 1, good, &y), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc410(&x, 1, good, nullptr), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc410(&x, 1, good, &y), Status::Success);
    EXPECT_EQ(y, 1);
}

TEST(NarrowBand, IsFreedAlsoWhenItIsNullOrEmpty)
{
    backend::AALFunc492(nullptr);
    FirFilter* const filter = backend::AALFunc491();
    ASSERT_NE(filter, nullptr);
    EXPECT_EQ(filter->model, nullptr);
    EXPECT_EQ(filter->image, nullptr);
    EXPECT_EQ(filter->type, 0);
    backend::AALFunc492(filter);
}

} // namespace
} // namespace quordsp::test
