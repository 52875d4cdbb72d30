#include "parity/results.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>

#include "support/integer_signal.h"

namespace quordsp::parity {
namespace {

// How far two systems may be apart. exp, log, sin and the like differ by a unit in the last place from one run-time to
// another; the designs take them in long double, so that no result needs more than this.
constexpr double kTolerance = 1e-13;

// One number of a digest, and what its differences are relative to.
struct Number {
    double value;
    double size;
};

// A single value is its own digest.
std::vector<Number> numbersOf(const std::vector<double>& values)
{
    if (values.size() == 1)
        return {{values[0], std::abs(values[0])}};
    Number largest{}, first{}, second{};
    const std::vector<double> weights[] = {noise(values.size(), 101), noise(values.size(), 102)};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double size = std::abs(values[i]);
        largest.value = largest.size = std::max(largest.size, size);
        first.value += weights[0][i] * values[i];
        first.size += std::abs(weights[0][i]) * size;
        second.value += weights[1][i] * values[i];
        second.size += std::abs(weights[1][i]) * size;
    }
    return {largest, first, second};
}

struct Digest {
    std::size_t count;
    std::size_t notFinite;
    std::vector<Number> numbers;
};

// Values that are not finite are left out of the numbers.
Digest digestOf(const std::vector<double>& values)
{
    std::vector<double> finite = values;
    const auto notFinite = std::erase_if(finite, [](double value) { return !std::isfinite(value); });
    return {values.size(), notFinite, finite.empty() ? std::vector<Number>{} : numbersOf(finite)};
}

std::string textOf(const Outcome& outcome)
{
    std::ostringstream text;
    text.precision(17);
    text << outcome.status;
    for (const Output& output : outcome.outputs) {
        const Digest digest = digestOf(output.values);
        text << ' ' << output.letter << ' ' << digest.count << ' ' << digest.notFinite;
        for (const Number& number : digest.numbers)
            text << ' ' << number.value;
    }
    return text.str();
}

bool agree(const Output& here, std::istream& stored)
{
    char letter = 0;
    std::size_t count = 0, notFinite = 0;
    const Digest digest = digestOf(here.values);
    if (!(stored >> letter >> count >> notFinite) || letter != here.letter || count != digest.count ||
        notFinite != digest.notFinite)
        return false;
    return std::ranges::all_of(digest.numbers, [&](const Number& number) {
        double value = 0;
        return stored >> value && std::abs(value - number.value) <= kTolerance * number.size;
    });
}

bool agree(const Outcome& here, const std::string& stored)
{
    std::istringstream text{stored};
    int status = 0;
    if (!(text >> status) || status != here.status)
        return false;
    for (const Output& output : here.outputs)
        if (!agree(output, text))
            return false;
    std::string more;
    return !(text >> more);
}

std::string textOf(const Settings& settings)
{
    std::ostringstream text;
    for (const auto& [letter, value] : settings)
        text << ' ' << letter << '=' << value;
    return text.str();
}

// By the name of the export, a blank and the label of the call. The line of a name is followed by those of its calls.
const std::map<std::string, std::string>& storedResults()
{
    static const auto results = [] {
        std::map<std::string, std::string> found;
        std::ifstream file{QUORDSP_TEST_DATA "/parity/results.txt"};
        std::string name;
        for (std::string line; std::getline(file, line);) {
            const std::size_t blank = line.find(' ');
            if (blank == line.npos)
                name = line;
            else if (!line.starts_with('#'))
                found[name + ' ' + line.substr(0, blank)] = line.substr(blank + 1);
        }
        return found;
    }();
    return results;
}

bool lacksTheBackend(int status)
{
    return status == QUORDSP_BACKEND_NOT_FOUND || status == QUORDSP_ENTRY_NOT_FOUND;
}

} // namespace

std::string disagreements(const Family& family)
{
    std::string text;
    for (const Export& row : family.exports)
        for (const Case& one : casesOf(row, family.choices)) {
            const Outcome outcome = outcomeOf(row, one.settings);
            const std::string call = row.name + (' ' + one.label);
            const auto stored = storedResults().find(call);
            const std::string expected = stored == storedResults().end() ? "nothing" : stored->second;
            if (lacksTheBackend(outcome.status) || !agree(outcome, expected))
                text.append(call)
                    .append(textOf(one.settings))
                    .append("\n  stored ")
                    .append(expected)
                    .append("\n  here   ")
                    .append(textOf(outcome))
                    .append("\n");
        }
    return text;
}

int writeResults(const Family& family, std::ostream& file)
{
    int calls = 0;
    for (const Export& row : family.exports) {
        file << row.name << '\n';
        for (const Case& one : casesOf(row, family.choices)) {
            file << one.label << ' ' << textOf(outcomeOf(row, one.settings)) << '\n';
            ++calls;
        }
    }
    return calls;
}

} // namespace quordsp::parity
