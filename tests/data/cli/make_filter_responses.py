#!/usr/bin/python3
"""Makes filter_responses.inc: gain, unwrapped phase and group delay of some filters by SciPy 1.10.

Usage: make_filter_responses.py > filter_responses.inc
"""
import textwrap

import numpy as np
from scipy import signal

FREQUENCIES = np.array([0.003, 0.02, 0.048, 0.055, 0.1, 0.137, 0.2, 0.31, 0.377, 0.45, 0.492])  # of the rate
DENSE = 200001  # frequencies from 0 to half the rate, on which the phase is unwrapped


def fourth_order(sos):
    """Pairs of sections multiplied out."""
    return [(np.convolve(p[:3], q[:3]), np.convolve(p[3:], q[3:])) for p, q in zip(sos[::2], sos[1::2])]


def second_order(sos):
    return [(row[:3], row[3:]) for row in sos]


FILTERS = {
    "elliptic low-pass": second_order(signal.ellip(5, 1, 60, 0.1, "lowpass", output="sos")),
    "Chebyshev high-pass": second_order(signal.cheby1(3, 0.5, 0.3, "highpass", output="sos")),
    "Butterworth band-pass": fourth_order(signal.butter(4, (0.1, 0.5), "bandpass", output="sos")),
    "direct form": [signal.cheby2(3, 40, 0.4, "lowpass")],
}


def product(sections, w):
    h = np.ones(len(w), dtype=complex)
    for b, a in sections:
        h *= signal.freqz(b, a, worN=w)[1]
    return h


def unwrapped(sections):
    """Up to a whole turn at the lowest frequency, which the third one tells."""
    w = np.linspace(0, np.pi, DENSE)[1:-1]
    phase = np.unwrap(np.angle(product(sections, w)))
    return np.interp(2 * np.pi * FREQUENCIES, w, phase)


def group_delay(sections):
    return sum(signal.group_delay((b, a), w=2 * np.pi * FREQUENCIES)[1] for b, a in sections)


def array(values):
    return "{" + ", ".join(repr(float(v)) for v in values) + "}"


def main():
    print("// Made by make_filter_responses.py.\n// clang-format off\n#pragma once\n\n#include <vector>\n")
    print("#include \"transfer_function.h\"\n\nnamespace quordsp::vectors\n{\n")
    print("struct FilterResponse {\n    const char* name;\n    std::vector<cli::Section> sections;")
    print("    std::vector<double> decibels;\n    std::vector<double> phase; // radians\n"
          "    std::vector<double> delay; // samples\n};\n")
    print(f"inline const std::vector<double> kFrequencies{array(FREQUENCIES)};\n")
    print("inline const std::vector<FilterResponse> kResponses{")
    for name, sections in FILTERS.items():
        w = 2 * np.pi * FREQUENCIES
        text = ", ".join("{" + array(b) + ", " + array(np.array(a) / a[0]) + "}" for b, a in sections)
        values = [array(20 * np.log10(np.abs(product(sections, w)))), array(unwrapped(sections)),
                  array(group_delay(sections))]
        body = f'{{"{name}", {{{text}}}, ' + ", ".join(values) + "},"
        print("\n".join(textwrap.wrap(body, 118, initial_indent="    ", subsequent_indent="        ",
                                      break_on_hyphens=False, break_long_words=False)))
    print("};\n\n} // namespace quordsp::vectors")


main()
