#include "filter_choice.h"

#include <cmath>
#include <string>

#include <gmock/gmock.h>

#include "failure_of.h"
#include "filter_window.h"

namespace quordsp::cli {
namespace {

using testing::HasSubstr;

FilterChoice choiceOf(const std::string& family)
{
    return {.families = {family}, .response = "lowpass", .cutoff = {100}};
}

std::string complaint(const FilterChoice& choice)
{
    return messageOf([&] { chosenFilters(choice); });
}

TEST(FilterChoice, NamesWhatAFamilyLacks)
{
    FilterChoice choice = choiceOf("elliptic");
    EXPECT_EQ(complaint(choice), "elliptic needs --order");
    choice.order = 4;
    EXPECT_EQ(complaint(choice), "elliptic needs --ripple");
    choice.ripple = 1;
    EXPECT_EQ(complaint(choice), "elliptic needs --attenuation");
    choice.attenuation = 60;
    EXPECT_EQ(chosenFilters(choice).size(), 1);
    choice.cutoff.clear();
    EXPECT_EQ(complaint(choice), "elliptic needs --cutoff");
    EXPECT_EQ(complaint(choiceOf("windowed")), "windowed needs --taps");
    EXPECT_EQ(complaint({.families = {"equiripple"}, .response = "lowpass", .taps = 5}), "equiripple needs --edges");
}

TEST(FilterChoice, NamesWhatAFamilyDoesNotTake)
{
    FilterChoice choice = choiceOf("butterworth");
    choice.order = 4;
    choice.ripple = 1;
    EXPECT_EQ(complaint(choice), "--ripple is not for butterworth");
    EXPECT_EQ(failureOf([&] { chosenFilters(choice); }).advice(),
              "it is for chebyshev, elliptic, narrow-band, wideband");
    choice.ripple.reset();
    choice.taps = 5;
    EXPECT_EQ(complaint(choice), "--taps is not for butterworth");
    choice.taps.reset();
    choice.edges = {1, 2};
    EXPECT_EQ(complaint(choice), "--edges is not for butterworth");
    choice.edges.clear();
    choice.beta = 2;
    EXPECT_EQ(complaint(choice), "--beta is not for butterworth");
}

TEST(FilterChoice, OfSeveralFamiliesMayHaveWhatOneOfThemTakes)
{
    FilterChoice choice = choiceOf("butterworth");
    choice.families = {"butterworth", "chebyshev"};
    choice.order = 4;
    EXPECT_EQ(complaint(choice), "chebyshev needs --ripple");
    choice.ripple = 1;
    const auto filters = chosenFilters(choice);
    ASSERT_EQ(filters.size(), 2);
    EXPECT_EQ(filters[0].design, "butterworth of order 4");
    EXPECT_EQ(filters[1].design, "chebyshev of order 4, ripple 1 dB");
    choice.attenuation = 60;
    EXPECT_EQ(complaint(choice), "--attenuation is not for butterworth, chebyshev");
    choice.families = {"bessel", "bessel"};
    EXPECT_EQ(complaint(choice), "--family names a design twice");
}

TEST(FilterChoice, WantsAsManyFrequenciesAsTheResponseHas)
{
    FilterChoice choice = choiceOf("bessel");
    choice.order = 2;
    choice.response = "bandpass";
    EXPECT_EQ(complaint(choice), "bandpass takes 2 --cutoff frequencies, not 1");
    choice = {.families = {"equiripple"}, .response = "bandstop", .taps = 31, .edges = {1, 2, 3}};
    EXPECT_EQ(complaint(choice), "bandstop takes 4 --edges frequencies, not 3");
    choice.response = "highpass";
    choice.edges = {1, 2};
    EXPECT_EQ(chosenFilters(choice)[0].describe(), "highpass 1/2 Hz, equiripple with 31 taps");
}

TEST(FilterChoice, TakesAParameterForWindowsThatHaveOne)
{
    FilterChoice choice = choiceOf("windowed");
    choice.taps = 11;
    choice.window = "gaussian";
    EXPECT_TRUE(std::isnan(chosenFilters(choice)[0].request.parameter)); // the default
    choice.parameter = 0.25;
    EXPECT_EQ(chosenFilters(choice)[0].request.parameter, 0.25);
    EXPECT_EQ(chosenFilters(choice)[0].request.window, 62);
    choice.window = "hamming";
    EXPECT_EQ(complaint(choice), "--param is not for hamming");
    choice = choiceOf("butterworth");
    choice.order = 1;
    choice.parameter = 1;
    EXPECT_THAT(complaint(choice), HasSubstr("--param is not for a filter without a --window"));
}

TEST(FilterChoice, DescribesTheBand)
{
    FilterChoice choice{.families = {"butterworth", "equiripple"},
                        .response = "bandpass",
                        .order = 4,
                        .taps = 31,
                        .cutoff = {90, 110},
                        .edges = {80, 90, 110, 120}};
    const auto filters = chosenFilters(choice);
    EXPECT_EQ(filters[0].describe(), "bandpass 90 to 110 Hz, butterworth of order 4");
    EXPECT_EQ(filters[1].describe(), "bandpass 80/90 to 110/120 Hz, equiripple with 31 taps");
    EXPECT_EQ(describeBand(filters), "bandpass");
    EXPECT_EQ(describeBand({filters[0]}), "bandpass 90 to 110 Hz");
    choice.cutoff = {100, 100.0001};
    EXPECT_EQ(chosenFilters(choice)[0].band, "bandpass 100 to 100.0001 Hz");
}

TEST(FilterChoice, TakesAResponseForFamiliesThatHaveIt)
{
    FilterChoice choice{.families = {"butterworth"}, .order = 2, .cutoff = {100}};
    EXPECT_EQ(complaint(choice), "butterworth needs --response");
    choice = {.families = {"hilbert"}, .response = "lowpass", .taps = 21, .bands = {"50:450"}};
    EXPECT_EQ(complaint(choice), "--response is not for hilbert");
    choice = {.families = {"wideband"}, .response = "bandpass", .edges = {1, 2, 3, 4}, .ripple = 1, .attenuation = 50};
    EXPECT_EQ(complaint(choice), "wideband has no response bandpass");
    choice.families = {"narrow-band"};
    EXPECT_EQ(chosenFilters(choice)[0].describe(),
              "bandpass 1/2 to 3/4 Hz, narrow-band, ripple 1 dB, attenuation 50 dB");
}

TEST(FilterChoice, SaysWhatAFamilyWithoutResponsesIsFor)
{
    FilterChoice choice{.families = {"savitzky-golay", "differentiator", "multiband"},
                        .order = 3,
                        .taps = 30,
                        .bands = {"0:100:0.5", "150:200:0:10"},
                        .side = 7};
    auto filters = chosenFilters(choice);
    EXPECT_EQ(filters[0].describe(), "smoothing, savitzky-golay of order 3 over 15 samples");
    EXPECT_EQ(filters[1].describe(),
              "derivative 0 to 100 Hz by 0.5, 150 to 200 Hz by 0 with weight 10, differentiator with 30 taps");
    EXPECT_EQ(describeBand(filters), "3 filters");
    choice.derivative = 2;
    filters = chosenFilters(choice);
    EXPECT_EQ(filters[0].band, "derivative 2");
    EXPECT_EQ(filters[1].request.derivative, 1);
    EXPECT_EQ(filters[2].request.derivative, 0);
    EXPECT_EQ(filters[2].request.bands.size(), 2u);
}

TEST(FilterChoice, WantsAWeightForEachSampleOfTheFrameAndADerivativeThatThereIs)
{
    FilterChoice choice{.families = {"savitzky-golay"}, .order = 2, .side = 2, .weights = {1, 2, 3}};
    EXPECT_EQ(complaint(choice), "there are 3 --weights");
    EXPECT_THAT(failureOf([&] { chosenFilters(choice); }).advice(), HasSubstr("give 5"));
    choice.weights = {1, 2, 3, 2, 1};
    EXPECT_EQ(chosenFilters(choice)[0].design, "savitzky-golay of order 2 over 5 samples, weighted");
    for (const int derivative : {-1, 3}) {
        choice.derivative = derivative;
        EXPECT_EQ(complaint(choice), "--derivative must be from 0 to the --order");
    }
}

TEST(FilterChoice, RefusesWhatWouldTakeAllMemory)
{
    FilterChoice choice = choiceOf("kaiser");
    choice.beta = 3;
    choice.taps = 2000000000;
    EXPECT_EQ(complaint(choice), "--taps must be at most 1048576");
    choice = {.families = {"savitzky-golay"}, .order = 2, .side = 5001, .derivative = 1};
    EXPECT_EQ(complaint(choice), "--side with --derivative must be at most 5000");
    choice.derivative = 0;
    EXPECT_EQ(chosenFilters(choice)[0].request.frame(), 10003);
}

TEST(FilterDesigns, HaveEachWindowOfTheTableOnce)
{
    int codes = 0;
    for (const FilterWindow& window : filterWindows()) {
        EXPECT_EQ(&filterWindow(window.name), &window);
        codes += window.code;
    }
    EXPECT_EQ(filterWindows().size(), 19);
    EXPECT_EQ(codes, 45 + 11 + 160 + 183 + 0); // 0 to 9, 11, 30 to 34, 60 to 62
}

} // namespace
} // namespace quordsp::cli
