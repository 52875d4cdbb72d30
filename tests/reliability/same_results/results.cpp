#include "reliability/same_results/results.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <fstream>
#include <limits>
#include <map>
#include <sstream>

namespace quordsp::same_results {
namespace {

std::uint64_t bitsOf(double value)
{
    return std::bit_cast<std::uint64_t>(std::isnan(value) ? std::numeric_limits<double>::quiet_NaN() : value);
}

// FNV-1a over the bytes, lowest first.
std::uint64_t hashOf(const std::vector<double>& values)
{
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const double value : values)
        for (int shift = 0; shift < 64; shift += 8)
            hash = (hash ^ (bitsOf(value) >> shift & 0xff)) * 0x100000001b3;
    return hash;
}

std::string hex(std::uint64_t bits)
{
    char text[16];
    return std::string(text, std::to_chars(text, text + sizeof text, bits, 16).ptr);
}

// Places on a line on which neighbouring doubles are neighbouring integers.
std::int64_t placeOf(double value)
{
    const auto bits = std::bit_cast<std::int64_t>(value);
    return bits < 0 ? std::numeric_limits<std::int64_t>::min() - bits : bits;
}

bool near(double a, double b, std::uint64_t tolerance)
{
    if (std::isnan(a) || std::isnan(b) || std::isinf(a) || std::isinf(b))
        return bitsOf(a) == bitsOf(b);
    const auto difference = static_cast<std::uint64_t>(placeOf(a)) - static_cast<std::uint64_t>(placeOf(b));
    return difference <= tolerance || -difference <= tolerance;
}

std::vector<double> valuesIn(const std::string& text)
{
    std::vector<double> values;
    std::istringstream words{text};
    for (std::string word; words >> word;) {
        std::uint64_t bits = 0;
        std::from_chars(word.data(), word.data() + word.size(), bits, 16);
        values.push_back(std::bit_cast<double>(bits));
    }
    return values;
}

std::string firstOf(const Result& result)
{
    std::ostringstream text;
    text.precision(17);
    for (std::size_t i = 0; i < result.values.size() && i < 8; ++i)
        text << ' ' << result.values[i];
    return text.str();
}

// Empty, or where the values differ by more than the tolerance.
std::string difference(const Result& result, const std::string& stored)
{
    if (result.tolerance == 0)
        return lineOf(result) == stored ? ""
                                        : stored + "\n here " + lineOf(result) + ", first values" + firstOf(result);
    const std::size_t start = result.name.size() + 1;
    const std::vector<double> values = valuesIn(stored.size() > start ? stored.substr(start) : "");
    if (values.size() != result.values.size())
        return result.name + ": " + std::to_string(values.size()) + " values are stored";
    for (std::size_t i = 0; i < values.size(); ++i)
        if (!near(values[i], result.values[i], result.tolerance))
            return result.name + ": value " + std::to_string(i) + " stored as " + hex(bitsOf(values[i])) + ", here " +
                   hex(bitsOf(result.values[i]));
    return "";
}

// Every line by its name; a name ends with a colon.
std::map<std::string, std::string> storedLines()
{
    std::map<std::string, std::string> lines;
    std::ifstream file{QUORDSP_TEST_DATA "/numeric/same_results.txt"};
    for (std::string line; std::getline(file, line);)
        if (!line.starts_with('#'))
            lines[line.substr(0, line.find(':'))] = line;
    return lines;
}

} // namespace

std::string lineOf(const Result& result)
{
    std::string line = result.name + ':';
    if (result.tolerance == 0)
        return line + ' ' + hex(hashOf(result.values));
    for (const double value : result.values)
        line += ' ' + hex(bitsOf(value));
    return line;
}

std::string disagreements(const Results& results)
{
    static const auto stored = storedLines();
    std::string text;
    for (const Result& result : results) {
        const auto found = stored.find(result.name);
        const std::string differing =
            found == stored.end() ? result.name + ": nothing is stored" : difference(result, found->second);
        text += differing.empty() ? "" : differing + '\n';
    }
    return text;
}

} // namespace quordsp::same_results
