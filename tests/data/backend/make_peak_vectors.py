#!/usr/bin/env python3
"""Peaks of noisy oscillations by numpy.polyfit, for the tests of the peak detector: peak_vectors.inc."""
import textwrap

import numpy as np


def fits(x, width):
    """Slope, vertex, height and second derivative of the parabola through each group, about its centre."""
    u = np.arange(width) - (width - 1) / 2
    for first in range(len(x) - width + 1):
        c2, c1, c0 = np.polyfit(u, x[first:first + width], 2)
        yield c1, -c1 / (2 * c2), c0 - c1 * c1 / (4 * c2), 2 * c2


def peaks(x, width):
    rows = list(fits(x, width))
    centre = (width - 1) / 2
    found = []

    def keep(group):
        _, vertex, height, bend = rows[group]
        found.append((group + centre + vertex, height, bend))

    for group, (slope, vertex, _, bend) in enumerate(rows):
        if group == 0 and slope <= 0 and bend < 0 and vertex >= -0.5:
            keep(0)
        if group > 0 and rows[group - 1][0] > 0 >= slope:
            falling = [g for g in (group - 1, group) if rows[g][3] < 0]
            if falling:
                keep(min(falling, key=lambda g: abs(rows[g][1])))
    slope, vertex, _, bend = rows[-1]
    if slope > 0 and bend < 0 and vertex <= 0.5:
        keep(len(rows) - 1)
    return found


def main():
    generator = np.random.default_rng(194)
    for width in (3, 4, 5, 8, 15, 40):
        t = np.arange(120)
        x = np.round(np.sin(2 * np.pi * t / (2.5 * width)) + 0.3 * generator.standard_normal(120), 3) + 10
        found = peaks(x, width)
        samples = ', '.join(f'{v:.3f}' for v in x)
        rows = ', '.join('{' + ', '.join(f'{v:.13g}' for v in peak) + '}' for peak in found)
        print(textwrap.fill(f'{{{width}, {{{samples}}}, {{{rows}}}}},', 118))


if __name__ == '__main__':
    print(f'// Made by make_peak_vectors.py with NumPy {np.__version__}.')
    main()
