#include "plot/plot.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <utility>

#include "number.h"
#include "plot/decimate.h"
#include "plot/svg.h"
#include "plot/ticks.h"

namespace quordsp::cli {
namespace {

constexpr double kWidth = 960;
constexpr double kLeft = 88;
constexpr double kRight = kWidth - 32;
constexpr double kTop = 84;     // above the first panel
constexpr double kBelow = 68;   // below the last one
constexpr double kBetween = 38; // two of them
constexpr double kPanelHeight = 388;
constexpr double kStackedHeight = 190;  // of a panel that is not alone
constexpr double kIntervalHeight = 45;  // of the y axis, at least
constexpr double kLegendAbove = 24;     // the first panel
constexpr double kNextLegendAbove = 10; // another one
constexpr int kXIntervals = 10;
constexpr int kMostDecades = 8;
constexpr double kLetter = 6.6;      // mean width of a letter of the labels
constexpr double kTitleLetter = 9.9; // and of the title
constexpr double kBoldLetter = 7.2;  // and of a callout
constexpr double kLegendText = 220;  // at most
constexpr double kLegendLine = 22;
constexpr double kGap = 20;
constexpr double kDotRadius = 1.5;
constexpr double kMarkRadius = 3;

constexpr const char* kFont = R"(font-family="'Segoe UI', 'Helvetica Neue', Arial, 'Liberation Sans', sans-serif" )"
                              R"(font-size="13" fill="#3c4650")";
constexpr const char* kTitleFont = R"(font-size="19" font-weight="600" fill="#1c242c")";
constexpr const char* kMuted = R"(fill="#6b7681")";
constexpr const char* kFrontColour = "#1a5fa8";
constexpr const char* kBackColour = "#b3bfca";
// Of curves that are compared, from the last one on: of about the same lightness, apart also for the colour-blind.
constexpr const char* kComparedColours[] = {kFrontColour, "#d1650f", "#14866d", "#a33a8c",
                                            "#8a6d00",    "#c22f3d", "#5b6cc9", "#5f6b76"};

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

struct Area {
    const Panel& panel;
    double top;
    double bottom;
    Scale y;
};

struct Picture {
    const Plot& plot;
    double height;
    Scale x;
    std::vector<Area> areas;
    Svg svg;
};

Range extentOf(std::span<const double> samples, bool positiveOnly, Range extent)
{
    for (const double sample : samples)
        if (std::isfinite(sample) && (sample > 0 || !positiveOnly))
            extent = {std::min(extent.low, sample), std::max(extent.high, sample)};
    return extent;
}

constexpr Range kNoExtent{std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};

Range extentOf(const Panel& panel)
{
    Range extent = kNoExtent;
    for (const Curve& curve : panel.curves)
        extent = extentOf(curve.samples, panel.logarithmic, extent);
    for (const Mark& mark : panel.marks)
        extent = extentOf({&mark.y, 1}, panel.logarithmic, extent);
    return extent;
}

double placeOf(const Plot& plot, std::size_t sample)
{
    return plot.xStart + (plot.x.empty() ? static_cast<double>(sample) * plot.xStep : plot.x[sample]);
}

Range xRange(const Plot& plot)
{
    if (!plot.x.empty()) {
        const Range extent = extentOf(plot.x, false, kNoExtent);
        return {plot.xStart + extent.low, plot.xStart + extent.high};
    }
    std::size_t longest = 0;
    for (const Panel& panel : plot.panels)
        for (const Curve& curve : panel.curves)
            longest = std::max(longest, curve.samples.size());
    return {plot.xStart, placeOf(plot, longest > 1 ? longest - 1 : 1)};
}

int yIntervals(double height)
{
    return static_cast<int>(height / kIntervalHeight);
}

Area areaOf(const Panel& panel, double top, double height)
{
    const Range extent = extentOf(panel);
    const Range range =
        panel.logarithmic ? widenToDecades(extent, kMostDecades) : widenToSteps(extent, yIntervals(height));
    return {panel, top, top + height, {range, top + height, top, panel.logarithmic}};
}

Picture layOut(const Plot& plot)
{
    const double height = plot.panels.size() > 1 ? kStackedHeight : kPanelHeight;
    std::vector<Area> areas;
    double top = kTop;
    for (const Panel& panel : plot.panels) {
        areas.push_back(areaOf(panel, top, height));
        top += height + kBetween;
    }
    const double whole = top - kBetween + kBelow;
    return {plot, whole, {withExtent(xRange(plot)), kLeft, kRight, false}, areas, Svg(kWidth, whole, plot.title)};
}

std::vector<Tick> yTicks(const Area& area)
{
    return area.panel.logarithmic ? decadeTicks(area.y.range)
                                  : linearTicks(area.y.range, yIntervals(area.bottom - area.top));
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

void drawGrid(Picture& picture, const Area& area)
{
    Svg& svg = picture.svg;
    svg.open(R"(stroke="#e6eaee" stroke-width="1")");
    for (const Tick& tick : linearTicks(picture.x.range, kXIntervals))
        svg.line({picture.x(tick.value), area.top}, {picture.x(tick.value), area.bottom});
    for (const Tick& tick : yTicks(area))
        svg.line({kLeft, area.y(tick.value)}, {kRight, area.y(tick.value)});
    svg.close();
}

void drawXTickLabels(Picture& picture)
{
    picture.svg.open(R"(text-anchor="middle")");
    for (const Tick& tick : linearTicks(picture.x.range, kXIntervals))
        picture.svg.text({picture.x(tick.value), picture.areas.back().bottom + 21}, tickMarkup(tick));
    picture.svg.close();
}

void drawYTickLabels(Picture& picture, const Area& area)
{
    picture.svg.open(R"(text-anchor="end")");
    for (const Tick& tick : yTicks(area))
        picture.svg.text({kLeft - 9, area.y(tick.value) + 4.5}, tickMarkup(tick));
    picture.svg.close();
}

void drawFrame(Picture& picture, const Area& area)
{
    picture.svg.open(R"(stroke="#8a95a0" stroke-width="1")");
    picture.svg.line({kLeft, area.bottom}, {kRight, area.bottom});
    picture.svg.line({kLeft, area.top}, {kLeft, area.bottom});
    picture.svg.close();
}

void drawLabels(Picture& picture)
{
    const Plot& plot = picture.plot;
    picture.svg.text({kLeft, 36}, fitted(plot.title, kRight - kLeft, kTitleLetter), kTitleFont);
    picture.svg.text({(kLeft + kRight) / 2, picture.height - 20}, fitted(plot.xLabel, kRight - kLeft),
                     R"(text-anchor="middle")");
}

// Upright, beside the middle of the axis.
void drawYLabel(Picture& picture, const Area& area)
{
    const std::string place = rounded((area.top + area.bottom) / 2);
    picture.svg.text({0, 0}, fitted(area.panel.yLabel, area.bottom - area.top),
                     R"(text-anchor="middle" transform="translate(26 )" + place + R"_() rotate(-90)")_");
}

const char* colour(const Panel& panel, const Curve& curve)
{
    const auto fromLast = static_cast<std::size_t>(&panel.curves.back() - &curve);
    if (panel.compared)
        return kComparedColours[fromLast % std::size(kComparedColours)];
    return fromLast == 0 ? kFrontColour : kBackColour;
}

std::string strokeAttributes(const char* strokeColour, const char* width)
{
    return std::string(R"(fill="none" stroke-linejoin="round" stroke-width=")") + width + R"(" stroke=")" +
           strokeColour + '"';
}

// From the right end to the left; returns where it begins.
double drawLegend(Picture& picture, const Area& area)
{
    const Panel& panel = area.panel;
    const double y = area.top - (area.top == kTop ? kLegendAbove : kNextLegendAbove);
    double right = kRight;
    for (auto curve = panel.curves.rbegin(); curve != panel.curves.rend(); ++curve) {
        if (curve->name.empty())
            continue;
        picture.svg.text({right, y}, fitted(curve->name, kLegendText), R"(text-anchor="end")");
        right -= std::min(kLetter * static_cast<double>(curve->name.size()), kLegendText) + 8;
        picture.svg.line({right - kLegendLine, y - 4.5}, {right, y - 4.5},
                         strokeAttributes(colour(panel, *curve), "2.5"));
        right -= kLegendLine + kGap;
    }
    return right;
}

// The subtitle has the rest of the first legend's row.
void drawSubtitle(Picture& picture, double right)
{
    picture.svg.text({kLeft, kTop - kLegendAbove}, fitted(picture.plot.subtitle, right - kLeft), kMuted);
}

// A line through a single point would not be seen.
void drawPoints(Svg& svg, const std::vector<Point>& points, const char* dotColour)
{
    if (points.size() > 1)
        svg.polyline(points);
    else if (!points.empty())
        svg.circle(points[0], kDotRadius, std::string("fill=\"") + dotColour + '"');
}

// A sample that is not finite leaves a gap.
void drawCurve(Picture& picture, const Area& area, const Curve& curve)
{
    std::vector<Point> points;
    const auto flush = [&] { drawPoints(picture.svg, std::exchange(points, {}), colour(area.panel, curve)); };
    for (const std::size_t i : decimate(curve.samples, static_cast<std::size_t>(kRight - kLeft)))
        if (std::isfinite(curve.samples[i]))
            points.push_back({picture.x(placeOf(picture.plot, i)), area.y(curve.samples[i])});
        else
            flush();
    flush();
}

void drawCurves(Picture& picture, const Area& area)
{
    for (const Curve& curve : area.panel.curves) {
        picture.svg.open(strokeAttributes(colour(area.panel, curve), "1.1"));
        drawCurve(picture, area, curve);
        picture.svg.close();
    }
}

// The text stands twice: broad and white below itself, so that it can be read over a curve.
void drawCallout(Picture& picture, const Area& area, const Callout& callout)
{
    const Point at{picture.x(callout.x), area.y(callout.y)};
    const bool toTheLeft = at.x > (kLeft + kRight) / 2;
    const double space = toTheLeft ? at.x - 11 - kLeft : kRight - at.x - 11;
    const Point text{at.x + (toTheLeft ? -11 : 11), std::max(at.y + 4.5, area.top + 14)};
    picture.svg.circle(at, 4, R"(fill="#ffffff" stroke="#c2410c" stroke-width="2")");
    picture.svg.open(toTheLeft ? R"(font-weight="600" text-anchor="end")" : R"(font-weight="600")");
    for (const char* const paint :
         {R"(stroke="#ffffff" stroke-width="4" stroke-linejoin="round")", R"(fill="#9a3412")"})
        picture.svg.text(text, fitted(callout.text, space, kBoldLetter), paint);
    picture.svg.close();
}

// Of marks that lie on one another the first stands for all.
void drawMarks(Picture& picture, const Area& area)
{
    std::set<std::pair<int, int>> taken;
    picture.svg.open(R"(fill="#ffffff" stroke="#c2410c" stroke-width="1.5")");
    for (const Mark& mark : area.panel.marks) {
        const Point at{picture.x(mark.x), area.y(mark.y)};
        if (taken.emplace(static_cast<int>(at.x), static_cast<int>(at.y)).second)
            picture.svg.circle(at, kMarkRadius, "");
    }
    picture.svg.close();
}

void drawPanel(Picture& picture, const Area& area)
{
    drawGrid(picture, area);
    drawYTickLabels(picture, area);
    drawCurves(picture, area);
    if (!area.panel.marks.empty())
        drawMarks(picture, area);
    drawFrame(picture, area);
    drawYLabel(picture, area);
    if (area.panel.callout)
        drawCallout(picture, area, *area.panel.callout);
}

} // namespace

std::string drawPlot(const Plot& plot)
{
    Picture picture = layOut(plot);
    picture.svg.rectangle({0, 0}, kWidth, picture.height, R"(fill="#ffffff")");
    picture.svg.open(kFont);
    double right = kRight;
    for (const Area& area : picture.areas) {
        drawPanel(picture, area);
        const double left = drawLegend(picture, area);
        right = area.top == kTop ? left : right;
    }
    drawXTickLabels(picture);
    drawLabels(picture);
    drawSubtitle(picture, right);
    picture.svg.close();
    return std::move(picture.svg).finish();
}

} // namespace quordsp::cli
