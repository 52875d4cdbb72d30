#include "parity/results.h"

#include <fstream>
#include <sstream>

#include "parity/fingerprint.h"

namespace quordsp::parity {
namespace {

std::string textOf(const Outcome& outcome)
{
    std::ostringstream text;
    text << outcome.status;
    for (const Output& output : outcome.outputs)
        text << ' ' << output.letter << ' ' << fingerprintOf(output.values);
    return text.str();
}

// Empty if there is none.
std::string difference(const Outcome& here, const std::string& stored)
{
    std::istringstream text{stored};
    int status = 0;
    if (!(text >> status) || status != here.status)
        return "status " + std::to_string(here.status) + ", stored: " + stored;
    for (const Output& output : here.outputs) {
        char letter = 0;
        Fingerprint fingerprint{};
        if (!(text >> letter >> fingerprint) || letter != output.letter)
            return std::string("output ") + output.letter + " is not stored";
        if (const std::string found = difference(output.values, fingerprint); !found.empty())
            return std::string("output ") + output.letter + ", " + found;
    }
    std::string more;
    return text >> more ? "output " + more + " is missing" : "";
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
            const std::string found = stored == storedResults().end()   ? "not stored"
                                      : lacksTheBackend(outcome.status) ? "no backend"
                                                                        : difference(outcome, stored->second);
            if (!found.empty())
                text.append(call).append(textOf(one.settings)).append(": ").append(found).append("\n");
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
