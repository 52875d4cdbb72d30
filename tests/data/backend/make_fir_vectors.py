#!/usr/bin/python3
"""Makes fir_vectors.inc: windows, windowed designs and local fits from their definitions by mpmath with 120 digits, each
held here against SciPy 1.10 where it has the same; filtered and smoothed signals by SciPy.

Usage: make_fir_vectors.py > fir_vectors.inc
"""
import textwrap
import warnings

import mpmath as mp
import numpy as np
from scipy import signal

mp.mp.dps = 120
NAN = float("nan")
COSINES = {
    0: ["1"], 1: ["0.5", "0.5"], 2: ["0.54", "0.46"], 3: ["0.42323", "0.49755", "0.07922"],
    4: [mp.mpf(7938) / 18608, mp.mpf(9240) / 18608, mp.mpf(1430) / 18608], 5: ["0.42", "0.50", "0.08"],
    6: ["0.21557895", "0.41663158", "0.277263158", "0.083578947", "0.006947368"],
    7: ["0.35875", "0.48829", "0.14128", "0.01168"],
    8: ["0.27105140069342415", "0.43329793923448606", "0.21812299954311062", "0.065925446388030898",
        "0.010811742098372268", "7.7658482522509342e-4", "1.3887217350903198e-5"],
    9: ["0.323215218", "0.471492057", "0.17553428", "0.028497078", "0.001261367"],
    11: ["0.3635819", "0.4891775", "0.1365995", "0.0106411"],
}
SCIPY = {0: "boxcar", 1: "hann", 2: "hamming", 5: "blackman", 7: "blackmanharris", 11: "nuttall", 31: "barthann",
         32: "bohman"}
DEFAULTS = {60: 0.0, 61: 60.0, 62: 0.2}


def chebyshev(n, x):
    return mp.cos(n * mp.acos(x)) if abs(x) <= 1 else mp.re(mp.cosh(n * mp.acosh(x)))


def dolph_chebyshev(taps, attenuation):
    ratio = mp.mpf(10) ** (mp.mpf(attenuation) / 20)
    t0 = mp.cosh(mp.acosh(ratio) / (taps - 1))
    lobes = [chebyshev(taps - 1, t0 * mp.cos(mp.pi * m / taps)) for m in range((taps - 1) // 2 + 1)]
    middle = mp.mpf(taps - 1) / 2
    w = [ratio + 2 * sum(lobes[m] * mp.cos(2 * m * mp.pi * (k - middle) / taps) for m in range(1, len(lobes)))
         for k in range(taps)]
    return [value / max(w) for value in w]


def value(code, parameter, taps, k):
    u, last = 2 * mp.pi * k / (taps - 1), mp.mpf(taps - 1)
    v = abs(k - last / 2) / (last / 2)
    if code in COSINES:
        return sum((-1) ** j * mp.mpf(a) * mp.cos(j * u) for j, a in enumerate(COSINES[code]))
    if code == 30:
        return 1 - v
    if code == 31:
        place = k / last - mp.mpf(1) / 2
        return mp.mpf("0.62") - mp.mpf("0.48") * abs(place) + mp.mpf("0.38") * mp.cos(2 * mp.pi * place)
    if code == 32:
        return (1 - v) * mp.cos(mp.pi * v) + mp.sin(mp.pi * v) / mp.pi
    if code == 33:
        return 1 - 6 * v**2 + 6 * v**3 if 2 * v <= 1 else 2 * (1 - v) ** 3
    if code == 34:
        return 1 - v**2
    if code == 60:
        return mp.besseli(0, parameter * mp.sqrt(1 - v**2)) / mp.besseli(0, parameter)
    return mp.exp(-((k - last / 2) ** 2) / (2 * (mp.mpf(parameter) * taps) ** 2))


def by_scipy(code, parameter, taps):
    with warnings.catch_warnings():
        warnings.simplefilter("ignore")  # low side lobes of chebwin
        if code == 60:
            return signal.windows.kaiser(taps, parameter) if parameter < 700 else None  # its Bessel function overflows
        if code == 61:
            return signal.windows.chebwin(taps, parameter)
        if code == 62:
            return signal.windows.gaussian(taps, parameter * taps)
        return signal.get_window(SCIPY[code], taps, fftbins=False) if code in SCIPY else None


def window(code, parameter, taps):
    if np.isnan(parameter):
        parameter = DEFAULTS.get(code, parameter)
    if taps == 1:
        return [mp.mpf(1)]
    w = dolph_chebyshev(taps, parameter) if code == 61 else [value(code, parameter, taps, k) for k in range(taps)]
    peer = by_scipy(code, parameter, taps)
    assert peer is None or np.max(np.abs(peer - np.array([float(x) for x in w]))) < 1e-12, (code, parameter, taps)
    return w


def passed(fs, low, high, t):
    if t == 0:
        return 2 * (high - low) / fs
    return (mp.sin(2 * mp.pi * high * t / fs) - mp.sin(2 * mp.pi * low * t / fs)) / (mp.pi * t)


def design(kind, fs, fl, fh, taps, code, parameter):
    low, high = (mp.mpf(0), mp.mpf(fl)) if kind < 2 else (mp.mpf(fl), mp.mpf(fh))
    w, h = window(code, parameter, taps), []
    for k in range(taps):
        t = k - mp.mpf(taps - 1) / 2
        ideal = passed(mp.mpf(fs), low, high, t)
        h.append(w[k] * (ideal if kind in (0, 2) else (1 if t == 0 else 0) - ideal))
    if code in (1, 2, 5, 7):
        peer = signal.firwin(taps, [fl] if kind < 2 else [fl, fh], window=SCIPY[code], scale=False, fs=fs,
                             pass_zero=("lowpass", "highpass", "bandpass", "bandstop")[kind])
        assert np.max(np.abs(peer - np.array([float(x) for x in h]))) < 1e-14, (kind, taps, code)
    return h


def fit(order, side, weights):
    """(S'WS)^-1 S'W and S times that."""
    frame = 2 * side + 1
    s = mp.matrix(frame, order + 1)
    for i in range(frame):
        for p in range(order + 1):
            s[i, p] = mp.mpf(i - side) ** p
    w = mp.diag([mp.mpf(x) for x in weights])
    d = mp.inverse(s.T * w * s) * s.T * w
    return s * d, d


def array(values):
    return "{" + ", ".join(float(v).hex() for v in values) + "}"


def number(v):
    return "kDefault" if np.isnan(v) else repr(v)


def halves(out):
    out.append("// First halves of symmetric arrays, the middle of an odd number included.")
    out.append("struct WindowHalf {\n    int code;\n    double parameter;\n    int taps;\n    std::vector<double> w;\n};\n"
               "inline const WindowHalf kWindows[] = {")
    parameters = {60: (NAN, 0.5, 6.0, 40.0, 900.0), 61: (NAN, 10.0, 100.0, 250.0), 62: (NAN, 0.05, 1.5)}
    for code in (*COSINES, 30, 31, 32, 33, 34, 60, 61, 62):
        for parameter in parameters.get(code, (7.0,)):
            for taps in (1, 2, 3, 16, 31, 200):
                half = window(code, parameter, taps)[: (taps + 1) // 2]
                out.append(f"    {{{code}, {number(parameter)}, {taps}, {array(half)}}},")
    out.append("};\n")
    out.append("struct DesignHalf {\n    int type, taps;\n    double fs, fl, fh;\n    int window;\n    double parameter;\n"
               "    std::vector<double> h;\n};\ninline const DesignHalf kDesigns[] = {")
    for code, parameter in ((0, 0.0), (1, 0.0), (2, 0.0), (5, 0.0), (7, 0.0), (8, 0.0), (30, 0.0), (60, 8.6), (61, 80.0)):
        for kind, taps, fs, fl, fh in ((0, 20, 1000.0, 100.0, 0.0), (0, 31, 1.0, 0.01, 0.0), (1, 21, 51200.0, 5000.0, 0.0),
                                       (2, 32, 1.0, 0.1, 0.3), (2, 41, 8.0, 3.5, 3.75), (3, 25, 1.0, 0.05, 0.45)):
            half = design(kind, fs, fl, fh, taps, code, parameter)[: (taps + 1) // 2]
            out.append(f"    {{{kind}, {taps}, {fs}, {fl}, {fh}, {code}, {number(parameter)}, {array(half)}}},")
    out.append("};\n")


def fits(out, rng):
    out.append("struct Fit {\n    int order, side;\n    std::vector<double> weights; // empty: none\n"
               "    std::vector<double> filters, diffFilters;\n};\ninline const Fit kFits[] = {")
    for order, side, weighted in ((0, 0, False), (0, 3, False), (1, 1, False), (3, 4, False), (6, 5, False),
                                  (10, 5, False), (20, 25, False), (2, 3, True), (5, 6, True), (12, 8, True)):
        weights = np.round(rng.uniform(0.1, 4, 2 * side + 1), 3) if weighted else []
        if weighted:
            weights[1] = 0
        filters, diff = fit(order, side, weights if weighted else np.ones(2 * side + 1))
        if not weighted and order < 2 * side and order < 7:
            for derivative in range(order + 1):
                peer = signal.savgol_coeffs(2 * side + 1, order, deriv=derivative, use="dot")
                ours = np.array([float(x) for x in diff[derivative, :]]) * float(mp.factorial(derivative))
                assert np.max(np.abs(peer - ours)) < 1e-11
        out.append(f"    {{{order}, {side}, {array(weights)}, {array(filters)}, {array(diff)}}},")
    out.append("};\n")


def signals(out, rng):
    x = rng.standard_normal(60)
    out.append(f"inline const std::vector<double> kNoise{array(x)};\n")
    out.append("struct Smoothed {\n    int order, side;\n    std::vector<double> y;\n};\n"
               "// scipy.signal.savgol_filter(kNoise, ..., mode='interp')\ninline const Smoothed kSmoothed[] = {")
    for order, side in ((0, 3), (1, 1), (2, 2), (3, 7), (4, 4), (5, 20)):
        out.append(f"    {{{order}, {side}, {array(signal.savgol_filter(x, 2 * side + 1, order, mode='interp'))}}},")
    out.append("};\n")
    out.append("struct Filtered {\n    std::vector<double> h, past; // newest last\n    std::vector<double> y, after;\n};\n"
               "// scipy.signal.lfilter(h, 1, kNoise, zi=lfiltic(h, 1, [], reversed past))\n"
               "inline const Filtered kFiltered[] = {")
    for taps in (1, 2, 5, 40, 80):
        h, past = rng.standard_normal(taps), rng.standard_normal(taps - 1)
        zi = signal.lfiltic(h, 1, [], past[::-1]) if taps > 1 else np.zeros(0)
        y, _ = signal.lfilter(h, 1, x, zi=zi)
        after = np.concatenate([past, x])[len(x):]
        out.append(f"    {{{array(h)}, {array(past)}, {array(y)}, {array(after)}}},")
    out.append("};\n")


rng = np.random.default_rng(20240501)
lines = ["// Made by make_fir_vectors.py.\n// clang-format off\n#pragma once\n\n#include <limits>\n#include <vector>\n",
         "namespace quordsp::vectors\n{\n",
         "inline constexpr double kDefault = std::numeric_limits<double>::quiet_NaN();\n"]
halves(lines)
fits(lines, rng)
signals(lines, rng)
lines.append("} // namespace quordsp::vectors")
for line in "\n".join(lines).split("\n"):
    print("\n".join(textwrap.wrap(line, 118, subsequent_indent="        ", break_long_words=False)) if len(line) > 118
          else line)
