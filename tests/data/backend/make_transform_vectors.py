#!/usr/bin/python3
"""Makes transform_vectors.inc: inputs and results of NumPy's and SciPy's transforms and spectra, as exact doubles.

Usage: make_transform_vectors.py > transform_vectors.inc
"""
import numpy as np
import scipy.fft
import scipy.signal


def array(name, values):
    print(f"constexpr double {name}[] = {{")
    print(",\n".join("    " + float(v).hex() for v in values) + "};")


def complex_case(name, n, rng):
    x = rng.standard_normal(n) + 1j * rng.standard_normal(n)
    y = scipy.fft.fft(x)
    for part, values in (("InRe", x.real), ("InIm", x.imag), ("OutRe", y.real), ("OutIm", y.imag)):
        array(name + part, values)


def real_case(name, n, rng):
    x = rng.standard_normal(n)
    y = np.fft.fft(x)
    for part, values in (("In", x), ("OutRe", y.real), ("OutIm", y.imag)):
        array(name + part, values)


def spectrum_case(name, n, dt, rng):
    """One-sided rms power from a periodogram without window and detrending, phase from the transform."""
    x = rng.standard_normal(n)
    two_sided = scipy.signal.periodogram(x, 1 / dt, detrend=False, return_onesided=False, scaling="spectrum")[1]
    frequencies, one_sided = scipy.signal.periodogram(x, 1 / dt, detrend=False, scaling="spectrum")
    phase = np.angle(np.fft.rfft(x))[: n // 2]
    array(name + "In", x)
    array(name + "TwoSided", two_sided)
    array(name + "Power", one_sided[: n // 2])
    array(name + "Phase", phase)
    array(name + "Unwrapped", np.unwrap(phase))
    array(name + "Df", [frequencies[1]])


rng = np.random.default_rng(20240229)
print(f"// Made by make_transform_vectors.py with NumPy {np.__version__} and SciPy {scipy.__version__}.")
complex_case("kComplex12", 12, rng)
complex_case("kComplex67", 67, rng)
real_case("kReal15", 15, rng)
real_case("kReal16", 16, rng)
spectrum_case("kSpectrum30", 30, 0.002, rng)
spectrum_case("kSpectrum31", 31, 0.25, rng)
