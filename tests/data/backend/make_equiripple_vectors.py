#!/usr/bin/python3
"""Makes equiripple_vectors.inc: Parks-McClellan designs by SciPy 1.10.

Usage: make_equiripple_vectors.py > equiripple_vectors.inc

A row: taps, kind (1 multiband, 2 differentiator, 3 Hilbert transformer), the bands (amplitude, lower and upper edge,
weight), the largest weighted error on a fine grid, the first half of the coefficients.
"""
import numpy as np
from scipy.signal import remez

KINDS = {1: "bandpass", 2: "differentiator", 3: "hilbert"}
DESIGNS = [  # taps, kind, (lower, upper, amplitude, weight)...
    (3, 1, (0, 0.1, 1, 1), (0.3, 0.5, 0, 1)),
    (4, 1, (0, 0.1, 1, 1), (0.3, 0.5, 0, 1)),
    (24, 1, (0, 0.3, 1, 1), (0.4, 0.5, 0, 1)),
    (31, 1, (0, 0.2, 1, 1), (0.25, 0.5, 0, 10)),
    (32, 1, (0, 0.1, 1, 2), (0.15, 0.5, 0, 1)),
    (41, 1, (0, 0.2, 0, 1), (0.25, 0.5, 1, 1)),
    (55, 1, (0, 0.1, 0, 10), (0.15, 0.25, 1, 1), (0.3, 0.5, 0, 5)),
    (64, 1, (0, 0.1, 0, 1), (0.15, 0.3, 1, 1), (0.35, 0.5, 0, 1)),
    (65, 1, (0, 0.15, 1, 1), (0.2, 0.3, 0, 1), (0.35, 0.5, 1, 1)),
    (81, 1, (0, 0.05, 0, 1), (0.1, 0.15, 1, 1), (0.2, 0.25, 0, 1), (0.3, 0.35, 0.5, 1), (0.4, 0.5, 0, 1)),
    (20, 2, (0, 0.5, 2, 1)),
    (21, 2, (0, 0.4, 1, 1)),
    (40, 2, (0, 0.2, 1, 1), (0.25, 0.5, 0, 1)),
    (18, 3, (0.05, 0.5, 1, 1)),
    (31, 3, (0.05, 0.45, 1, 1)),
]


def amplitude(h, f, antisymmetric):
    angle = 2 * np.pi * np.outer(f, (len(h) - 1) / 2 - np.arange(len(h)))
    return (np.sin(angle) if antisymmetric else np.cos(angle)) @ h


def largest_error(h, kind, bands):
    largest = 0
    for lower, upper, desired, weight in bands:
        f = np.linspace(lower, upper, 20001)
        if kind == 2 and desired != 0:
            f = np.maximum(f, 1e-6)
            error = amplitude(h, f, True) / f - desired
        else:
            error = amplitude(h, f, kind != 1) - desired
        largest = max(largest, weight * np.max(np.abs(error)))
    return largest


def braces(values):
    return "{" + ", ".join(repr(float(value)) for value in values) + "}"


print("""// Made by make_equiripple_vectors.py.
// clang-format off
#pragma once

#include "nianlys.h"

#include <vector>

namespace quordsp::vectors
{

struct Equiripple {
    int taps, type;
    std::vector<backend::Band> bands;
    double ripple;
    std::vector<double> h;
};
inline const Equiripple kEquiripple[] = {""")
for taps, kind, *bands in DESIGNS:
    edges = [edge for band in bands for edge in band[:2]]
    h = remez(taps, edges, [band[2] for band in bands], weight=[band[3] for band in bands], type=KINDS[kind],
              fs=1, maxiter=200, grid_density=256)
    records = ", ".join(braces((desired, lower, upper, weight)) for lower, upper, desired, weight in bands)
    print(f"    {{{taps}, {kind}, {{{records}}}, {largest_error(h, kind, bands)!r}, {{")
    print(",\n".join(f"     {float(value)!r}" for value in h[: (taps + 1) // 2]) + "}},")
print("};\n\n} // namespace quordsp::vectors")
