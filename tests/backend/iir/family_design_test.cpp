// Designs of every family: coefficients against independent computations, and what holds between designs.
#include "backend/support/iir_families.h"
#include "data/backend/iir_family_vectors.inc"
#include "reference/response.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quordsp::test {
namespace {

using testing::DoubleNear;
using testing::Pointwise;

constexpr double kPi = std::numbers::pi;

struct PublishedDesign {
    Order order;
    std::vector<double> b, a;
};

// Worked by hand from the analog filters of second order and the bilinear transform; fs = 1000.
const PublishedDesign kPublished[] = {
    {{Chebyshev, LowPass, 2, 100, 0, 0.1, 0, 1000},
     {0.163091272387, 0.326182544774, 0.163091272387},
     {1, -0.613126393211, 0.273045514473}},
    {{InverseChebyshev, LowPass, 2, 100, 0, 0, 40, 1000},
     {0.0113533939346, -0.0147895916441, 0.0113533939346},
     {1, -1.87086037755, 0.878777573776}},
    {{Bessel, LowPass, 2, 100, 0, 0, 0, 1000},
     {0.0632797640581, 0.126559528116, 0.0632797640581},
     {1, -1.0722295286, 0.325348584833}},
};

TEST(FilterCoef, GivesTheWorkedExamples)
{
    for (const auto& [order, b, a] : kPublished) {
        const DirectCoefficients actual = direct(order);
        EXPECT_THAT(actual.a, Pointwise(DoubleNear(1e-11), a));
        EXPECT_THAT(actual.b, Pointwise(DoubleNear(5e-13), b));
    }
}

TEST(FilterCoef, AgreesWithSciPy)
{
    for (const auto& [order, b, a] : vectors::kFamilyDirect) {
        const DirectCoefficients actual = direct(order);
        EXPECT_THAT(actual.a, Pointwise(DoubleNear(1e-11), a)) << order.family << ' ' << order.type;
        EXPECT_THAT(actual.b, Pointwise(DoubleNear(1e-12), b)) << order.family << ' ' << order.type;
    }
}

double gainOf(const DirectCoefficients& filter, long double f)
{
    return static_cast<double>(std::abs(reference::spectrum(filter.b, f)) / std::abs(reference::spectrum(filter.a, f)));
}

// Hand-computed: order 3, 1 dB and 40 dB have the selectivity k = 0.413875832.
TEST(FilterCoef, HasTheSelectivityOfTheDegreeEquation)
{
    const DirectCoefficients filter = direct({Elliptic, LowPass, 3, 0.1, 0, 1, 40});
    const double edge = std::atan(std::tan(kPi * 0.1) * 2.4161836) / kPi;
    EXPECT_NEAR(reference::decibels(gainOf(filter, 0.1L)), -1, 1e-12);
    EXPECT_NEAR(reference::decibels(gainOf(filter, edge)), -40, 1e-5);
    EXPECT_NEAR(gainOf(filter, 0), 1, 1e-14);
}

// Hand-computed: attenuation at the cut-off of Bessel filters of orders 2, 4 and 8.
TEST(FilterCoef, HasTheAttenuationOfABesselFilterAtItsCutoff)
{
    for (const auto& [order, attenuation] : {std::pair{2, 4.77}, {4, 7.58}, {8, 12.59}})
        EXPECT_NEAR(reference::decibels(gainOf(direct({Bessel, LowPass, order}), 0.1L)), -attenuation, 0.005);
}

// Hand-computed from the definitions: e = sqrt(10^(ripple / 10) - 1), an even order starts at the bottom of the ripple.
TEST(FilterCoef, HasTheGainOfItsDefinitionAtTheReferenceFrequency)
{
    for (Family family : kFamilies)
        for (int order : {1, 2, 3, 4, 7, 8}) {
            const bool isRippled = family == Chebyshev || family == Elliptic;
            const double wanted = isRippled && order % 2 == 0 ? std::pow(10, -0.5 / 20) : 1;
            EXPECT_NEAR(gainOf(direct({family, LowPass, order, 0.2}), 0), wanted, 1e-10) << family << ' ' << order;
            EXPECT_NEAR(gainOf(direct({family, HighPass, order, 0.2}), 0.5L), wanted, 1e-10) << family << ' ' << order;
        }
}

TEST(FilterCoef, ExchangesTheResponsesWhenTheCutoffIsMirrored)
{
    for (Family family : kFamilies) {
        const auto low = direct({family, LowPass, 5, 0.1}), high = direct({family, HighPass, 5, 0.4});
        for (std::size_t k = 0; k < low.a.size(); ++k) {
            const double sign = k % 2 ? -1 : 1;
            EXPECT_NEAR(high.a[k], sign * low.a[k], 1e-14) << "family " << family;
            EXPECT_NEAR(high.b[k], sign * low.b[k], 1e-15) << "family " << family;
        }
    }
}

// A band-pass filter is a low-pass filter moved in frequency, a band-stop filter a high-pass filter.
TEST(FilterCoef, MovesTheLowPassResponseToTheBand)
{
    const double width = std::tan(kPi * 0.3) - std::tan(kPi * 0.1);
    const double squaredCenter = std::tan(kPi * 0.3) * std::tan(kPi * 0.1);
    for (Family family : kFamilies)
        for (int shift : {0, 1}) {
            const DirectCoefficients single = direct({family, LowPass + shift, 3, 0.25});
            const DirectCoefficients band = direct({family, BandPass + shift, 3, 0.1, 0.3});
            for (double f = 0.03; f < 0.5; f += 0.061) {
                const double w = std::tan(kPi * f);
                const double moved = std::atan(std::abs((w * w - squaredCenter) / (width * w))) / kPi;
                EXPECT_NEAR(gainOf(band, f), gainOf(single, moved), 1e-12) << "family " << family << " at " << f;
            }
        }
}

TEST(FilterCoef, HasFiniteValuesOrIsRefused)
{
    const double ripples[] = {5e-324, 1e-300, 1e-10, 1e-3, 3, 100, 3000};
    const double attenuations[] = {1e-9, 0.1, 3.0000000000000004, 100.00000000000001, 300, 3050};
    int designed = 0;
    for (Family family : kFamilies)
        for (int type : kTypes)
            for (double ripple : ripples)
                for (double attenuation : attenuations)
                    for (int order : {1, 2, 5, 12}) {
                        const Order o{family, type, order, 0.1, 0.3, ripple, attenuation};
                        const auto [status, a, b] = direct(o);
                        const auto isFinite = [](double value) { return std::isfinite(value); };
                        EXPECT_TRUE(std::ranges::all_of(a, isFinite) && std::ranges::all_of(b, isFinite));
                        EXPECT_THAT(status, testing::AnyOf(Status::Success, Status::DesignFailed,
                                                           Status::AttenuationBelowRipple));
                        designed += status == Status::Success;
                    }
    EXPECT_GT(designed, 3000);
}

TEST(FilterCascade, EqualsTheDirectFormWhenMultipliedOut)
{
    for (Family family : kFamilies)
        for (int type : kTypes)
            for (int order : {1, 2, 3, 6}) {
                const Order o{family, type, order};
                const DirectCoefficients wanted = direct(o);
                std::vector<double> a(wanted.a.size()), b(wanted.b.size());
                const int count = static_cast<int>(a.size());
                ASSERT_EQ(backend::CascadeToDirectCoef(cascade(o).get(), a.data(), count, b.data(), count),
                          Status::Success);
                for (std::size_t k = 0; k < a.size(); ++k) {
                    EXPECT_NEAR(a[k], wanted.a[k], 1e-14 * std::max(1.0, std::abs(wanted.a[k]))) << family << type;
                    EXPECT_NEAR(b[k], wanted.b[k], 1e-14) << family << type;
                }
            }
}

TEST(FilterCascade, IsTheSameByBothBesselEntries)
{
    const Filter one = cascade({Bessel, BandPass, 5}), other = allocate(BandPass, 5);
    ASSERT_EQ(backend::AALFunc471(1, 0.1, 0.3, other.get()), Status::Success);
    EXPECT_EQ(std::vector(one->reverse, one->reverse + one->reverseCount),
              std::vector(other->reverse, other->reverse + other->reverseCount));
    EXPECT_EQ(std::vector(one->forward, one->forward + one->forwardCount),
              std::vector(other->forward, other->forward + other->forwardCount));
}

TEST(FilterCascade, RunsFromTheFlattestSectionToTheSharpest)
{
    for (Family family : kFamilies)
        for (int order : {4, 7}) {
            const Filter filter = cascade({family, LowPass, order, 0.2});
            double before = 0;
            for (const Section& section : sections(*filter)) {
                const double radius = section.a[2] == 0 ? std::abs(section.a[1]) : std::sqrt(section.a[2]);
                if (section.a[2] != 0)
                    EXPECT_GT(radius, before) << "family " << family;
                before = section.a[2] == 0 ? 0 : radius;
            }
        }
}

TEST(BesselDesign, WorksUpToItsHighestOrder)
{
    const double x = 1;
    double y = 0;
    EXPECT_EQ(filter(Order{Bessel, LowPass, 150, 0.25}, &x, 1, &y), Status::Success);
    EXPECT_EQ(filter(Order{Bessel, LowPass, 301, 0.25}, &x, 1, &y), Status::DesignFailed);
}

} // namespace
} // namespace quordsp::test
