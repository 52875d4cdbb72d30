"""Writes snr.csv: signal, noise and 10 log10(signal/noise), the quotient and the logarithm taken in 60 digits.

usage: make_snr.py > snr.csv
"""
import random
from decimal import Decimal, getcontext

getcontext().prec = 60
random.seed(1)


def row(signal, noise):
    ratio = 10 * (Decimal(signal) / Decimal(noise)).log10()
    print(",".join(value.hex() for value in (signal, noise, float(ratio))))


for exponent in range(-300, 301, 25):
    row(10.0 ** exponent, 1.0)
    row(1.0, 10.0 ** exponent)
for _ in range(100):
    row(10.0 ** random.uniform(-150, 150), 10.0 ** random.uniform(-150, 150))
for _ in range(100):
    row(random.uniform(0.0, 10.0), random.uniform(0.0, 10.0))
# Where the ratio is near 1 and its logarithm near 0.
for exponent in range(-52, -1):
    row(1.0 + 2.0 ** exponent, 1.0)
    row(3.0, 3.0 * (1.0 + 2.0 ** exponent))
