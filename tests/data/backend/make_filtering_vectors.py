#!/usr/bin/python3
"""Makes filtering_vectors.inc: IIR filtering of a complex signal, zero-phase filtering and medians by SciPy 1.10.

Usage: make_filtering_vectors.py > filtering_vectors.inc
"""
import textwrap

import numpy as np
from scipy import ndimage, signal

rng = np.random.default_rng(20261122)


def array(values):
    return "{" + ", ".join(repr(float(v)) for v in values) + "}"


def noise(n):
    return np.round(rng.standard_normal(n) * 256) / 256


def both(values):
    """Real and imaginary parts in turn."""
    return np.stack((values.real, values.imag), axis=-1).ravel()


def write_complex(out):
    x = noise(40) + 1j * noise(40)
    out.append("// Real and imaginary parts in turn.\ninline const std::vector<double> kComplexSignal" + array(both(x))
               + ";\n")
    out.append("struct ComplexContinued {\n    std::vector<double> a, b, ya, xb, y, yaAfter, xbAfter;\n};\n")
    out.append("// scipy.signal.lfilter from the state lfiltic gives it; ya and xb are newest last, y follows\n"
               "// kComplexSignal, and then the last outputs and inputs\n"
               "inline const ComplexContinued kComplexContinued[] = {")
    for a, b in (([1, -0.5], [1]), ([2, -1, 0.5], [1, 0.5]), ([1, -1.5, 0.8, -0.1, 0.05, -0.02], [0.1, 0.2, 0.3])):
        ya = noise(len(a) - 1) + 1j * noise(len(a) - 1)
        xb = noise(len(b) - 1) + 1j * noise(len(b) - 1)
        unit_b, unit_a = np.divide(b, a[0]), np.divide(a, a[0])  # lfiltic of this version expects a[0] = 1
        # and drops imaginary parts
        zi = signal.lfiltic(unit_b, unit_a, ya.real[::-1], xb.real[::-1]) \
            + 1j * signal.lfiltic(unit_b, unit_a, ya.imag[::-1], xb.imag[::-1])
        y, _ = signal.lfilter(unit_b, unit_a, x, zi=zi)
        out.append("    {" + ", ".join(array(v) for v in (
            a, b, both(ya), both(xb), both(y), both(y[len(y) - len(ya):]), both(x[len(x) - len(xb):]))) + "},")
    out.append("};\n")
    out.append("struct ComplexCascade {\n    int type, order;\n    double fl, fh;\n    std::vector<double> y;\n};\n")
    out.append("// scipy.signal.sosfilt(butter(..., fs=1, output='sos'), kComplexSignal)\n"
               "inline const ComplexCascade kComplexCascades[] = {")
    for kind, name, order, fl, fh in ((0, "lowpass", 5, 0.1, 0), (1, "highpass", 2, 0.2, 0), (2, "bandpass", 3, 0.1, 0.3),
                                      (3, "bandstop", 1, 0.15, 0.2)):
        sos = signal.butter(order, (fl, fh) if kind > 1 else fl, name, fs=1, output="sos")
        out.append(f"    {{{kind}, {order}, {fl}, {fh}, {array(both(signal.sosfilt(sos, x)))}}},")
    out.append("};\n")


def write_zero_phase(out):
    x = noise(50)
    out.append("inline const std::vector<double> kZeroPhaseSignal" + array(x) + ";\n")
    out.append("struct ZeroPhase {\n    std::vector<double> a, b, y;\n};\n")
    out.append("// scipy.signal.lfilter forwards over kZeroPhaseSignal, then backwards over the result\n"
               "inline const ZeroPhase kZeroPhase[] = {")
    b4, a4 = signal.butter(4, 0.3)
    for a, b in (([1, -0.9], [0.1]), ([4, 1, -0.5], [1, 2, 1]), ([1], [1, -1, 0.5]), (a4, b4)):
        forwards = signal.lfilter(b, a, x)
        out.append(f"    {{{array(a)}, {array(b)}, {array(signal.lfilter(b, a, forwards[::-1])[::-1])}}},")
    out.append("};\n")


def write_medians(out):
    out.append("struct Median {\n    int left, right;\n    std::vector<double> y;\n};\n")
    out.append("// scipy.ndimage.median_filter(mode='constant') over kMedianSignal where the ranks are equal,\n"
               "// numpy.median of each window of the padded signal where they are not\n"
               "inline const Median kMedians[] = {")
    x = rng.permutation(np.concatenate((noise(40), np.full(10, 0.25))))
    for left, right in ((0, 0), (1, 1), (4, 4), (5, 5), (20, 20), (2, 3), (0, 7), (9, 0), (3, 40), (90, 12)):
        padded = np.concatenate((np.zeros(left), x, np.zeros(right)))
        windows = np.lib.stride_tricks.sliding_window_view(padded, left + 1 + right)
        y = ndimage.median_filter(x, size=2 * left + 1, mode="constant") if left == right else np.median(windows, axis=1)
        out.append(f"    {{{left}, {right}, {array(y)}}},")
    out.append("};\n")
    out.append("inline const std::vector<double> kMedianSignal" + array(x) + ";\n")


def wrapped(parts):
    for line in "\n".join(parts).split("\n"):
        indent = " " * (len(line) - len(line.lstrip()))
        yield textwrap.fill(line, 120, subsequent_indent=indent + "    ", break_on_hyphens=False,
                            initial_indent=indent) + "\n" if line.strip() else "\n"


lines = ["// Made by make_filtering_vectors.py.\n// clang-format off\n#pragma once\n\n#include <vector>\n",
         "namespace quordsp::vectors\n{\n"]
write_complex(lines)
write_zero_phase(lines)
write_medians(lines)
lines.append("} // namespace quordsp::vectors")
print("".join(wrapped(lines)), end="")
