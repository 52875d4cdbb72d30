#include "transfer_function.h"

#include <cmath>
#include <numbers>

#include <gmock/gmock.h>

#include "frequency_response.h"

namespace quordsp::cli {
namespace {

ChosenFilter butterworth(int type, double lower, double upper)
{
    return {filterFamily("butterworth"), {.type = type, .edges = {lower, upper}, .order = 8}, "band", "butterworth"};
}

TEST(TransferFunction, IsTheSectionsOrWhenTheyArePreferredTheDirectCoefficients)
{
    const ChosenFilter filter = butterworth(2, 90, 110);
    EXPECT_EQ(designFilter(filter, 5000, false).form, Form::Cascade);
    EXPECT_EQ(designFilter(filter, 5000, false).sections.size(), 4u);
    EXPECT_EQ(designFilter(filter, 5000, true).form, Form::Direct);
    EXPECT_EQ(designFilter(filter, 5000, true).sections[0].reverse.size(), 17u);
    EXPECT_EQ(designFilter(filter, 5000, false).refusal, "");
}

// By definition: the gain of a Butterworth filter is half power at its cut-offs and 1 in the middle.
TEST(TransferFunction, OfABandTooSharpForSectionsIsThatOfTheDesignByItsLowPass)
{
    for (const int type : {2, 3}) {
        const TransferFunction function = designFilter(butterworth(type, 99.999, 100.001), 5000, false);
        EXPECT_EQ(function.form, Form::Mapped);
        EXPECT_THAT(function.refusal, testing::HasSubstr("status -20031"));
        const FrequencyResponse response(function);
        for (const double cutoff : {99.999, 100.001})
            EXPECT_NEAR(response.decibels(cutoff / 5000), -10 * std::log10(2.0), 1e-8) << type;
        EXPECT_NEAR(response.decibels((type == 2 ? 100.0 : 90.0) / 5000), 0, 1e-9) << type;
        EXPECT_LT(response.decibels((type == 2 ? 90.0 : 100.0001) / 5000), -100) << type;
    }
}

// Likewise; for so low a cut-off the pole nearest to the circle is 2 pi share sin(pi/16) from it.
TEST(TransferFunction, OfACutOffTooLowForSectionsIsThatOfTheDesignByItsLowPass)
{
    constexpr double kShare = 1e-11;
    for (const int type : {0, 1}) {
        const TransferFunction function = designFilter(butterworth(type, 5000 * kShare, 0), 5000, false);
        EXPECT_EQ(function.form, Form::Mapped);
        const FrequencyResponse response(function);
        EXPECT_NEAR(response.decibels(kShare), -10 * std::log10(2.0), 1e-8) << type;
        EXPECT_NEAR(response.decibels(type == 0 ? 0 : 0.5), 0, 1e-9) << type;
        EXPECT_NEAR(response.decibels(kShare * (type == 0 ? 10 : 0.1)), -160, 1e-6) << type;
        const double distance = 2 * std::numbers::pi * kShare * std::sin(std::numbers::pi / 16);
        EXPECT_NEAR(1 - polesOf(function).greatestRadius, distance, 1e-15) << type;
    }
}

} // namespace
} // namespace quordsp::cli
