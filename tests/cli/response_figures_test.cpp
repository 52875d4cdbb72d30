#include "response_figures.h"

#include <cmath>
#include <numbers>

#include <gmock/gmock.h>

namespace quordsp::cli {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr double kRate = 1000;

ChosenFilter filterOf(const char* family, FilterRequest request)
{
    request.rate = kRate;
    return {filterFamily(family), request, "lowpass", family};
}

ResponseFigures figuresOf(const ChosenFilter& filter, const std::vector<Section>& sections)
{
    return measureResponse(filter, kRate, {Form::Cascade, sections}, FrequencyResponse(sections));
}

// scipy.signal.butter(2, 0.2), cheby1(2, 0.1, 0.2) and cheby2(2, 40, 0.2)
const std::vector<Section> kButterworth{
    {{0.06745527388907191, 0.13491054777814382, 0.06745527388907191}, {1, -1.1429805025399011, 0.4128015980961886}}};
const std::vector<Section> kChebyshev{
    {{0.163091272387, 0.326182544774, 0.163091272387}, {1, -0.613126393211, 0.273045514473}}};
const std::vector<Section> kInverse{
    {{0.0113533939346, -0.0147895916441, 0.0113533939346}, {1, -1.87086037755, 0.878777573776}}};

TEST(ResponseFigures, OfAButterworthFilterAreItsHalfPowerPoint)
{
    const ChosenFilter filter = filterOf("butterworth", {.edges = {100}, .order = 2});
    const ResponseFigures figures = figuresOf(filter, kButterworth);
    EXPECT_THAT(figures.edgeGains, ElementsAre(testing::DoubleNear(-10 * std::log10(2.0), 1e-12)));
    EXPECT_THAT(figures.halfPower, ElementsAre(testing::DoubleNear(100, 1e-9)));
    EXPECT_FALSE(figures.pass);
    EXPECT_FALSE(figures.stop);
    EXPECT_NEAR(figures.poles.greatestRadius, std::sqrt(0.4128015980961886), 1e-15);
    EXPECT_THAT(doubtsAbout(filter, figures), IsEmpty());
}

// By definition: an even order begins at the bottom of the ripple, and is there again at the cut-off.
TEST(ResponseFigures, OfAChebyshevFilterHaveItsRipple)
{
    const ChosenFilter filter = filterOf("chebyshev", {.edges = {100}, .order = 2, .ripple = 0.1});
    const ResponseFigures figures = figuresOf(filter, kChebyshev);
    ASSERT_TRUE(figures.pass);
    EXPECT_NEAR(figures.pass->lowest, -0.1, 1e-9);
    EXPECT_NEAR(figures.pass->highest, 0, 1e-9);
    EXPECT_EQ(figures.pass->bands[0].to, 100);
    EXPECT_FALSE(figures.stop);
    EXPECT_THAT(doubtsAbout(filter, figures), IsEmpty());
}

TEST(ResponseFigures, OfAnInverseChebyshevFilterHaveItsAttenuation)
{
    const ChosenFilter filter = filterOf("inverse-chebyshev", {.edges = {100}, .order = 2, .attenuation = 40});
    const ResponseFigures figures = figuresOf(filter, kInverse);
    ASSERT_TRUE(figures.stop);
    EXPECT_NEAR(figures.stop->highest, -40, 1e-6);
    EXPECT_EQ(figures.stop->bands[0].from, 100);
    EXPECT_THAT(doubtsAbout(filter, figures), IsEmpty());
}

// By hand: the gain of {1, 1, 1, 1, 1}/5 is sin(5 pi f)/(5 sin(pi f)). It falls from 1 at 0 Hz to 0 at 200 Hz; the
// side lobe next to it is 1/4 at cos(2 pi f) = -1/4, that at 500 Hz is 1/5.
TEST(ResponseFigures, OfAWindowedFilterHaveItsHighestSideLobe)
{
    const ChosenFilter filter = filterOf("windowed", {.edges = {100}, .taps = 5});
    const std::vector<Section> mean{{{0.2, 0.2, 0.2, 0.2, 0.2}, {1}}};
    const ResponseFigures figures = figuresOf(filter, mean);
    ASSERT_TRUE(figures.stop);
    EXPECT_NEAR(figures.stop->bands[0].from, 200, 0.2);
    EXPECT_NEAR(figures.stop->highest, 20 * std::log10(0.25), 1e-9);
    EXPECT_FALSE(figures.pass); // the gain falls from 0 Hz on: no ripple
    EXPECT_THAT(doubtsAbout(filter, figures), IsEmpty());
    EXPECT_EQ(figures.halfPower.size(), 1);
}

// By hand: cos^2(pi f) is half power where cos(pi f) = 2^(-1/4).
TEST(ResponseFigures, FindHalfPowerAwayFromTheCutoff)
{
    const ChosenFilter filter = filterOf("kaiser", {.edges = {300}, .taps = 3});
    const std::vector<Section> taps{{{0.25, 0.5, 0.25}, {1}}};
    EXPECT_THAT(figuresOf(filter, taps).halfPower,
                ElementsAre(testing::DoubleNear(kRate * std::acos(std::pow(2, -0.25)) / std::numbers::pi, 1e-9)));
}

TEST(ResponseFigures, TakeTheBandsOfAnEquirippleFilterFromItsEdges)
{
    const ChosenFilter filter = filterOf("equiripple", {.edges = {50, 400}, .taps = 3});
    const std::vector<Section> taps{{{0.25, 0.5, 0.25}, {1}}};
    const ResponseFigures figures = figuresOf(filter, taps);
    const auto gain = [](double f) { return 40 * std::log10(std::cos(std::numbers::pi * f)); };
    EXPECT_NEAR(figures.pass->lowest, gain(0.05), 1e-12);
    EXPECT_EQ(figures.pass->highest, 0);
    EXPECT_NEAR(figures.stop->highest, gain(0.4), 1e-12);
}

// By hand: the gain of {1/4, 1/2, 1/4} is cos^2(pi f), that of {1, 0, -1} 2 sin(2 pi f).
TEST(ResponseFigures, MeasureTheDeviationInEachBand)
{
    const ChosenFilter bands = filterOf("multiband", {.taps = 3, .bands = {{0, 100}, {400, 500, 0, 5}}});
    const TransferFunction mean{Form::Taps, {{{0.25, 0.5, 0.25}, {1}}}, {.taps = {0.25, 0.5, 0.25}, .ripple = 0.48}};
    const ResponseFigures figures = measureResponse(bands, kRate, mean, FrequencyResponse(mean));
    const auto gain = [](double f) { return std::pow(std::cos(std::numbers::pi * f), 2); };
    ASSERT_EQ(figures.deviations.size(), 2u);
    EXPECT_NEAR(figures.deviations[0].deviation, 1 - gain(0.1), 1e-12);
    EXPECT_NEAR(figures.deviations[1].deviation, gain(0.4), 1e-12);
    EXPECT_EQ(figures.ripple, 0.48);
    EXPECT_THAT(doubtsAbout(bands, figures), IsEmpty()); // 5 cos^2(0.4 pi) is 0.477
    const ChosenFilter heavier = filterOf("multiband", {.taps = 3, .bands = {{0, 100}, {400, 500, 0, 10}}});
    EXPECT_THAT(doubtsAbout(heavier, measureResponse(heavier, kRate, mean, FrequencyResponse(mean))),
                ElementsAre("the weighted deviation from 400 to 500 Hz is 0.954915 instead of 0.48"));
}

TEST(ResponseFigures, MeasureTheDeviationOfADerivativeRelativeToItsGain)
{
    const ChosenFilter filter = filterOf("differentiator", {.taps = 3, .bands = {{0, 100}}, .derivative = 1});
    const TransferFunction slope{Form::Taps, {{{500, 0, -500}, {1}}}, {.taps = {500, 0, -500}, .ripple = 0.065}};
    const ResponseFigures figures = measureResponse(filter, kRate, slope, FrequencyResponse(slope));
    const double wanted = 2 * std::numbers::pi * 100;
    EXPECT_NEAR(figures.deviations[0].deviation, 1 - kRate * std::sin(2 * std::numbers::pi * 0.1) / wanted, 1e-12);
    EXPECT_THAT(doubtsAbout(filter, figures), IsEmpty());
}

TEST(ResponseFigures, DoubtWhatIsNotAsItWasAskedFor)
{
    const ChosenFilter butterworth = filterOf("butterworth", {.edges = {101}, .order = 2});
    EXPECT_THAT(doubtsAbout(butterworth, figuresOf(butterworth, kButterworth)),
                ElementsAre(HasSubstr("the gain at 101 Hz is -3.1")));
    const ChosenFilter chebyshev = filterOf("chebyshev", {.edges = {100}, .order = 2, .ripple = 0.09});
    EXPECT_THAT(doubtsAbout(chebyshev, figuresOf(chebyshev, kChebyshev)),
                ElementsAre("the gain at 100 Hz is -0.1 dB instead of -0.09 dB",
                            "the ripple of the pass band is 0.1 dB instead of 0.09 dB"));
    const ChosenFilter inverse = filterOf("inverse-chebyshev", {.edges = {100}, .order = 2, .attenuation = 41});
    EXPECT_THAT(doubtsAbout(inverse, figuresOf(inverse, kInverse)),
                ElementsAre(HasSubstr("the gain at 100 Hz is -40 dB"),
                            "the attenuation of the stop band is 40 dB instead of 41 dB"));
}

// By hand: {1/5, 1/5, 1/5} has the gain 3/5 at 0 Hz, which falls from there on.
TEST(ResponseFigures, DoubtAPassBandBelowZeroDecibels)
{
    const ChosenFilter filter = filterOf("windowed", {.edges = {100}, .taps = 3});
    EXPECT_THAT(doubtsAbout(filter, figuresOf(filter, {{{0.2, 0.2, 0.2}, {1}}})),
                ElementsAre("the gain of the pass band is at most -4.43697 dB"));
    EXPECT_THAT(doubtsAbout(filter, figuresOf(filter, {{{0.32, 0.32, 0.32}, {1}}})), IsEmpty()); // -0.35 dB
}

TEST(ResponseFigures, OfNothingButZerosHaveNoBands)
{
    const ChosenFilter filter = filterOf("windowed", {.edges = {100}, .taps = 2});
    const TransferFunction nothing{Form::Taps, {{{0, 0}, {1}}}, {.taps = {0, 0}}};
    const ResponseFigures figures = measureResponse(filter, kRate, nothing, FrequencyResponse(nothing));
    EXPECT_FALSE(figures.pass);
    EXPECT_FALSE(figures.stop);
    EXPECT_THAT(doubtsAbout(filter, figures), ElementsAre("all coefficients are 0"));
}

TEST(ResponseFigures, DoubtPolesTooNearTheCircle)
{
    const ChosenFilter filter = filterOf("bessel", {.edges = {100}, .order = 1});
    const std::vector<Section> near{{{1e-14}, {1, 1e-14 - 1}}};
    EXPECT_THAT(doubtsAbout(filter, figuresOf(filter, near)),
                ElementsAre(HasSubstr("a pole at 1e-14 from the unit circle is too near for double")));
    const std::vector<Section> unstable{{{1}, {1, -1.01}}};
    EXPECT_THAT(doubtsAbout(filter, figuresOf(filter, unstable)),
                ElementsAre(HasSubstr("the filter is not stable: a pole has the radius 1.01")));
}

} // namespace
} // namespace quordsp::cli
