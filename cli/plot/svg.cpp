#include "plot/svg.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace quordsp::cli {
namespace {

// A tenth of a pixel is finer than what is seen; trailing ".0" is left away.
void appendCoordinate(std::string& text, double value)
{
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, 1);
    std::string_view digits{buffer, static_cast<std::size_t>(result.ptr - buffer)};
    if (digits.ends_with(".0"))
        digits.remove_suffix(2);
    text += digits;
}

unsigned byteAt(std::string_view text, std::size_t i)
{
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0;
}

// The length of a well-formed multi-byte UTF-8 character at the front; 0 when there is none.
std::size_t utf8Length(std::string_view text)
{
    const unsigned lead = byteAt(text, 0);
    const std::size_t length = 2 + (lead >= 0xE0 ? 1 : 0) + (lead >= 0xF0 ? 1 : 0);
    unsigned code = lead & (0x7Fu >> length);
    if (lead < 0xC2 || lead > 0xF4)
        return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((byteAt(text, i) & 0xC0) != 0x80)
            return 0;
        code = code << 6 | (byteAt(text, i) & 0x3F);
    }
    const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    const bool noCharacter = (code >= 0xD800 && code < 0xE000) || code > 0x10FFFF || (code & 0xFFFE) == 0xFFFE;
    return overlong || noCharacter ? 0 : length;
}

// Of the character at the front: a byte that is not UTF-8 counts as one.
std::size_t characterLength(std::string_view text)
{
    return std::max<std::size_t>(byteAt(text, 0) < 0x80 ? 1 : utf8Length(text), 1);
}

// In letters.
std::size_t breadth(std::string_view text)
{
    std::size_t letters = 0;
    for (std::size_t length = 0; !text.empty(); text.remove_prefix(length)) {
        length = characterLength(text);
        letters += length > 2 ? 2 : 1;
    }
    return letters;
}

// The front of a text that is at most so many letters broad.
std::string_view front(std::string_view text, std::size_t letters)
{
    std::size_t end = 0;
    while (end < text.size()) {
        const std::string_view next = text.substr(end, characterLength(text.substr(end)));
        if (breadth(next) > letters)
            break;
        letters -= breadth(next);
        end += next.size();
    }
    return text.substr(0, end);
}

std::string escapedAscii(char c)
{
    switch (c) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    default:
        return {static_cast<unsigned char>(c) < 0x20 ? ' ' : c};
    }
}

} // namespace

std::string escapeXml(std::string_view text)
{
    std::string escaped;
    while (!text.empty()) {
        const unsigned lead = byteAt(text, 0);
        const std::size_t length = lead < 0x80 ? 1 : utf8Length(text);
        if (lead < 0x80)
            escaped += escapedAscii(text[0]);
        else if (length == 0)
            escaped += "&#" + std::to_string(lead) + ";";
        else
            escaped += text.substr(0, length);
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return escaped;
}

std::string shortened(std::string_view text, std::size_t letters)
{
    const std::size_t all = breadth(text);
    if (all <= letters)
        return std::string(text);
    const std::size_t kept = letters > 3 ? letters - 3 : 0;
    const std::size_t atTheEnd = kept / 2;
    std::string_view end = text.substr(front(text, all - atTheEnd).size());
    if (breadth(end) > atTheEnd)
        end.remove_prefix(characterLength(end));
    return std::string(front(text, kept - atTheEnd)) + "..." + std::string(end);
}

Svg::Svg(double width, double height, std::string_view title)
{
    document_ = "<svg xmlns=\"http://www.w3.org/2000/svg\"";
    attribute("width", width);
    attribute("height", height);
    document_ += " viewBox=\"0 0 ";
    appendCoordinate(document_, width);
    document_ += ' ';
    appendCoordinate(document_, height);
    document_ += "\" role=\"img\">\n<title>" + escapeXml(title) + "</title>\n";
}

void Svg::open(std::string_view attributes)
{
    document_ += "<g ";
    document_ += attributes;
    document_ += ">\n";
}

void Svg::close()
{
    document_ += "</g>\n";
}

void Svg::rectangle(Point corner, double width, double height, std::string_view attributes)
{
    document_ += "<rect";
    attribute("x", corner.x);
    attribute("y", corner.y);
    attribute("width", width);
    attribute("height", height);
    end(attributes);
}

void Svg::line(Point from, Point to, std::string_view attributes)
{
    document_ += "<line";
    attribute("x1", from.x);
    attribute("y1", from.y);
    attribute("x2", to.x);
    attribute("y2", to.y);
    end(attributes);
}

void Svg::circle(Point centre, double radius, std::string_view attributes)
{
    document_ += "<circle";
    attribute("cx", centre.x);
    attribute("cy", centre.y);
    attribute("r", radius);
    end(attributes);
}

void Svg::polyline(const std::vector<Point>& points)
{
    document_ += "<polyline points=\"";
    for (const Point& point : points) {
        appendCoordinate(document_, point.x);
        document_ += ',';
        appendCoordinate(document_, point.y);
        document_ += ' ';
    }
    document_ += "\"/>\n";
}

void Svg::text(Point at, std::string_view content, std::string_view attributes)
{
    document_ += "<text";
    attribute("x", at.x);
    attribute("y", at.y);
    document_ += ' ';
    document_ += attributes;
    document_ += '>';
    document_ += content;
    document_ += "</text>\n";
}

std::string Svg::finish() &&
{
    return std::move(document_) + "</svg>\n";
}

void Svg::attribute(std::string_view name, double value)
{
    document_ += ' ';
    document_ += name;
    document_ += "=\"";
    appendCoordinate(document_, value);
    document_ += '"';
}

void Svg::end(std::string_view attributes)
{
    document_ += ' ';
    document_ += attributes;
    document_ += "/>\n";
}

} // namespace quordsp::cli
