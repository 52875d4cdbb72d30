#include "frequency_response.h"

#include <cmath>
#include <numbers>
#include <vector>

#include <gtest/gtest.h>

#include "data/cli/filter_responses.inc"

namespace quordsp::cli {
namespace {

constexpr double kTurn = 2 * std::numbers::pi;

TEST(FrequencyResponse, HasTheGainsOfSciPy)
{
    for (const auto& [name, sections, decibels, phase, delay] : vectors::kResponses) {
        const FrequencyResponse response(sections);
        for (std::size_t i = 0; i < vectors::kFrequencies.size(); ++i) {
            EXPECT_NEAR(response.at(vectors::kFrequencies[i]).decibels, decibels[i], 1e-9) << name << ' ' << i;
            EXPECT_EQ(response.decibels(vectors::kFrequencies[i]), response.at(vectors::kFrequencies[i]).decibels);
        }
    }
}

// Unwrapping along a grid cannot tell whole turns at its start, so that the phase counts from the first frequency.
TEST(FrequencyResponse, HasThePhasesThatSciPyUnwrapsOnAFineGrid)
{
    for (const auto& [name, sections, decibels, phase, delay] : vectors::kResponses) {
        const FrequencyResponse response(sections);
        const double first = response.at(vectors::kFrequencies[0]).phase;
        EXPECT_NEAR(std::remainder(first - phase[0], kTurn), 0, 1e-6) << name;
        for (std::size_t i = 0; i < vectors::kFrequencies.size(); ++i)
            EXPECT_NEAR(response.at(vectors::kFrequencies[i]).phase - first, phase[i] - phase[0], 1e-6)
                << name << ' ' << i;
    }
}

TEST(FrequencyResponse, HasTheGroupDelaysOfSciPy)
{
    for (const auto& [name, sections, decibels, phase, delay] : vectors::kResponses)
        for (std::size_t i = 0; i < vectors::kFrequencies.size(); ++i)
            EXPECT_NEAR(FrequencyResponse(sections).at(vectors::kFrequencies[i]).delay, delay[i], 1e-7)
                << name << ' ' << i;
}

// 0.25 (1 + 1/z)^2 has the gain cos^2(pi f) and the delay 1, by hand.
TEST(FrequencyResponse, OfThreeTapsIsASquaredCosine)
{
    const std::vector<Section> taps{{{0.25, 0.5, 0.25}, {1}}};
    const FrequencyResponse response(taps);
    for (const double f : {0.0, 0.1, 0.25, 0.4, 0.49}) {
        const ResponsePoint point = response.at(f);
        EXPECT_NEAR(point.decibels, 40 * std::log10(std::cos(f * kTurn / 2)), 1e-12);
        EXPECT_NEAR(point.phase, -kTurn * f, 1e-15);
        EXPECT_EQ(point.delay, 1);
    }
}

TEST(FrequencyResponse, HasNoPhaseButADelayWhereItIsZero)
{
    const std::vector<Section> taps{{{0.25, 0.5, 0.25}, {1}}, {{1, -1}, {1}}};
    for (const double f : {0.0, 0.5}) {
        const ResponsePoint point = FrequencyResponse(taps).at(f);
        EXPECT_EQ(point.decibels, -HUGE_VAL) << f;
        EXPECT_TRUE(std::isnan(point.phase)) << f;
        EXPECT_EQ(point.delay, 1.5) << f;
    }
}

TEST(FrequencyResponse, IsALineInPhaseForALongDelayWithoutAGrid)
{
    std::vector<double> late(5001);
    late.back() = -2;
    const std::vector<Section> sections{{late, {1}}};
    const ResponsePoint point = FrequencyResponse(sections).at(0.3);
    EXPECT_NEAR(point.decibels, 20 * std::log10(2.0), 1e-12);
    EXPECT_NEAR(point.phase, kTurn * (0.5 - 0.3 * 5000), 1e-9);
    EXPECT_EQ(point.delay, 5000);
}

// A zero at 2 and its mirror image 1/2: by hand, the all-pass (1 - 2/z)/(1 - 0.5/z) has the gain 2, and turns by half
// the circle from 0 to half the sampling rate.
TEST(FrequencyResponse, FollowsThePhaseOfZerosOutsideTheCircle)
{
    const std::vector<Section> allPass{{{1, -2}, {1, -0.5}}};
    const FrequencyResponse response(allPass);
    for (const double f : {0.0, 0.01, 0.2, 0.5})
        EXPECT_NEAR(response.decibels(f), 20 * std::log10(2.0), 1e-13);
    EXPECT_NEAR(response.at(0.5).phase - response.at(0).phase, -kTurn / 2, 1e-14);
    EXPECT_NEAR(response.at(0).delay, 3, 1e-14); // (1 + 1/2)/(1 - 1/2)
}

TEST(FrequencyResponse, IsASumOverManySectionsThatWouldOverflowAsAProduct)
{
    const std::vector<Section> sections(500, {{1e3, 0}, {1, 0}});
    EXPECT_NEAR(FrequencyResponse(sections).decibels(0.2), 500 * 60, 1e-9);
}

TEST(Poles, HaveTheirGreatestRadius)
{
    const std::vector<Section> sections{{{1}, {1, -0.5}}, {{1}, {1, 0, 0.81}}, {{1}, {1, 0, 0}}};
    EXPECT_NEAR(polesOf({Form::Cascade, sections}).greatestRadius, 0.9, 1e-15);
    const std::vector<Section> taps{{{1, 2, 1}, {1}}};
    EXPECT_EQ(polesOf({Form::Taps, taps}).greatestRadius, 0);
}

// A real pole alone at 1 - d moves by half a unit in the last place of its coefficient, at most: 2^-53/d of the
// distance.
TEST(Poles, MoveByTheRoundingOfTheCoefficients)
{
    for (const double d : {1e-3, 1e-9, 1e-14}) {
        const std::vector<Section> sections{{{d}, {1, d - 1}}};
        EXPECT_NEAR(polesOf({Form::Cascade, sections}).shift, 0x1p-53 / d, 0.02 * 0x1p-53 / d);
    }
}

} // namespace
} // namespace quordsp::cli
