#include "plot/plot.h"

#include <cmath>
#include <limits>
#include <vector>

#include <gmock/gmock.h>

#include "plot/svg.h"

namespace quordsp::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(EscapeXml, ReplacesWhatMarkupMeans)
{
    EXPECT_EQ(escapeXml("a<b> & \"c\"\n"), "a&lt;b&gt; &amp; &quot;c&quot; ");
}

TEST(EscapeXml, KeepsUtf8)
{
    EXPECT_EQ(escapeXml("\xC3\xA4\xE4\xB8\xAD\xF0\x9F\x98\x80"), "\xC3\xA4\xE4\xB8\xAD\xF0\x9F\x98\x80");
}

TEST(EscapeXml, TakesOtherBytesAsLatin1)
{
    EXPECT_EQ(escapeXml("\xB0"
                        "C"),
              "&#176;C");
    EXPECT_EQ(escapeXml("\xC3"), "&#195;");                     // cut short
    EXPECT_EQ(escapeXml("\xC0\x80"), "&#192;&#128;");           // overlong
    EXPECT_EQ(escapeXml("\xED\xA0\x80"), "&#237;&#160;&#128;"); // a surrogate
}

// Refers to the samples: they must outlive it.
Plot twoCurves(const std::vector<double>& one, const std::vector<double>& other)
{
    return {.title = "x, <lowpass>",
            .subtitle = "file",
            .xLabel = "time (s)",
            .panels = {{.yLabel = "x (g)", .curves = {{"input", one}, {"filtered", other}}}}};
}

Plot threePanels(const std::vector<double>& samples)
{
    return {.title = "three",
            .subtitle = "",
            .xLabel = "time (s)",
            .panels = {{.yLabel = "a (g)", .curves = {{"first", samples}}},
                       {.yLabel = "v (mm/s)", .curves = {{"", samples}}},
                       {.yLabel = "d (mm)", .curves = {{"third", samples}}}}};
}

std::size_t countOf(const std::string& text, const std::string& part)
{
    std::size_t count = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size()))
        ++count;
    return count;
}

TEST(Plot, IsLabelled)
{
    const std::string svg = drawPlot(twoCurves({1, 2}, {3, 4}));
    for (const char* const label : {">x, &lt;lowpass&gt;<", ">file<", ">time (s)<", ">x (g)<", ">input<", ">filtered<"})
        EXPECT_THAT(svg, HasSubstr(label));
}

TEST(Plot, HasALegendForOneCurveToo)
{
    const std::vector<double> samples{3, 4};
    Plot plot = twoCurves(samples, samples);
    plot.panels[0].curves.pop_back();
    EXPECT_THAT(drawPlot(plot), HasSubstr(">input<"));
}

TEST(Plot, MarksPointsAndMakesRoomForThem)
{
    const std::vector<double> samples{3, 4};
    Plot plot = twoCurves(samples, samples);
    plot.panels[0].marks = {{0, 3}, {1, 40}};
    const std::string svg = drawPlot(plot);
    EXPECT_EQ(countOf(svg, "<circle"), 2u);
    EXPECT_THAT(svg, HasSubstr(">40<"));
}

TEST(Plot, DrawsOneOfManyMarksAtOnePlace)
{
    const std::vector<double> samples{3, 4};
    Plot plot = twoCurves(samples, samples);
    plot.panels[0].marks.assign(1000, {0.5, 3.5});
    EXPECT_EQ(countOf(drawPlot(plot), "<circle"), 1u);
}

TEST(Plot, ShortensTextsToTheirSpace)
{
    const std::vector<double> samples{3, 4};
    const std::string longText(1000, 'x');
    Plot plot = twoCurves(samples, samples);
    plot.title = plot.subtitle = plot.xLabel = plot.panels[0].yLabel = longText;
    plot.panels[0].curves[0].name = longText;
    plot.panels[0].callout = Callout{1, 4, longText};
    const std::string svg = drawPlot(plot);
    EXPECT_EQ(countOf(svg, "x...x"), 7u);               // the callout stands twice
    EXPECT_EQ(countOf(svg, std::string(130, 'x')), 7u); // of <title>, which is not drawn
}

TEST(Plot, LeavesTheSubtitleNoSpaceBesideManyCurves)
{
    const std::vector<double> samples{3, 4};
    Plot plot = twoCurves(samples, samples);
    plot.panels[0].curves.assign(10, {std::string(1000, 'x'), samples});
    EXPECT_THAT(drawPlot(plot), Not(HasSubstr(">file<")));
}

TEST(Shortened, KeepsTheUnitAtTheEnd)
{
    EXPECT_EQ(shortened("acceleration at the bearing (m/s2)", 23), "accelerati...ing (m/s2)");
}

TEST(Shortened, CutsBetweenCharacters)
{
    EXPECT_EQ(shortened("abcdef", 6), "abcdef");
    EXPECT_EQ(shortened("abcdefg", 6), "ab...g");
    EXPECT_EQ(shortened("\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F", 4), "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F");
    EXPECT_EQ(shortened("\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F!", 4), "\xC3\xA4...");
    // As broad as two letters each.
    EXPECT_EQ(shortened("\xE4\xB8\xAD\xE4\xB8\xAD\xE4\xB8\xAD\xE4\xB8\xAD", 7), "\xE4\xB8\xAD...\xE4\xB8\xAD");
    EXPECT_EQ(shortened("\xE4\xB8\xAD\xE4\xB8\xAD\xE4\xB8\xAD", 5), "...");
}

TEST(Plot, GivesComparedCurvesColoursOfTheirOwn)
{
    const std::vector<double> samples{0, 1};
    Plot plot = twoCurves(samples, samples);
    EXPECT_THAT(drawPlot(plot), HasSubstr("#b3bfca"));
    plot.panels[0].compared = true;
    const std::string svg = drawPlot(plot);
    EXPECT_THAT(svg, Not(HasSubstr("#b3bfca")));
    for (const char* const stroke : {"stroke=\"#1a5fa8\"", "stroke=\"#d1650f\""})
        EXPECT_EQ(countOf(svg, stroke), 2) << stroke; // the curve and its line in the legend
}

TEST(Plot, RefersToNothingOutsideItself)
{
    const std::string svg = drawPlot(twoCurves({1, 2}, {3, 4}));
    EXPECT_EQ(countOf(svg, "http"), 1u); // the name space
    EXPECT_THAT(svg, Not(HasSubstr("href")));
    EXPECT_THAT(svg, Not(HasSubstr("url(")));
}

TEST(Plot, LeavesAGapForSamplesThatAreNotFinite)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::string whole = drawPlot(twoCurves({1, 2, 3, 4, 5}, {1, 2, 3, 4, 5}));
    const std::string broken = drawPlot(twoCurves({1, 2, 3, 4, 5}, {1, 2, nan, 4, 5}));
    EXPECT_EQ(countOf(broken, "<polyline"), countOf(whole, "<polyline") + 1);
    EXPECT_THAT(broken, Not(HasSubstr("nan")));
}

// In the panel of 190 pixels, from 0 to 1.
TEST(Plot, DrawsADotForASampleAlone)
{
    const std::string svg = drawPlot(threePanels({0, NAN, 1, NAN, 0, 0}));
    EXPECT_THAT(svg, HasSubstr("<circle cx=\"88\" cy=\"274\" r=\"1.5\" fill=\"#1a5fa8\""));
    EXPECT_THAT(svg, HasSubstr("<circle cx=\"424\" cy=\"84\" r=\"1.5\" fill=\"#1a5fa8\""));
    EXPECT_EQ(countOf(svg, "<circle"), 6u);
    EXPECT_EQ(countOf(svg, "<polyline"), 3u);
    EXPECT_EQ(countOf(drawPlot(threePanels({7})), "<circle"), 3u);
}

TEST(Plot, SurvivesCurvesWithoutExtentOrWithoutSamples)
{
    for (const bool logarithmic : {false, true})
        for (const std::vector<double>& samples : {std::vector<double>{},
                                                   {0},
                                                   {7},
                                                   {0, 0},
                                                   {INFINITY, NAN},
                                                   {-1e300, 1e300},
                                                   {1.7e308, -1.7e308, 1e308},
                                                   {5e-324, 5e-324},
                                                   {0, 5e-324},
                                                   {1, 2, 3}})
            for (const double xStep : {1.0, 1e308, HUGE_VAL, 5e-324}) {
                Plot plot = twoCurves(samples, samples);
                plot.panels[0].logarithmic = logarithmic;
                plot.xStep = xStep;
                const std::string svg = drawPlot(plot);
                EXPECT_THAT(svg, Not(HasSubstr("nan")));
                EXPECT_THAT(svg, Not(HasSubstr("inf")));
                EXPECT_THAT(svg, HasSubstr("</svg>"));
            }
}

// The plot area is 840 pixels wide and 388 high.
TEST(Plot, SpansAnExtentThatIsNotFinite)
{
    const std::vector<double> samples{1.7e308, -1.7e308, 0};
    EXPECT_THAT(drawPlot(twoCurves(samples, samples)), HasSubstr("points=\"88,94.5 508,461.5 928,278 \""));
}

// The plot area reaches from 472 up to 84 pixels: three decades, so that one lies 388 / 3 pixels above the other.
TEST(Plot, DrawsDecadesAtEqualDistances)
{
    const std::vector<double> samples{0.001, 0.01, 0.1, 1};
    Plot plot = twoCurves(samples, samples);
    plot.panels[0].logarithmic = true;
    EXPECT_THAT(drawPlot(plot), HasSubstr("points=\"88,472 368,342.7 648,213.3 928,84 \""));
}

TEST(Plot, PointsOutWhatItIsAskedTo)
{
    const std::vector<double> samples{3, 4};
    Plot plot = twoCurves(samples, samples);
    plot.panels[0].callout = Callout{1, 4, "100 Hz, 10 g"};
    EXPECT_THAT(drawPlot(plot), HasSubstr(">100 Hz, 10 g<"));
}

TEST(Plot, OfALongCurveStaysSmall)
{
    std::vector<double> samples(1000000);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = std::sin(static_cast<double>(i));
    EXPECT_LT(drawPlot(twoCurves(samples, samples)).size(), 120000u);
}

TEST(Plot, LabelsTheAxisOfEachPanelAndTheTimeOnce)
{
    const std::string svg = drawPlot(threePanels({1, 2}));
    for (const char* const label : {">a (g)<", ">v (mm/s)<", ">d (mm)<", ">time (s)<"})
        EXPECT_EQ(countOf(svg, label), 1u) << label;
}

// Panels of 190 pixels from 84 on, 38 apart: the samples are at the ends of each axis.
TEST(Plot, StacksItsPanelsOverOneAxis)
{
    const std::vector<double> samples{0, 1};
    const std::string svg = drawPlot(threePanels(samples));
    for (const char* const curve : {"\"88,274 928,84 \"", "\"88,502 928,312 \"", "\"88,730 928,540 \""})
        EXPECT_THAT(svg, HasSubstr(curve));
    EXPECT_THAT(svg, HasSubstr("viewBox=\"0 0 960 798\""));
}

TEST(Plot, LeavesACurveWithoutANameOutOfTheLegend)
{
    const std::vector<double> samples{0, 1};
    Plot plot = twoCurves(samples, samples);
    const std::string whole = drawPlot(plot);
    plot.panels[0].curves[0].name = "";
    EXPECT_EQ(countOf(drawPlot(plot), "<text"), countOf(whole, "<text") - 1);
}

// The plot area is 840 pixels wide and begins at 88.
TEST(Plot, PutsSamplesWhereTheyAreToldToLie)
{
    const std::vector<double> samples{0, 1, 0};
    const std::vector<double> places{10, 11, 20};
    Plot plot = threePanels(samples);
    plot.x = places;
    EXPECT_THAT(drawPlot(plot), HasSubstr("\"88,274 172,84 928,274 \""));
}

TEST(Plot, MovesThePlacesByTheStart)
{
    const std::vector<double> samples{0, 1, 0};
    const std::vector<double> places{1716714010, 1716714011, 1716714020};
    Plot plot = threePanels(samples);
    plot.x = places;
    plot.xStart = -1716714010;
    const std::string svg = drawPlot(plot);
    EXPECT_THAT(svg, HasSubstr("\"88,274 172,84 928,274 \""));
    EXPECT_THAT(svg, HasSubstr(">10<"));
    EXPECT_THAT(svg, Not(HasSubstr("tspan")));
}

} // namespace
} // namespace quordsp::cli
