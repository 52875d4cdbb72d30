#include "plot/plot.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "plot/decimate.h"
#include "plot/svg.h"
#include "plot/ticks.h"

namespace quordsp::cli {
namespace {

constexpr double kWidth = 960;
constexpr double kHeight = 540;
constexpr double kLeft = 88;
constexpr double kRight = kWidth - 32;
constexpr double kTop = 84;
constexpr double kBottom = kHeight - 68;
constexpr int kXIntervals = 10;
constexpr int kYIntervals = 8;
constexpr int kMostDecades = 8;
constexpr double kLetter = 6.6;      // mean width of a letter of the labels
constexpr double kTitleLetter = 9.9; // and of the title
constexpr double kBoldLetter = 7.2;  // and of a callout
constexpr double kLegendText = 180;  // at most
constexpr double kLegendLine = 22;
constexpr double kGap = 20;

constexpr const char* kFont = R"(font-family="'Segoe UI', 'Helvetica Neue', Arial, 'Liberation Sans', sans-serif" )"
                              R"(font-size="13" fill="#3c4650")";
constexpr const char* kTitleFont = R"(font-size="19" font-weight="600" fill="#1c242c")";
constexpr const char* kMuted = R"(fill="#6b7681")";
constexpr const char* kFrontColour = "#1a5fa8";
constexpr const char* kBackColour = "#b3bfca";

struct Scale {
    Range range;
    double start; // pixel of range.low
    double end;   // pixel of range.high
    bool logarithmic;

    [[nodiscard]] double position(double value) const
    {
        return logarithmic ? std::log10(std::max(value, range.low)) : value;
    }
    double operator()(double value) const
    {
        // By halves: the extent of the range may exceed every number.
        const double low = position(range.low) / 2;
        const double share = (position(value) / 2 - low) / (position(range.high) / 2 - low);
        return start + (share > 0 ? std::min(share, 1.0) : 0) * (end - start);
    }
};

struct Picture {
    const Plot& plot;
    Scale x;
    Scale y;
    Svg svg;
};

Range extentOf(const Plot& plot)
{
    Range extent{std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
    for (const Curve& curve : plot.curves)
        for (const double sample : curve.samples)
            if (std::isfinite(sample) && (sample > 0 || !plot.logarithmic))
                extent = {std::min(extent.low, sample), std::max(extent.high, sample)};
    return extent;
}

Scale xScale(const Plot& plot)
{
    std::size_t longest = 0;
    for (const Curve& curve : plot.curves)
        longest = std::max(longest, curve.samples.size());
    const double intervals = longest > 1 ? static_cast<double>(longest - 1) : 1;
    return {withExtent({plot.xStart, plot.xStart + intervals * plot.xStep}), kLeft, kRight, false};
}

Scale yScale(const Plot& plot)
{
    const Range extent = extentOf(plot);
    const Range range = plot.logarithmic ? widenToDecades(extent, kMostDecades) : widenToSteps(extent, kYIntervals);
    return {range, kBottom, kTop, plot.logarithmic};
}

// Markup of a text that fits into a width.
std::string fitted(const std::string& text, double width, double letter = kLetter)
{
    return escapeXml(shortened(text, static_cast<std::size_t>(std::max(width, 0.0) / letter)));
}

std::string withMinusSign(std::string text)
{
    if (text.starts_with('-'))
        text.replace(0, 1, "&#8722;");
    return text;
}

std::string tickMarkup(const Tick& tick)
{
    std::string mantissa = withMinusSign(tick.text);
    if (!tick.exponent)
        return mantissa;
    return mantissa + (mantissa.empty() ? "" : "&#183;") + R"(10<tspan dy="-5" font-size="10">)" +
           withMinusSign(std::to_string(*tick.exponent)) + "</tspan>";
}

void drawGrid(Picture& picture)
{
    const auto& [plot, x, y, unused] = picture;
    Svg& svg = picture.svg;
    svg.open(R"(stroke="#e6eaee" stroke-width="1")");
    for (const Tick& tick : linearTicks(x.range, kXIntervals))
        svg.line({x(tick.value), kTop}, {x(tick.value), kBottom});
    for (const Tick& tick : plot.logarithmic ? decadeTicks(y.range) : linearTicks(y.range, kYIntervals))
        svg.line({kLeft, y(tick.value)}, {kRight, y(tick.value)});
    svg.close();
}

void drawTickLabels(Picture& picture)
{
    const auto& [plot, x, y, unused] = picture;
    Svg& svg = picture.svg;
    svg.open(R"(text-anchor="middle")");
    for (const Tick& tick : linearTicks(x.range, kXIntervals))
        svg.text({x(tick.value), kBottom + 21}, tickMarkup(tick));
    svg.close();
    svg.open(R"(text-anchor="end")");
    for (const Tick& tick : plot.logarithmic ? decadeTicks(y.range) : linearTicks(y.range, kYIntervals))
        svg.text({kLeft - 9, y(tick.value) + 4.5}, tickMarkup(tick));
    svg.close();
}

void drawFrame(Picture& picture)
{
    Svg& svg = picture.svg;
    svg.open(R"(stroke="#8a95a0" stroke-width="1")");
    svg.line({kLeft, kBottom}, {kRight, kBottom});
    svg.line({kLeft, kTop}, {kLeft, kBottom});
    svg.close();
}

void drawLabels(Picture& picture)
{
    const Plot& plot = picture.plot;
    Svg& svg = picture.svg;
    svg.text({kLeft, 36}, fitted(plot.title, kRight - kLeft, kTitleLetter), kTitleFont);
    svg.text({(kLeft + kRight) / 2, kHeight - 20}, fitted(plot.xLabel, kRight - kLeft), R"(text-anchor="middle")");
    // Upright, beside the middle of the axis.
    svg.text({0, 0}, fitted(plot.yLabel, kBottom - kTop),
             R"_(text-anchor="middle" transform="translate(26 278) rotate(-90)")_");
}

const char* colour(const Plot& plot, const Curve& curve)
{
    return &curve == &plot.curves.back() ? kFrontColour : kBackColour;
}

std::string strokeAttributes(const char* strokeColour, const char* width)
{
    return std::string(R"(fill="none" stroke-linejoin="round" stroke-width=")") + width + R"(" stroke=")" +
           strokeColour + '"';
}

// From the right end to the left; the subtitle has the rest of the row.
void drawLegend(Picture& picture)
{
    const Plot& plot = picture.plot;
    double right = kRight;
    for (auto curve = plot.curves.rbegin(); curve != plot.curves.rend(); ++curve) {
        picture.svg.text({right, 60}, fitted(curve->name, kLegendText), R"(text-anchor="end")");
        right -= std::min(kLetter * static_cast<double>(curve->name.size()), kLegendText) + 8;
        picture.svg.line({right - kLegendLine, 55.5}, {right, 55.5}, strokeAttributes(colour(plot, *curve), "2.5"));
        right -= kLegendLine + kGap;
    }
    picture.svg.text({kLeft, 60}, fitted(plot.subtitle, right - kLeft), kMuted);
}

// A sample that is not finite leaves a gap.
void drawCurve(Picture& picture, const Curve& curve)
{
    const Plot& plot = picture.plot;
    std::vector<Point> points;
    const auto flush = [&] {
        if (!points.empty())
            picture.svg.polyline(std::exchange(points, {}));
    };
    for (const std::size_t i : decimate(curve.samples, static_cast<std::size_t>(kRight - kLeft)))
        if (std::isfinite(curve.samples[i]))
            points.push_back(
                {picture.x(plot.xStart + static_cast<double>(i) * plot.xStep), picture.y(curve.samples[i])});
        else
            flush();
    flush();
}

void drawCurves(Picture& picture)
{
    for (const Curve& curve : picture.plot.curves) {
        picture.svg.open(strokeAttributes(colour(picture.plot, curve), "1.1"));
        drawCurve(picture, curve);
        picture.svg.close();
    }
}

// The text stands twice: broad and white below itself, so that it can be read over a curve.
void drawCallout(Picture& picture, const Callout& callout)
{
    const Point at{picture.x(callout.x), picture.y(callout.y)};
    const bool toTheLeft = at.x > (kLeft + kRight) / 2;
    const double space = toTheLeft ? at.x - 11 - kLeft : kRight - at.x - 11;
    const Point text{at.x + (toTheLeft ? -11 : 11), std::max(at.y + 4.5, kTop + 14)};
    picture.svg.circle(at, 4, R"(fill="#ffffff" stroke="#c2410c" stroke-width="2")");
    picture.svg.open(toTheLeft ? R"(font-weight="600" text-anchor="end")" : R"(font-weight="600")");
    for (const char* const paint :
         {R"(stroke="#ffffff" stroke-width="4" stroke-linejoin="round")", R"(fill="#9a3412")"})
        picture.svg.text(text, fitted(callout.text, space, kBoldLetter), paint);
    picture.svg.close();
}

} // namespace

std::string drawPlot(const Plot& plot)
{
    Picture picture{plot, xScale(plot), yScale(plot), Svg(kWidth, kHeight, plot.title)};
    picture.svg.rectangle({0, 0}, kWidth, kHeight, R"(fill="#ffffff")");
    picture.svg.open(kFont);
    drawGrid(picture);
    drawTickLabels(picture);
    drawCurves(picture);
    drawFrame(picture);
    drawLabels(picture);
    drawLegend(picture);
    if (plot.callout)
        drawCallout(picture, *plot.callout);
    picture.svg.close();
    return std::move(picture.svg).finish();
}

} // namespace quordsp::cli
