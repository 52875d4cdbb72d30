#!/usr/bin/python3
"""Makes iir_vectors.inc: Butterworth filters and filtered signals by SciPy 1.10, poles by mpmath with 50 digits.

Usage: make_iir_vectors.py > iir_vectors.inc
"""
import textwrap

import mpmath as mp
import numpy as np
from scipy import signal

TYPES = ("lowpass", "highpass", "bandpass", "bandstop")
mp.mp.dps = 50


def cutoffs(kind, fl, fh):
    return fl if kind < 2 else (fl, fh)


def array(values):
    return "{" + ", ".join(repr(float(v)) for v in values) + "}"


def test_signal(n):
    """A step, a slow and a fast tone."""
    i = np.arange(n)
    return np.round((1.0 + np.sin(0.21 * i) + 0.5 * np.cos(2.4 * i)) * 1024) / 1024


def poles(kind, order, f):
    """One pole of each pair (and the real one) of a low-pass or high-pass filter with cut-off f * fs."""
    w = mp.tan(mp.pi * mp.mpf(f))
    for k in range(1, order + 1, 2):
        angle = mp.pi * k / (2 * order)
        p = mp.mpc(-mp.sin(angle), mp.cos(angle) if k < order else 0)
        s = p * w if kind == 0 else w / p
        z = (1 + s) / (1 - s)
        yield z.real, abs(z.imag)


def write(out):
    x = test_signal(96)
    out.append("// Made by make_iir_vectors.py.\n// clang-format off\n#pragma once\n\n#include <vector>\n")
    out.append("namespace quordsp::vectors\n{\n")
    out.append("inline const std::vector<double> kSignal" + array(x) + ";\n")

    out.append("struct Filtered {\n    int type, order;\n    double fl, fh; // fs is 1\n"
               "    std::vector<double> y;\n};\n")
    out.append("// scipy.signal.sosfilt(butter(..., output='sos'), kSignal)\ninline const Filtered kFiltered[] = {")
    for kind, order, fl, fh in ((0, 1, 0.1, 0), (0, 5, 0.02, 0), (0, 8, 0.3, 0), (1, 2, 0.05, 0), (1, 7, 0.25, 0),
                                (2, 1, 0.1, 0.2), (2, 4, 0.05, 0.35), (2, 5, 0.21, 0.22), (3, 2, 0.1, 0.3),
                                (3, 3, 0.02, 0.45), (3, 6, 0.3, 0.4)):
        sos = signal.butter(order, cutoffs(kind, fl, fh), TYPES[kind], fs=1, output="sos")
        out.append(f"    {{{kind}, {order}, {fl}, {fh}, {array(signal.sosfilt(sos, x))}}},")
    out.append("};\n")

    out.append("struct Direct {\n    int type, order;\n    double fl, fh;\n    std::vector<double> b, a;\n};\n")
    out.append("// scipy.signal.butter(..., output='ba')\ninline const Direct kDirect[] = {")
    for kind, order, fl, fh in ((0, 1, 0.2, 0), (0, 6, 0.15, 0), (1, 5, 0.4, 0), (2, 2, 0.1, 0.3), (2, 3, 0.2, 0.25),
                                (3, 1, 0.05, 0.1), (3, 4, 0.15, 0.4)):
        b, a = signal.butter(order, cutoffs(kind, fl, fh), TYPES[kind], fs=1)
        out.append(f"    {{{kind}, {order}, {fl}, {fh}, {array(b)}, {array(a)}}},")
    out.append("};\n")

    out.append("struct Continued {\n    std::vector<double> a, b, ya, xb, y;\n};\n")
    out.append("// scipy.signal.lfilter from the state lfiltic gives it; ya and xb are newest last, y follows kSignal\n"
               "inline const Continued kContinued[] = {")
    for a, b, ya, xb in (([2, -1, 0.5], [1, 0.5], [0.25, -1], [3]), ([0.5, 0.25], [1, 2, 3, 4], [2], [1, -1, 0.5]),
                         ([4], [1, 1, 1], [], [1, 2]), ([-1, 0.5, 0.25, 0.125], [2], [1, 2, 3], [])):
        unit_b, unit_a = np.divide(b, a[0]), np.divide(a, a[0])  # lfiltic of this version expects a[0] = 1
        zi = signal.lfiltic(unit_b, unit_a, ya[::-1], xb[::-1])
        y, _ = signal.lfilter(unit_b, unit_a, x, zi=zi)
        out.append(f"    {{{array(a)}, {array(b)}, {array(ya)}, {array(xb)}, {array(y)}}},")
    out.append("};\n")

    out.append("struct Pole {\n    double real, imaginary;\n};\n")
    out.append("struct Poles {\n    int type, order;\n    double fc;\n"
               "    std::vector<Pole> poles; // in the z-plane, by ascending quality\n};\n")
    out.append("inline const Poles kPoles[] = {")
    for kind in (0, 1):
        for order in (1, 2, 3, 8, 13, 20):
            for fc in (1e-4, 0.01, 0.2, 0.25, 0.4, 0.499):
                found = list(poles(kind, order, fc))[::-1]
                text = ", ".join("{" + mp.nstr(re, 20) + ", " + mp.nstr(im, 20) + "}" for re, im in found)
                out.append(f"    {{{kind}, {order}, {fc}, {{{text}}}}},")
    out.append("};\n\n} // namespace quordsp::vectors")


def wrapped(parts):
    for line in "\n".join(parts).split("\n"):
        indent = " " * (len(line) - len(line.lstrip()))
        yield textwrap.fill(line, 120, subsequent_indent=indent + "    ", break_on_hyphens=False,
                            initial_indent=indent) + "\n" if line.strip() else "\n"


lines = []
write(lines)
print("".join(wrapped(lines)), end="")
