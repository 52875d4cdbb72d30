#include "band_map.h"

#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "data/cli/filter_kinds.inc"
#include "frequency_response.h"

namespace quordsp::cli {
namespace {

TransferFunction mappedOf(const vectors::BandFilter& filter)
{
    return {Form::Mapped, filter.lowpass, {}, BandMap(filter.lower, filter.upper, filter.stops)};
}

// Both from SciPy. Behind a zero half a turn may be counted up or down.
TEST(BandMap, MakesTheBandFilterOutOfItsLowPass)
{
    for (const vectors::BandFilter& filter : vectors::kBandFilters) {
        const FrequencyResponse mapped(mappedOf(filter));
        const FrequencyResponse wanted(filter.band);
        for (int i = 0; i < 400; ++i) {
            const double frequency = (i + 0.31) / 800;
            const ResponsePoint point = mapped.at(frequency);
            const ResponsePoint reference = wanted.at(frequency);
            const double tolerance = 1e-6 * std::pow(10, std::max(0.0, -reference.decibels - 60) / 20);
            EXPECT_NEAR(point.decibels, reference.decibels, tolerance) << filter.name << ' ' << frequency;
            EXPECT_NEAR(std::remainder(point.phase - reference.phase, 2 * std::numbers::pi), 0, tolerance)
                << filter.name << ' ' << frequency;
            EXPECT_NEAR(point.delay, reference.delay, 1e-5 * (1 + reference.delay)) << filter.name << ' ' << frequency;
            EXPECT_EQ(mapped.decibels(frequency), point.decibels);
        }
    }
}

TEST(BandMap, HasPhaseDelayAndPolesOfTheBackendsSections)
{
    for (int order = 1; order <= 8; ++order)
        for (const int type : {0, 1, 2, 3}) {
            FilterRequest request{.type = type, .edges = {100, 300}, .order = order};
            const ChosenFilter band{filterFamily("butterworth"), request, "", ""};
            request.type = 0;
            request.edges[0] = 250;
            const ChosenFilter lowpass{filterFamily("butterworth"), request, "", ""};
            TransferFunction function = designFilter(lowpass, 1000, false);
            function.map = type < 2 ? BandMap(0, 0.1, type == 1) : BandMap(0.1, 0.3, type == 3);
            const FrequencyResponse mapped(function);
            const FrequencyResponse wanted(designFilter(band, 1000, false));
            for (const double frequency : {0.05, 0.15, 0.19, 0.25, 0.45})
                EXPECT_NEAR(mapped.at(frequency).phase, wanted.at(frequency).phase, 1e-9) << order << ' ' << type;
            EXPECT_NEAR(mapped.at(0).delay, wanted.at(0).delay, 1e-9) << order << ' ' << type;
            if (order > 1) // else the low-pass's one pole lies at 0, like the padding of its section
                EXPECT_NEAR(polesOf(function).greatestRadius, polesOf(designFilter(band, 1000, false)).greatestRadius,
                            1e-12)
                    << order << ' ' << type;
        }
}

TEST(BandMap, HasThePolesOfTheBandFilter)
{
    for (const vectors::BandFilter& filter : vectors::kBandFilters) {
        const Poles poles = polesOf(mappedOf(filter));
        EXPECT_NEAR(poles.greatestRadius, filter.greatestRadius, 1e-12) << filter.name;
        EXPECT_EQ(poles.shift, 0);
    }
}

// By definition: the cut-offs lie at that of the low-pass, the middle at 0, the ends at half the sampling rate.
TEST(BandMap, IsExactAtItsCutOffsHoweverCloseTheyAre)
{
    constexpr double kWidth = 1e-9;
    const BandMap map(0.02, 0.02 + kWidth, false);
    EXPECT_NEAR(map.placeOf(0.02).frequency, -0.25, 1e-7);
    EXPECT_NEAR(map.placeOf(0.02 + kWidth).frequency, 0.25, 1e-7);
    EXPECT_NEAR(map.placeOf(0.02 + kWidth / 2).frequency, 0, 1e-7);
    EXPECT_EQ(map.placeOf(0).frequency, -0.5);
    EXPECT_EQ(map.placeOf(0.5).frequency, 0.5);
    const BandMap stop(0.02, 0.02 + kWidth, true);
    EXPECT_NEAR(stop.placeOf(0.02).frequency, 0.25, 1e-7);
    EXPECT_NEAR(stop.placeOf(0.02 + kWidth).frequency, -0.25, 1e-7);
    EXPECT_EQ(stop.placeOf(0).frequency, 0);
}

} // namespace
} // namespace quordsp::cli
