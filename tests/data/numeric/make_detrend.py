"""Makes detrend.csv: least-squares residuals of piecewise polynomials, from exact integer normal equations that mpmath
solves with 400 digits. The samples are those of the generator s = 6364136223846793005*s + 1442695040888963407
(mod 2^64), s = 1 before the first, as (s >> 11) / 2^50 - 4.
Columns: count, order, breakpoints (from 1, separated by blanks), index, residual.
"""
import csv
import sys

import mpmath

mpmath.mp.dps = 400


def samples(count):
    """In units of 2^-50."""
    s, out = 1, []
    for _ in range(count):
        s = (6364136223846793005 * s + 1442695040888963407) % 2**64
        out.append((s >> 11) - 2**52)
    return out


def residuals(y, order, breakpoints):
    # Positions in half samples are integers; a column of powers may have any scale.
    places = [0] + [round(2 * (b - 1)) for b in breakpoints]
    columns = [[max(2 * i - p, 0) ** power for i in range(len(y))] for power in range(order, 0, -1) for p in places]
    columns.append([1] * len(y))
    gram = mpmath.matrix([[sum(a * b for a, b in zip(u, v)) for v in columns] for u in columns])
    right = mpmath.matrix([sum(a * b for a, b in zip(u, y)) for u in columns])
    coefficients = mpmath.lu_solve(gram, right)
    return [(y[i] - sum(c * u[i] for c, u in zip(coefficients, columns))) / 2**50 for i in range(len(y))]


CASES = [
    (2, 1, []),
    (10, 1, []),
    (10, 3, [4.5]),
    (100, 2, [70, 30]),
    (600, 5, []),
    (601, 5, []),
    (1300, 3, [400, 900.5]),
    (5000, 1, [1000, 2000, 3000, 4000]),
    (5000, 5, [1000, 3000]),
    (51200, 1, []),
    (51200, 5, []),
    (2000, 10, []),
    (2000, 15, []),
    (51200, 15, []),
]

writer = csv.writer(sys.stdout, lineterminator="\n")
for count, order, breakpoints in CASES:
    out = residuals(samples(count), order, breakpoints)
    for index in sorted({0, 1, count // 7, count // 3, count // 2, count - 2, count - 1} & set(range(count))):
        writer.writerow([count, order, " ".join(map(str, breakpoints)), index, mpmath.nstr(out[index], 20)])
