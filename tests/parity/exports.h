// All exports, by family, and the calls that are made of each.
#pragma once
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "parity/arguments.h"

namespace quordsp::parity {

struct Export {
    const char* name;
    // Behind the bar also:  ?  after a failure the outputs are unspecified    +  a second block follows, with the state
    std::string_view shape;
    int (*call)(Arguments& arguments);
};

// Values of a parameter, the usual one first; and values that are out of range or make others so.
struct Choice {
    std::vector<double> good;
    std::vector<double> bad;
};
using Choices = std::map<char, Choice>;

struct Family {
    Choices choices; // where not those of all families
    std::vector<Export> exports;
};

const Family& iir();
const Family& fir();
const Family& complexSignals();
const Family& transforms();
const Family& statistics();
const Family& ownRoutines();

// One call: its label tells it from the others of the export.
struct Case {
    std::string label;
    Settings settings;
};

// The usual values; each other value of each parameter alone; and some drawn by lot.
std::vector<Case> casesOf(const Export& row, const Choices& own);

struct Outcome {
    int status;
    std::vector<Output> outputs;
};

Outcome outcomeOf(const Export& row, const Settings& settings);

// The status, or whether there is a handle.
template <class Result, class... Params>
int callWith(Result (*exported)(Params...), Arguments& arguments)
{
    const std::tuple<Params...> values{arguments.next<Params>()...}; // braces: from left to right
    return static_cast<int>(std::apply(exported, values));
}

// The row of an export that gets its arguments as its shape has them.
#define ROW(name, shape) {#name, shape, [](Arguments& arguments) { return callWith(name, arguments); }}

} // namespace quordsp::parity
