// The number type of filter design. A design is worked out in extended precision and rounded to double once, at its
// end: the coefficients are then the nearest that double has, whatever cancels on the way. Only operations that IEEE
// 754 fixes are used, so that a design has the same bits with every run-time library.
#pragma once

#include <cmath>
#include <complex>
#include <numbers>

namespace quordsp::backend {

using Real = long double;

// sin and cos by their power series, within 2 units in the last place for 0 <= angle <= pi / 4.
inline Real sineOfSmall(Real angle)
{
    Real sum = 1;
    for (int k = 22; k > 0; k -= 2)
        sum = 1 - angle * angle / (k * (k + 1)) * sum;
    return angle * sum;
}

inline Real cosineOfSmall(Real angle)
{
    Real sum = 1;
    for (int k = 22; k > 0; k -= 2)
        sum = 1 - angle * angle / (k * (k - 1)) * sum;
    return sum;
}

// sin and cos of pi * part / whole for 0 <= part <= whole / 2. The cosine is the sine of the complement, which is
// formed before anything is rounded: it keeps its relative accuracy up to part = whole / 2.
inline Real sinPi(Real part, Real whole)
{
    if (part <= whole / 4)
        return sineOfSmall(std::numbers::pi_v<Real> * (part / whole));
    return cosineOfSmall(std::numbers::pi_v<Real> * ((whole / 2 - part) / whole));
}

inline Real cosPi(Real part, Real whole)
{
    return sinPi(whole / 2 - part, whole);
}

// Without the scaling of the language's own division, whose steps differ from one run-time library to the next.
inline std::complex<Real> quotient(std::complex<Real> a, std::complex<Real> b)
{
    return a * std::conj(b) / std::norm(b);
}

// A square root of z; the other one is its negative.
inline std::complex<Real> squareRoot(std::complex<Real> z)
{
    const Real larger = std::sqrt((std::sqrt(std::norm(z)) + std::abs(z.real())) / 2);
    if (larger == 0)
        return 0;
    const Real smaller = z.imag() / (2 * larger);
    return z.real() < 0 ? std::complex<Real>{smaller, larger} : std::complex<Real>{larger, smaller};
}

} // namespace quordsp::backend
