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
            .yLabel = "x (g)",
            .curves = {{"input", one}, {"filtered", other}}};
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

TEST(Plot, HasALegendForSeveralCurvesOnly)
{
    const std::vector<double> samples{3, 4};
    Plot plot = twoCurves(samples, samples);
    plot.curves.pop_back();
    EXPECT_THAT(drawPlot(plot), Not(HasSubstr(">input<")));
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

TEST(Plot, SurvivesCurvesWithoutExtentOrWithoutSamples)
{
    for (const bool logarithmic : {false, true})
        for (const std::vector<double>& samples :
             {std::vector<double>{}, {0}, {7}, {0, 0}, {INFINITY, NAN}, {-1e300, 1e300}}) {
            Plot plot = twoCurves(samples, samples);
            plot.logarithmic = logarithmic;
            const std::string svg = drawPlot(plot);
            EXPECT_THAT(svg, Not(HasSubstr("nan")));
            EXPECT_THAT(svg, Not(HasSubstr("inf")));
            EXPECT_THAT(svg, HasSubstr("</svg>"));
        }
}

// The plot area reaches from 472 up to 84 pixels: three decades, so that one lies 388 / 3 pixels above the other.
TEST(Plot, DrawsDecadesAtEqualDistances)
{
    const std::vector<double> samples{0.001, 0.01, 0.1, 1};
    Plot plot = twoCurves(samples, samples);
    plot.logarithmic = true;
    EXPECT_THAT(drawPlot(plot), HasSubstr("points=\"88,472 368,342.7 648,213.3 928,84 \""));
}

TEST(Plot, PointsOutWhatItIsAskedTo)
{
    const std::vector<double> samples{3, 4};
    Plot plot = twoCurves(samples, samples);
    plot.callout = Callout{1, 4, "100 Hz, 10 g"};
    EXPECT_THAT(drawPlot(plot), HasSubstr(">100 Hz, 10 g<"));
}

TEST(Plot, OfALongCurveStaysSmall)
{
    std::vector<double> samples(1000000);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = std::sin(static_cast<double>(i));
    EXPECT_LT(drawPlot(twoCurves(samples, samples)).size(), 120000u);
}

} // namespace
} // namespace quordsp::cli
