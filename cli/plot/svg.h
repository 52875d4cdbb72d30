// A drawing in SVG, element by element. Colours and fonts are plain attributes, so that every program that reads SVG
// shows them.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace quordsp::cli {

struct Point {
    double x;
    double y;
};

// Text for the inside of an element. Bytes that are not UTF-8 are taken as Latin-1, which old files with "degC" or "um"
// signs are in; control characters become blanks.
std::string escapeXml(std::string_view text);

// A text at most so many letters broad: a longer one has "..." in its middle, since its end tells the unit. A letter of
// the scripts with broad ones counts twice.
std::string shortened(std::string_view text, std::size_t letters);

class Svg {
public:
    Svg(double width, double height, std::string_view title);

    // A group with attributes that the elements in it share, until it is closed.
    void open(std::string_view attributes);
    void close();

    void rectangle(Point corner, double width, double height, std::string_view attributes);
    void line(Point from, Point to, std::string_view attributes = {});
    void circle(Point centre, double radius, std::string_view attributes);
    void polyline(const std::vector<Point>& points);
    // The content is markup: pass plain text through escapeXml.
    void text(Point at, std::string_view content, std::string_view attributes = {});

    // The whole document.
    std::string finish() &&;

private:
    void attribute(std::string_view name, double value);
    void end(std::string_view attributes);

    std::string document_;
};

} // namespace quordsp::cli
