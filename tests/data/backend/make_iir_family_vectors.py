#!/usr/bin/python3
"""Makes iir_family_vectors.inc: Bessel, Chebyshev, inverse Chebyshev and elliptic filters by SciPy 1.10.

Usage: make_iir_family_vectors.py > iir_family_vectors.inc
"""
import textwrap

import numpy as np
from scipy import signal

TYPES = ("lowpass", "highpass", "bandpass", "bandstop")


def design(family, kind, order, fl, fh, ripple, attenuation, output):
    args = {"Wn": fl if kind < 2 else (fl, fh), "btype": TYPES[kind], "fs": 1, "output": output}
    if family == "Bessel":
        return signal.bessel(order, norm="phase", **args)
    if family == "Chebyshev":
        return signal.cheby1(order, ripple, **args)
    if family == "InverseChebyshev":
        return signal.cheby2(order, attenuation, **args)
    return signal.ellip(order, ripple, attenuation, **args)


def array(values):
    return "{" + ", ".join(repr(float(v)) for v in values) + "}"


def test_signal(n):
    """The signal of make_iir_vectors.py."""
    i = np.arange(n)
    return np.round((1.0 + np.sin(0.21 * i) + 0.5 * np.cos(2.4 * i)) * 1024) / 1024


def rows(cases):
    for family in ("Bessel", "Chebyshev", "InverseChebyshev", "Elliptic"):
        for case in cases:
            yield family, case, "{test::" + family + ", " + ", ".join(repr(v) for v in case) + "}"


def line(text):
    return textwrap.fill("    " + text, 120, subsequent_indent=" " * 8, break_on_hyphens=False)


print("""// Made by make_iir_family_vectors.py.
// clang-format off
#pragma once

#include "backend/support/iir_families.h"

#include <vector>

namespace quordsp::vectors {

struct FamilyFiltered {
    test::Order order;
    std::vector<double> y;
};

// scipy.signal.sosfilt(design(..., output='sos'), kSignal)
inline const FamilyFiltered kFamilyFiltered[] = {""")
for family, case, text in rows(((0, 5, 0.05, 0, 0.5, 50), (1, 4, 0.2, 0, 1, 40), (2, 3, 0.1, 0.2, 0.1, 60),
                                (3, 6, 0.15, 0.4, 3, 80))):
    print(line("{" + text + ", " + array(signal.sosfilt(design(family, *case, "sos"), test_signal(96))) + "},"))
print("""};

struct FamilyDirect {
    test::Order order;
    std::vector<double> b, a;
};

// design(..., output='ba')
inline const FamilyDirect kFamilyDirect[] = {""")
for family, case, text in rows(((0, 1, 0.2, 0, 0.5, 50), (0, 6, 0.15, 0, 0.01, 100), (1, 5, 0.4, 0, 1, 40),
                                (2, 1, 0.1, 0.3, 1, 40), (2, 4, 0.2, 0.3, 2, 30), (3, 1, 0.05, 0.1, 1, 40),
                                (3, 3, 0.15, 0.4, 0.1, 60))):
    print(line("{" + text + ", " + ", ".join(map(array, design(family, *case, "ba"))) + "},"))
print("""};

} // namespace quordsp::vectors""")
