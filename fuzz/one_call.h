// A filter in one call has four forms: the backend's entries and the library's exports, for real and for complex
// signals. All of them answer alike.
#pragma once
#include <functional>

#include "QuorDSP_DAQ.h"
#include "signals.h"

namespace quordsp::fuzz {

// What the filters and designs take; an equiripple filter has its edges in fl, fh, f3 and f4.
struct Parameters {
    double fs = 1, fl = 0, fh = 0, f3 = 0, f4 = 0, ripple = 0, attenuation = 0;
    int order = 0, type = 0, taps = 0, window = 0;
    double windowParameter = 0;
};

// Which of them an entry takes, in this order.
template <auto... members>
struct Fields {};

// From x to y, n samples; those of complex signals as the form has them.
using Filter = std::function<int(const double* x, std::int64_t n, double* y)>;

enum class AfterFailure : std::uint8_t { Anything, TheInput };

struct OneCallFilter {
    Filter real;
    Filter complex; // interleaved
    Filter exported;
    Filter exportedComplex; // the real parts, then the imaginary ones
    AfterFailure exportedOutput;
};

template <class Real, class Cx, class Exported, class ExportedCx, class... Arguments>
OneCallFilter oneCall(Real* real, Cx* complex, Exported* exported, ExportedCx* exportedCx, AfterFailure exportedOutput,
                      Arguments... arguments)
{
    using backend::Complex;
    return {[=](const double* x, std::int64_t n, double* y) { return static_cast<int>(real(x, n, arguments..., y)); },
            [=](const double* x, std::int64_t n, double* y) {
                auto* const in = reinterpret_cast<Complex*>(const_cast<double*>(x));
                return static_cast<int>(complex(in, n, arguments..., reinterpret_cast<Complex*>(y)));
            },
            [=](const double* x, std::int64_t n, double* y) {
                return static_cast<int>(exported(x, static_cast<int>(n), arguments..., y));
            },
            [=](const double* x, std::int64_t n, double* y) {
                return static_cast<int>(exportedCx(x, x + n, static_cast<int>(n), arguments..., y, y + n));
            },
            exportedOutput};
}

// A row of a table: the filter that the parameters give.
using OneCallRow = std::function<OneCallFilter(const Parameters&)>;

template <class Real, class Cx, class Exported, class ExportedCx, auto... members>
OneCallRow row(Real* real, Cx* complex, Exported* exported, ExportedCx* exportedCx, Fields<members...> /*taken*/,
               AfterFailure exportedOutput = AfterFailure::Anything)
{
    return [=](const Parameters& with) {
        return oneCall(real, complex, exported, exportedCx, exportedOutput, with.*members...);
    };
}

struct Outcome {
    int status;
    Signal y;
};

// What all forms of the filter make of the signal. The same in place as elsewhere, nothing written on failure, missing
// samples and arrays refused; finite samples of moderate size stay finite.
Outcome requireOneOutcome(const OneCallFilter& filter, const Signal& x);

} // namespace quordsp::fuzz
