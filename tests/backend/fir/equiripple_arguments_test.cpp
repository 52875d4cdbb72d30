// What the equiripple entries refuse, in which order, and that they write nothing then; and the one-call filters.
#include "backend/support/equiripple.h"
#include "backend/support/fir.h"

#include <gtest/gtest.h>

#include <limits>

namespace quordsp::test {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN(), kInfinity = std::numeric_limits<double>::infinity();

struct BandOrder {
    int taps = 21;
    double fs = 1;
    std::vector<Band> bands = {{1, 0, 0.2, 1}, {0, 0.3, 0.5, 1}};
    int type = 0;
};

// The status of both entries for any bands, which must agree, and must leave the results alone when it is not 0.
Status statusOf(const BandOrder& order)
{
    std::vector<double> amplitudes, weights, edges;
    for (const Band& band : order.bands) {
        amplitudes.push_back(band.amplitude);
        weights.push_back(band.weight);
        edges.insert(edges.end(), {band.lowerFrequency, band.upperFrequency});
    }
    const Array untouched(30, 7.0);
    Array h = untouched, other = untouched;
    double ripple = 8, otherRipple = 8;
    const auto count = static_cast<int>(order.bands.size());
    const Band none{};
    const Status status = backend::AALFunc408(order.taps, order.fs, count > 0 ? order.bands.data() : &none, count,
                                              order.type, h.data(), &ripple);
    const double nothing = 0;
    const auto dataOf = [&](const Array& values) { return count > 0 ? values.data() : &nothing; };
    EXPECT_EQ(backend::AALFunc65(count, dataOf(amplitudes), dataOf(weights), order.fs, dataOf(edges), order.type + 1,
                                 order.taps, other.data(), &otherRipple),
              status);
    EXPECT_EQ(status == Status::Success, h != untouched);
    EXPECT_EQ(status == Status::Success, ripple != 8);
    EXPECT_EQ(h, other);
    return status;
}

TEST(EquirippleArguments, NeedThreeTaps)
{
    for (const int taps : {2, 1, 0, -5, std::numeric_limits<int>::min()})
        EXPECT_EQ(statusOf({.taps = taps}), Status::TooFewTaps);
    EXPECT_EQ(statusOf({.taps = 3}), Status::Success);
}

TEST(EquirippleArguments, NeedBandsThatAscendInsideHalfTheSamplingFrequency)
{
    for (const double fs : {0.0, -1.0, kNan, kInfinity})
        EXPECT_EQ(statusOf({.fs = fs}), Status::Band);
    const std::vector<std::vector<Band>> refused{
        {},
        {{1, -0.1, 0.2, 1}},
        {{1, 0.2, 0.2, 1}},
        {{1, 0.2, 0.1, 1}},
        {{1, 0.1, 0.6, 1}},
        {{1, 0, kNan, 1}},
        {{1, kNan, 0.1, 1}},
        {{1, 0, kInfinity, 1}},
        {{1, 0, 0.2, 1}, {0, 0.2, 0.5, 1}},
        {{1, 0, 0.2, 1}, {0, 0.1, 0.5, 1}},
        {{kNan, 0, 0.2, 1}},
        {{kInfinity, 0, 0.2, 1}},
        {{1, 0, 0.2, 0}},
        {{1, 0, 0.2, -1}},
        {{1, 0, 0.2, kNan}},
        {{1, 0, 0.2, kInfinity}},
    };
    for (const auto& bands : refused)
        EXPECT_EQ(statusOf({.bands = bands}), Status::Band);
}

TEST(EquirippleArguments, NeedAKnownType)
{
    for (const int type : {-1, 3, std::numeric_limits<int>::max() - 1})
        EXPECT_EQ(statusOf({.type = type}), Status::InvalidSelection);
}

TEST(EquirippleArguments, HeedTheZerosOfEachSymmetry)
{
    const std::vector<Band> high{{0, 0, 0.2, 1}, {1, 0.3, 0.5, 1}}, all{{1, 0.1, 0.5, 1}}, fromZero{{1, 0, 0.4, 1}};
    EXPECT_EQ(statusOf({.taps = 20, .bands = high}), Status::EvenSize);
    EXPECT_EQ(statusOf({.taps = 21, .bands = high}), Status::Success);
    EXPECT_EQ(statusOf({.taps = 20}), Status::Success);
    for (const int type : {1, 2}) {
        EXPECT_EQ(statusOf({.taps = 21, .bands = all, .type = type}), Status::OddSize);
        EXPECT_EQ(statusOf({.taps = 20, .bands = all, .type = type}), Status::Success);
    }
    EXPECT_EQ(statusOf({.taps = 21, .bands = fromZero, .type = 1}), Status::Success);
    EXPECT_EQ(statusOf({.taps = 20, .bands = fromZero, .type = 2}), Status::Band);
}

TEST(EquirippleArguments, AreReportedInTheirOrder)
{
    EXPECT_EQ(statusOf({.taps = 2, .fs = 0, .type = 9}), Status::TooFewTaps);
    EXPECT_EQ(statusOf({.fs = 0, .type = 9}), Status::Band);
    EXPECT_EQ(statusOf({.taps = 20, .bands = {{1, 0, 0.5, 1}}, .type = 9}), Status::InvalidSelection);
    double ripple = 0;
    EXPECT_EQ(backend::AALFunc69(0, 0, 0, 0, nullptr, &ripple), Status::ArraySize);
}

TEST(EquirippleArguments, MayNotBeNull)
{
    const double value = 0.1;
    double out = 8;
    const Band band{1, 0, 0.1, 1};
    EXPECT_EQ(backend::AALFunc65(1, nullptr, &value, 1, &value, 1, 9, &out, &out), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc65(1, &value, nullptr, 1, &value, 1, 9, &out, &out), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc65(1, &value, &value, 1, nullptr, 1, 9, &out, &out), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc65(1, &value, &value, 1, &value, 1, 9, nullptr, &out), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc65(1, &value, &value, 1, &value, 1, 9, &out, nullptr), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc408(9, 1, nullptr, 1, 0, &out, &out), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc408(9, 1, &band, 1, 0, nullptr, &out), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc69(1, 0.1, 0.2, 9, &out, nullptr), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc472(nullptr, 9, 9, 1, 0.1, 0.2, &out), Status::ArraySize);
    EXPECT_EQ(backend::AALFunc472(&value, 9, 9, 1, 0.1, 0.2, nullptr), Status::ArraySize);
    EXPECT_EQ(out, 8);
}

// More bands than are worked out are not read either.
TEST(EquirippleArguments, AreRefusedByTheNumberOfBands)
{
    const double value = 0.1, edges[] = {0, 0.1};
    const Band band{1, 0, 0.1, 1};
    double h[9] = {}, ripple = 8;
    EXPECT_EQ(backend::AALFunc65(1025, &value, &value, 1, edges, 1, 9, h, &ripple), Status::DesignFailed);
    for (const std::int64_t count : {std::int64_t{1025}, std::numeric_limits<std::int64_t>::max()})
        EXPECT_EQ(backend::AALFunc408(9, 1, &band, count, 0, h, &ripple), Status::DesignFailed);
    EXPECT_EQ(ripple, 8);
}

// The four responses as design and as filter, real and complex, with the edges f[0]..f[3].
enum Response : int { LowPass, HighPass, BandPass, BandStop };
constexpr Response kResponses[] = {LowPass, HighPass, BandPass, BandStop};

Status design(int response, double fs, const double* f, int taps, double* h, double* ripple)
{
    using namespace backend;
    if (response < BandPass)
        return (response == LowPass ? AALFunc69 : AALFunc68)(fs, f[0], f[1], taps, h, ripple);
    return (response == BandPass ? AALFunc66 : AALFunc67)(fs, f[0], f[1], f[2], f[3], taps, h, ripple);
}

Status filter(int response, const double* x, std::int64_t n, int taps, double fs, const double* f, double* y)
{
    using namespace backend;
    if (response < BandPass)
        return (response == LowPass ? AALFunc472 : AALFunc473)(x, n, taps, fs, f[0], f[1], y);
    return (response == BandPass ? AALFunc474 : AALFunc475)(x, n, taps, fs, f[0], f[1], f[2], f[3], y);
}

Status filter(int response, const Complex* x, std::int64_t n, int taps, double fs, const double* f, Complex* y)
{
    using namespace backend;
    if (response < BandPass)
        return (response == LowPass ? AALFunc476 : AALFunc477)(x, n, taps, fs, f[0], f[1], y);
    return (response == BandPass ? AALFunc478 : AALFunc479)(x, n, taps, fs, f[0], f[1], f[2], f[3], y);
}

constexpr double kEdges[] = {0.1, 0.15, 0.3, 0.36};

TEST(EquirippleArguments, OfTheFourResponsesNeedEdgesInOrder)
{
    const double refused[][4] = {{0, 0.15, 0.3, 0.36}, {0.15, 0.15, 0.3, 0.36}, {0.1, 0.5, 0.6, 0.7},
                                 {-1, 0.1, 0.2, 0.3},  {0.1, kNan, 0.3, 0.36},  {0.2, 0.1, 0.3, 0.36}};
    Array h(31, 7.0), y(31, 7.0);
    double ripple = 8;
    const auto expectRefused = [&](int response, double fs, const double* f, int taps, Status status) {
        EXPECT_EQ(design(response, fs, f, taps, h.data(), &ripple), status);
        EXPECT_EQ(h, Array(31, 7.0));
        EXPECT_EQ(ripple, 8);
    };
    for (const int response : kResponses) {
        for (const auto& edges : refused) {
            expectRefused(response, 1, edges, 31, Status::Band);
            EXPECT_EQ(filter(response, noise(31).data(), 31, 31, 1, edges, y.data()), Status::Band);
        }
        for (const double fs : {0.0, -1.0, kNan, kInfinity})
            expectRefused(response, fs, kEdges, 31, Status::Band);
        expectRefused(response, 1, refused[0], 2, Status::TooFewTaps);
        if (response == HighPass || response == BandStop)
            expectRefused(response, 0, kEdges, 30, Status::EvenSize);
        EXPECT_EQ(filter(response, noise(31).data(), 0, 2, 1, refused[0], y.data()), Status::CountNotPositive);
        EXPECT_EQ(filter(response, noise(31).data(), 31, 2, 1, refused[0], y.data()), Status::TooFewTaps);
        EXPECT_EQ(filter(response, noise(31).data(), 31, std::numeric_limits<int>::max(), 1, kEdges, y.data()),
                  Status::DesignFailed);
    }
    EXPECT_EQ(y, Array(31, 7.0));
}

// An even number of taps is raised to the next odd one where half the sampling frequency passes.
TEST(EquirippleFiltering, IsTheDesignAndThenTheFilter)
{
    const Array x = noise(200);
    for (const int response : kResponses)
        for (const int taps : {30, 31}) {
            const bool isRaised = taps == 30 && (response == HighPass || response == BandStop);
            Array h(isRaised ? 31u : static_cast<std::size_t>(taps)), expected(200), y(200);
            double ripple = 0;
            ASSERT_EQ(design(response, 1, kEdges, static_cast<int>(h.size()), h.data(), &ripple), Status::Success);
            backend::AALFunc352(x.data(), 200, h.data(), nullptr, static_cast<int>(h.size()), expected.data());
            EXPECT_EQ(filter(response, x.data(), 200, taps, 1, kEdges, y.data()), Status::Success);
            EXPECT_EQ(y, expected);
            Array inPlace = x;
            EXPECT_EQ(filter(response, inPlace.data(), 200, taps, 1, kEdges, inPlace.data()), Status::Success);
            EXPECT_EQ(inPlace, expected);
        }
}

TEST(EquirippleFiltering, TreatsRealAndImaginaryPartsAlike)
{
    const Array re = noise(150), im = noise(150, 2);
    const ComplexArray z = joined(re, im);
    for (const int response : kResponses) {
        Array u(150), v(150);
        ComplexArray y(150);
        filter(response, re.data(), 150, 40, 1, kEdges, u.data());
        filter(response, im.data(), 150, 40, 1, kEdges, v.data());
        EXPECT_EQ(filter(response, z.data(), 150, 40, 1, kEdges, y.data()), Status::Success);
        EXPECT_EQ(real(y), u);
        EXPECT_EQ(imaginary(y), v);
    }
}

} // namespace
} // namespace quordsp::test
