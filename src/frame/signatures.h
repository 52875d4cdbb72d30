// The shapes of the backend's entries. A shape that several entries share has a name here; the others stand in the
// table.
#pragma once
#include "QuorDSP_DAQ.h"
#include "frame/size.h"
#include <type_traits>

namespace quordsp {

using Status = AnalysisLibErrType;

// One complex value as the backend's complex entries take it.
struct ComplexSample {
    double real;
    double imaginary;
};
static_assert(sizeof(ComplexSample) == 16);

// The state that a complex cascade starts from.
struct ComplexState {
    std::int32_t count;
    ComplexSample* samples;
};
static_assert(sizeof(ComplexState) == 16);

// One band of an equiripple design.
struct Band {
    double amplitude;
    double lowerFrequency;
    double upperFrequency;
    double weight;
};
static_assert(sizeof(Band) == 32);

namespace signature {

using Samples = const double*;
using Cascade = QuorDSP_IIRFilter*;

// IIR, design and filtering in one call.
using CutoffFilter = Status(Samples in, Size n, double fs, double fc, int order, double* out);
using BandFilter = Status(Samples in, Size n, double fs, double fl, double fh, int order, double* out);
using CutoffRippleFilter = Status(Samples in, Size n, double fs, double fc, double ripple, int order, double* out);
using BandRippleFilter = Status(Samples in, Size n, double fs, double fl, double fh, double ripple, int order,
                                double* out);
using CutoffEllipticFilter = Status(Samples in, Size n, double fs, double fc, double ripple, double attenuation,
                                    int order, double* out);
using BandEllipticFilter = Status(Samples in, Size n, double fs, double fl, double fh, double ripple,
                                  double attenuation, int order, double* out);

// IIR, coefficients of the direct form and of the cascade.
using DirectCoefficients = Status(int type, int order, double fs, double fl, double fh, double* a, int na, double* b,
                                  int nb);
using RippleDirectCoefficients = Status(int type, int order, double fs, double fl, double fh, double ripple, double* a,
                                        int na, double* b, int nb);
using CascadeCoefficients = Status(double fs, double fl, double fh, Cascade filter);
using RippleCascadeCoefficients = Status(double fs, double fl, double fh, double ripple, Cascade filter);

// FIR, coefficients.
using CutoffWindowDesign = Status(double fs, double fc, int taps, double* coefficients, int window);
using BandWindowDesign = Status(double fs, double fl, double fh, int taps, double* coefficients, int window);
using CutoffKaiserDesign = Status(double fs, double fc, int taps, double* coefficients, double beta);
using BandKaiserDesign = Status(double fs, double fl, double fh, int taps, double* coefficients, double beta);
using TwoEdgeDesign = Status(double fs, double f1, double f2, int taps, double* coefficients, double* ripple);
using FourEdgeDesign = Status(double fs, double f1, double f2, double f3, double f4, int taps, double* coefficients,
                              double* ripple);

// FIR, design and filtering in one call.
using TwoEdgeFilter = Status(Samples in, Size n, int taps, double fs, double f1, double f2, double* out);
using FourEdgeFilter = Status(Samples in, Size n, int taps, double fs, double f1, double f2, double f3, double f4,
                              double* out);
using CutoffWindowFilter = Status(Samples in, Size n, int taps, double fs, double fc, int window, double parameter,
                                  double* out);
using BandWindowFilter = Status(Samples in, Size n, int taps, double fs, double fl, double fh, int window,
                                double parameter, double* out);
using WindowFilter = Status(Samples in, Size n, int type, int taps, double fs, double fl, double fh, int window,
                            double parameter, double* out);
using NarrowBandFilter = Status(Samples in, Size n, QuorDSP_FIRFilter filter, double* out);

// Transforms. Two-dimensional complex arrays are interleaved pairs.
using SplitTransform = Status(double* re, double* im, Size n);
using Transform2D = Status(Samples in, Size rows, Size columns, Size resultRows, Size resultColumns, int shift,
                           double* out);
using InverseTransform2D = Status(Samples in, Size rows, Size columns, int shifted, double* out);

// The complex counterpart of a filter takes the same arguments, with packed samples for real ones. The one-call IIR
// filters filter in place, in the input, when they get no output.
template <class Input, class Argument>
using Packed = std::conditional_t<std::is_same_v<Argument, Samples>, Input,
                                  std::conditional_t<std::is_same_v<Argument, double*>, ComplexSample*, Argument>>;
template <class Input, class Filter>
struct PackedFilter;
template <class Input, class... Arguments>
struct PackedFilter<Input, Status(Arguments...)> {
    using Type = Status(Packed<Input, Arguments>...);
};
template <class Filter>
using Complex = typename PackedFilter<const ComplexSample*, Filter>::Type;
template <class Filter>
using ComplexInPlace = typename PackedFilter<ComplexSample*, Filter>::Type;

} // namespace signature
} // namespace quordsp
