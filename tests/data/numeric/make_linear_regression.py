"""Makes linear_regression.csv: residuals of lines removed from y[i] = offset + slope*i + wave*((i*i*7919) % 1000), as Python's doubles
give them, one operation after the other. Columns: count, offset, slope, wave, index, residual (hexadecimal, exact).
"""
import csv
import sys


def wrapped_square(i):
    square = i * i % 2**32
    return float(square - 2**32 if square >= 2**31 else square)


def residuals(samples):
    n = float(len(samples))
    sx = sy = sxy = sxx = 0.0
    for i, y in enumerate(samples):
        sx += float(i)
        sy += y
        sxy += float(i) * y
        sxx += wrapped_square(i)
    mx, my = sx / n, sy / n
    c = sxy / n - my * mx
    v = sxx / n - mx * mx
    b = c / v
    a = my - b * mx
    return [y - (float(i) * b + a) for i, y in enumerate(samples)]


CASES = [
    (2, 3.0, 4.0, 0.0),
    (3, 0.1, 0.7, 0.3),
    (7, -2.5, 0.125, 0.01),
    (1000, 1e6, -3.3, 0.77),
    (46341, 3.0, 0.5, 0.001),
    (46342, 3.0, 0.5, 0.0),
    (50000, 3.0, 0.5, 0.0),
    (200000, -1e-3, 1e-6, 1e-5),
]

writer = csv.writer(sys.stdout, lineterminator="\n")
for count, offset, slope, wave in CASES:
    out = residuals([offset + slope * float(i) + wave * float(i * i * 7919 % 1000) for i in range(count)])
    for index in sorted({0, 1, 2, count // 3, count // 2, count - 2, count - 1} & set(range(count))):
        writer.writerow([count, offset.hex(), slope.hex(), wave.hex(), index, out[index].hex()])
