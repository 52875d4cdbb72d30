#include "narrow_band.h"

#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>

#include "filter_designs.h"
#include "frequency_response.h"

namespace quordsp::cli {
namespace {

constexpr double kRate = 1000;
constexpr double kRipple = 0.2;     // dB
constexpr double kAttenuation = 50; // dB

FilterRequest requestOf(int type, std::initializer_list<double> edges)
{
    FilterRequest request{.type = type, .rate = kRate, .ripple = kRipple, .attenuation = kAttenuation};
    std::ranges::copy(edges, request.edges);
    return request;
}

Impulse impulseOf(const FilterFamily& family, const FilterRequest& request)
{
    Impulse impulse;
    EXPECT_EQ(family.impulse(request, impulse), QUORDSP_SUCCESS);
    return impulse;
}

// The mask that is asked for: a pass band's gains are as close together as the ripple, and around 1.
void expectMask(const Impulse& impulse, const FilterRequest& request)
{
    const bool passesFirst = request.type == 0 || request.type == 3;
    const FrequencyResponse response(std::vector<Section>{{impulse.taps, {1}}});
    const double most = 20 * std::log10(1 + std::tanh(kRipple * std::log(10.0) / 40));
    for (int i = 0; i <= 5000; ++i) {
        const double frequency = i * kRate / 10000;
        const auto* const edge = std::ranges::lower_bound(
            request.edges, request.edges + edgeCount(filterFamily("narrow-band"), request.type), frequency);
        const auto behind = edge - request.edges;
        const bool atEdge = behind < 4 && *edge == frequency;
        if (behind % 2 == 1 && !atEdge)
            continue;
        const bool passes = passesFirst == (behind % 4 == 0 || (atEdge && behind % 4 == 3));
        const double gain = response.decibels(frequency / kRate);
        if (passes)
            EXPECT_NEAR(gain, most - kRipple / 2, kRipple / 2 + 1e-6) << request.type << ": " << frequency << " Hz";
        else
            EXPECT_LE(gain, -kAttenuation + 1e-6) << request.type << ": " << frequency << " Hz";
    }
}

TEST(NarrowBand, MeetsWhatIsAskedForInEachResponse)
{
    const std::initializer_list<double> edges[] = {{10, 20}, {470, 480}, {90, 110, 130, 180}, {90, 120, 130, 150}};
    for (int type = 0; type < 4; ++type) {
        const FilterRequest request = requestOf(type, edges[type]);
        expectMask(impulseOf(filterFamily("narrow-band"), request), request);
    }
}

TEST(NarrowBand, MeetsWhatIsAskedForWhenTheStopBandIsNarrow)
{
    const std::initializer_list<double> edges[] = {{470, 480}, {10, 20}};
    for (int type = 0; type < 2; ++type) {
        const FilterRequest request = requestOf(type, edges[type]);
        expectMask(impulseOf(filterFamily("wideband"), request), request);
    }
}

// A model filter with spread taps is what makes the design cheap.
TEST(NarrowBand, TellsItsStructure)
{
    const Impulse impulse = impulseOf(filterFamily("narrow-band"), requestOf(0, {10, 20}));
    EXPECT_GT(impulse.interpolation, 1u);
    EXPECT_EQ(impulse.taps.size(), (impulse.model - 1) * impulse.interpolation + impulse.image);
    EXPECT_LT(impulse.model + impulse.image, impulse.taps.size() / 2);
}

TEST(NarrowBand, FiltersAComplexSignalByItsImpulseResponse)
{
    for (const char* const name : {"narrow-band", "wideband"}) {
        const FilterFamily& family = filterFamily(name);
        const FilterRequest request = requestOf(1, {10, 20});
        const Impulse impulse = impulseOf(family, request);
        const std::vector<double> real{1, 0, 0, 2};
        const std::vector<double> imaginary{0, -3, 0, 0};
        std::vector<double> outReal(4);
        std::vector<double> outImaginary(4);
        FilterSignal signal{real, outReal.data(), imaginary.data(), outImaginary.data()};
        ASSERT_EQ(family.run(request, signal), QUORDSP_SUCCESS);
        EXPECT_EQ(signal.delay, impulse.delay());
        EXPECT_NEAR(outReal[3], impulse.taps[3] + 2 * impulse.taps[0], 1e-15) << name;
        EXPECT_NEAR(outImaginary[3], -3 * impulse.taps[2], 1e-15) << name;
    }
}

TEST(NarrowBand, PassesOnWhatTheBackendRefuses)
{
    Impulse impulse;
    const FilterFamily& family = filterFamily("narrow-band");
    EXPECT_EQ(family.impulse(requestOf(0, {20, 10}), impulse), QUORDSP_ERR_BAND);
    FilterRequest request = requestOf(0, {10, 20});
    request.ripple = 0;
    EXPECT_EQ(family.impulse(request, impulse), QUORDSP_ERR_RIPPLE_NOT_POSITIVE);
}

} // namespace
} // namespace quordsp::cli
