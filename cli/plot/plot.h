// A line plot of equally spaced curves over one axis, as an SVG document.
#pragma once
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quordsp::cli {

struct Curve {
    std::string name; // for the legend
    std::span<const double> samples;
};

// A point to point out, with words beside it.
struct Callout {
    double x;
    double y;
    std::string text;
};

struct Plot {
    std::string title;
    std::string subtitle;
    std::string xLabel;
    std::string yLabel;
    double xStart = 0;
    double xStep = 1;
    bool logarithmic = false;  // the y axis, in decades; what is not positive lies at its lower end
    std::vector<Curve> curves; // the last one is drawn on top and stands out
    std::optional<Callout> callout = std::nullopt;
};

// Texts that are longer than their place are shortened.
std::string drawPlot(const Plot& plot);

} // namespace quordsp::cli
