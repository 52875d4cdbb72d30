#!/usr/bin/python3
"""Makes iir_prototypes.inc: zeros, poles and gains of low-pass prototypes with cut-off 1 rad/s, by mpmath with 50 digits
from the equations that define each family.

Usage: make_iir_prototypes.py > iir_prototypes.inc
"""
import mpmath as mp

mp.mp.dps = 50


def excess(decibels):
    return mp.expm1(mp.mpf(decibels) * mp.log(10) / 10)


def angles(order):
    """From the real pole, or the pair nearest to it, to the sharpest pair; as fractions of a quarter turn."""
    return [mp.mpf(k) / order for k in range(order - 1 + order % 2, 0, -2)]


def on_circle(u):
    """A point of the left half of the unit circle, exactly real for u = 1."""
    return mp.mpc(-mp.sin(u * mp.pi / 2), 0 if u == 1 else mp.cos(u * mp.pi / 2))


def butterworth(order):
    return [(on_circle(u), None) for u in angles(order)], mp.mpf(1)


def bessel(order):
    """Roots of the polynomial with coefficients (2n - k)! / (2^(n - k) k! (n - k)!), over the n-th root of the last."""
    n = order
    with mp.workdps(50 + 2 * n):
        coefficients = [mp.factorial(2 * n - k) / (mp.mpf(2) ** (n - k) * mp.factorial(k) * mp.factorial(n - k))
                        for k in range(n, -1, -1)]
        roots = mp.polyroots(coefficients, maxsteps=200, extraprec=800)
        scale = mp.root(coefficients[-1], n)
        upper = sorted((r for r in roots if r.imag > -mp.mpf(10) ** -30), key=lambda r: r.imag)
    return [(mp.mpc(r.real, r.imag if r.imag > mp.mpf(10) ** -30 else 0) / scale, None) for r in upper], mp.mpf(1)


def on_ellipse(order, a):
    return [mp.mpc(mp.sinh(a) * p.real, mp.cosh(a) * p.imag) for p in map(on_circle, angles(order))]


def chebyshev(order, ripple):
    poles = on_ellipse(order, mp.asinh(1 / mp.sqrt(excess(ripple))) / order)
    gain = 1 if order % 2 else 1 / mp.sqrt(1 + excess(ripple))
    return [(p, None) for p in poles], mp.mpf(gain)


def inverse_chebyshev(order, attenuation):
    poles = on_ellipse(order, mp.asinh(mp.sqrt(excess(attenuation))) / order)
    zeros = [None if u == 1 else 1 / mp.cos(u * mp.pi / 2) for u in angles(order)]
    return [(1 / mp.conj(p), z) for p, z in zip(poles, zeros)], mp.mpf(1)


def quarter_periods(k, complement):
    """K and K' from the modulus and its complement."""
    return mp.pi / 2 / mp.agm(1, complement), mp.pi / 2 / mp.agm(1, k)


def selectivity(order, k1, complement1):
    """k and its complement by the degree equation, found by bisection over the logarithm of k / k'."""
    K1, K1c = quarter_periods(k1, complement1)
    low, high = mp.mpf(-200), mp.mpf(200)
    for _ in range(220):
        middle = (low + high) / 2
        ratio = mp.exp(middle)
        k, complement = ratio / mp.hypot(1, ratio), 1 / mp.hypot(1, ratio)
        K, Kc = quarter_periods(k, complement)
        if order * Kc / K > K1c / K1:
            low = middle
        else:
            high = middle
    return k, complement


def elliptic(order, ripple, attenuation):
    e2, d2 = excess(ripple), excess(attenuation)
    k1 = mp.sqrt(e2 / d2)
    complement1 = mp.sqrt((1 + e2) * mp.expm1((mp.mpf(attenuation) - mp.mpf(ripple)) * mp.log(10) / 10) / d2)
    k, complement = selectivity(order, k1, complement1)
    K, Kc = quarter_periods(k, complement)
    K1, K1c = quarter_periods(k1, complement1)
    # sc(x, k1') = 1 / e
    x = mp.ellipf(mp.atan(1 / mp.sqrt(e2)), complement1 ** 2)
    v = x * K / (order * K1)

    def at(u):
        if u == 1:  # j sn(j v)
            t = mp.ellipfun("sn", v, m=complement ** 2) / mp.ellipfun("cn", v, m=complement ** 2)
            return mp.mpc(-t, 0)
        return mp.j * mp.ellipfun("cd", mp.mpc(u * K, -v), m=k ** 2)

    zeros = [None if u == 1 else 1 / (k * mp.ellipfun("cd", u * K, m=k ** 2)) for u in angles(order)]
    gain = 1 if order % 2 else 1 / mp.sqrt(1 + e2)
    return [(at(u), mp.re(z) if z is not None else None) for u, z in zip(angles(order), zeros)], mp.mpf(gain)


def text(value):
    return "0" if value == 0 else mp.nstr(value, 22, strip_zeros=False, min_fixed=-5, max_fixed=5) + "L"


SECTIONS, PROTOTYPES, EXTREMES = [], [], []


def row(rows, name, order, ripple, attenuation, sections, gain):
    rows.append(f"    {{{name}, {order}, {ripple!r}, {attenuation!r}, {text(gain)}, "
                f"{{kSections + {len(SECTIONS)}, {len(sections)}}}}},")
    for pole, zero in sections:
        SECTIONS.append(f"    {{{text(pole.real)}, {text(abs(pole.imag))}, {'kNone' if zero is None else text(zero)}}},")


ORDERS = range(1, 21)
for n in ORDERS:
    row(PROTOTYPES, "test::Butterworth", n, 0.0, 0.0, *butterworth(n))
    row(PROTOTYPES, "test::Bessel", n, 0.0, 0.0, *bessel(n))
    for ripple in (0.1, 3.0):
        row(PROTOTYPES, "test::Chebyshev", n, ripple, 0.0, *chebyshev(n, ripple))
    for attenuation in (60.0, 150.0) if n > 3 else (60.0,):
        row(PROTOTYPES, "test::InverseChebyshev", n, 0.0, attenuation, *inverse_chebyshev(n, attenuation))
    for ripple, attenuation in ((0.1, 60.0), (1.0, 150.0)):
        row(PROTOTYPES, "test::Elliptic", n, ripple, attenuation, *elliptic(n, ripple, attenuation))
for n in (40, 64):
    row(EXTREMES, "test::Bessel", n, 0.0, 0.0, *bessel(n))
for n, ripple in ((1, 1e-10), (7, 1e-10), (3, 60.0), (2, 1e-3), (100, 0.01)):
    row(EXTREMES, "test::Chebyshev", n, ripple, 0.0, *chebyshev(n, ripple))
for n, attenuation in ((1, 150.0), (3, 150.0), (12, 300.0), (5, 0.01), (100, 80.0)):
    row(EXTREMES, "test::InverseChebyshev", n, 0.0, attenuation, *inverse_chebyshev(n, attenuation))
for n, ripple, attenuation in ((1, 1e-10, 300.0), (6, 1e-10, 60.0), (12, 1.0, 300.0), (5, 1.0, 1.01), (4, 1e-10, 1e-9),
                               (9, 1e-3, 20.0), (2, 50.0, 51.0), (40, 0.1, 300.0)):
    row(EXTREMES, "test::Elliptic", n, ripple, attenuation, *elliptic(n, ripple, attenuation))

print("""// Made by make_iir_prototypes.py.
// clang-format off
#pragma once

#include "backend/support/iir_family.h"

#include <limits>
#include <span>

namespace quordsp::vectors {

inline constexpr long double kNone = std::numeric_limits<long double>::infinity();

// A pole pair (an imaginary part of 0: one real pole) with its zeros at +-j zero.
struct PoleAndZero {
    long double real, imaginary, zero;
};

struct Prototype {
    test::Family family;
    int order;
    double ripple, attenuation; // dB
    long double gain;           // at 0
    std::span<const PoleAndZero> sections; // by ascending quality
};

inline constexpr PoleAndZero kSections[] = {""")
print("\n".join(SECTIONS))
print("""};

// Ordinary ripples and attenuations, orders 1 to 20. An inverse Chebyshev filter of low order and high attenuation ends
// its pass band thousands of times below the cut-off.
inline constexpr Prototype kPrototypes[] = {""")
print("\n".join(PROTOTYPES))
print("""};

inline constexpr Prototype kExtremes[] = {""")
print("\n".join(EXTREMES))
print("""};

} // namespace quordsp::vectors""")
