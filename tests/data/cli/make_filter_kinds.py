#!/usr/bin/python3
"""Makes filter_kinds.inc by SciPy 1.10 and NumPy 1.24: local fits, equiripple coefficients, and band filters beside the
low-pass filters that they come from.

Usage: make_filter_kinds.py > filter_kinds.inc
"""
import textwrap

import numpy as np
from scipy import signal

RATE = 50.0  # Hz, of the signal
SIGNAL = np.round(np.sin(0.37 * np.arange(24)) + 0.1 * np.cos(2.9 * np.arange(24)), 6)
FITS = [  # order, side, derivative, weights
    (3, 4, 0, None),
    (3, 4, 1, None),
    (2, 3, 2, None),
    (0, 2, 0, None),
    (2, 2, 0, [1, 2, 5, 0.5, 3]),
    (3, 3, 1, [1, 2, 5, 0, 3, 1, 2]),
]
BANDS = [  # family, lower and upper cut-off as shares of the sampling rate
    ("butter", 4, (), "bandpass", 0.1, 0.12),
    ("butter", 5, (), "bandstop", 0.1, 0.3),
    ("butter", 4, (), "bandstop", 0.21, 0.25),
    ("ellip", 4, (0.5, 50), "bandpass", 0.21, 0.25),
    ("ellip", 5, (0.5, 50), "bandstop", 0.03, 0.05),
    ("cheby2", 4, (40,), "bandstop", 0.3, 0.42),
    ("cheby1", 3, (1,), "bandpass", 0.01, 0.49),
]


def fit_by_polynomials(order, side, derivative, weights):
    """Each frame on its own; the weights of polyfit are of the errors, not of their squares."""
    result = np.empty(len(SIGNAL))
    t = np.arange(-side, side + 1)
    for i in range(len(SIGNAL)):
        middle = min(max(i, side), len(SIGNAL) - 1 - side)
        c = np.polyfit(t, SIGNAL[middle - side:middle + side + 1], order, w=np.sqrt(weights))
        result[i] = np.polyval(np.polyder(c, derivative), i - middle) * RATE**derivative
    return result


def fit(order, side, derivative, weights):
    if weights is not None:
        return fit_by_polynomials(order, side, derivative, weights)
    return signal.savgol_filter(SIGNAL, 2 * side + 1, order, deriv=derivative, delta=1 / RATE, mode="interp")


def array(values):
    return "{" + ", ".join(repr(float(v)) for v in values) + "}"


def sections(sos, fourth_order):
    rows = [(row[:3], row[3:]) for row in sos]
    if fourth_order:
        pairs = [(np.convolve(p[0], q[0]), np.convolve(p[1], q[1])) for p, q in zip(rows[::2], rows[1::2])]
        rows = pairs + rows[2 * len(pairs):]
    return "{" + ", ".join("{" + array(b) + ", " + array(a) + "}" for b, a in rows) + "}"


def show(body):
    print("\n".join(textwrap.wrap(body, 118, initial_indent="    ", subsequent_indent="        ",
                                  break_on_hyphens=False, break_long_words=False)))


def main():
    print("// Made by make_filter_kinds.py.\n// clang-format off\n#pragma once\n\n#include <vector>\n")
    print('#include "transfer_function.h"\n\nnamespace quordsp::vectors\n{\n')
    print(f"inline constexpr double kFitRate = {RATE};")
    print(f"inline const std::vector<double> kFitSignal{array(SIGNAL)};\n")
    print("struct Fit {\n    int order;\n    int side;\n    int derivative;\n    std::vector<double> weights;")
    print("    std::vector<double> result;\n};\n")
    print("inline const std::vector<Fit> kFits{")
    for case in FITS:
        weights = "{}" if case[3] is None else array(case[3])
        show(f"{{{case[0]}, {case[1]}, {case[2]}, {weights}, {array(fit(*case))}}},")
    print("};\n")
    options = {"fs": 1000, "maxiter": 200, "grid_density": 512}
    multiband = signal.remez(24, [0, 100, 160, 250, 300, 500], [1, 0.5, 0], weight=[1, 3, 10], **options)
    slope = signal.remez(20, [0, 400], [1], type="differentiator", **options)
    turn = signal.remez(21, [50, 450], [1], type="hilbert", **options)
    print("// Bands of 0 to 100, 160 to 250 and 300 to 500 Hz with gains 1, 0.5, 0 and weights 1, 3, 10, at 1000 Hz.")
    print(f"inline const std::vector<double> kMultiband{array(multiband)};")
    print("// The slope 1 by the share of the sampling rate, from 0 to 0.4 of it.")
    print(f"inline const std::vector<double> kDifferentiator{array(slope)};")
    print("// From 50 to 450 Hz at 1000 Hz.")
    print(f"inline const std::vector<double> kHilbert{array(turn)};\n")
    print("struct BandFilter {\n    const char* name;\n    double lower;\n    double upper;\n    bool stops;")
    print("    std::vector<cli::Section> lowpass; // with its cut-off at a quarter of the sampling rate")
    print("    std::vector<cli::Section> band;\n    double greatestRadius; // of the band filter's poles\n};\n")
    print("inline const std::vector<BandFilter> kBandFilters{")
    for family, order, tolerances, kind, lower, upper in BANDS:
        design = getattr(signal, family)
        edges = (2 * lower, 2 * upper)
        radius = np.max(np.abs(design(order, *tolerances, edges, kind, output="zpk")[1]))
        show(f'{{"{family} {kind}", {lower}, {upper}, {"true" if kind == "bandstop" else "false"}, '
             f'{sections(design(order, *tolerances, 0.5, "lowpass", output="sos"), False)}, '
             f'{sections(design(order, *tolerances, edges, kind, output="sos"), True)}, {radius!r}}},')
    print("};\n\n} // namespace quordsp::vectors")


main()
