// A line plot of curves over one axis, in one panel or several, as an SVG document.
#pragma once
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quordsp::cli {

struct Curve {
    std::string name; // for the legend; without one it has no place there
    std::span<const double> samples;
};

// A point to point out, with words beside it.
struct Callout {
    double x;
    double y;
    std::string text;
};

// A point that is marked, where there may be many.
struct Mark {
    double x;
    double y;
};

struct Panel {
    std::string yLabel;
    bool logarithmic = false;       // the y axis, in decades; what is not positive lies at its lower end
    std::vector<Curve> curves = {}; // the last one is drawn on top and stands out
    std::optional<Callout> callout = std::nullopt;
    bool compared = false; // the curves are of one kind: each has a colour of its own
    std::vector<Mark> marks = {};
};

struct Plot {
    std::string title;
    std::string subtitle;
    std::string xLabel;
    double xStart = 0; // where the first sample lies; with x, what is added to it
    double xStep = 1;
    std::span<const double> x = {}; // where the samples lie, when that is not equally spaced; as many as samples
    std::vector<Panel> panels;      // one or more, below one another, over the same x axis
};

// Texts that are longer than their place are shortened.
std::string drawPlot(const Plot& plot);

} // namespace quordsp::cli
