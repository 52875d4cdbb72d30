// The exports for complex signals as the interface lays them down, written from it by hand; and calls of them.
#pragma once
#include <functional>
#include <span>
#include <string>

#include "QuorDSP_DAQ.h"
#include "support/module.h"

namespace quordsp::complex_exports {

struct Split {
    double* re;
    double* im;
};

// One call: its arrays have n elements each.
struct Call {
    int n;
    int otherSize; // m of the transforms
    int count;     // of state values or coefficients; a second count is one more
    Split in;
    Split pastOutputs;
    Split state;
    Split out;
};

// The next argument of each type, from left to right.
class CallArguments;

using ExportedCall = std::string(support::Module::Symbol exported, CallArguments arguments);

// What goes in, in order, and how it reaches the entry:
//   x a split signal, packed; n, m counts, as 64-bit sizes;
//   p a pointer, d a double, i an int, r the record of 40 bytes, all as they are;
//   A split past outputs, as zeros; S split state, packed, and zeros; c the count of coefficients that belongs to them;
//   R a count and split state, as a record;
//   y a split result, as a block to be filled; Y as no block, the signal's own being used.
struct Export {
    const char* name;
    const char* entry;
    std::string shape;
    ExportedCall* call;

    bool has(char kind) const { return shape.find(kind) != std::string::npos; }
    bool hasOutput() const { return has('y') || has('Y'); }
};

std::span<const Export> exports();

// The decorated name of QuorDSP_Parks_McClellanCoef.
#if defined(_WIN32)
inline constexpr const char* kParksMcClellan =
    "?QuorDSP_Parks_McClellanCoef@@YA?AW4AnalysisLibErrType@@HNQEAN000HH0PEAN@Z";
#else
inline constexpr const char* kParksMcClellan = "_Z27QuorDSP_Parks_McClellanCoefidPdS_S_S_iiS_S_";
#endif

// Calls the export, and gives the text of what it returns. A call made ready takes no memory itself.
std::string call(const Export& row, const Call& arguments);
std::function<std::string()> readyCall(const Export& row, support::Module::Symbol exported, const Call& arguments);

// The note that a call ought to lead to.
std::string noteOf(const Export& row, const Call& arguments);

} // namespace quordsp::complex_exports
