// FIR filters of linear phase: h[n] = h[taps-1-n], or h[n] = -h[taps-1-n]. But for the delay, and for a factor j when
// they are antisymmetric, their response is the real amplitude A(f) = Q(f) P(x), x = cos(2 pi f), where the fixed Q
// carries the zeros that the symmetry forces and P is any polynomial of size() coefficients. Frequencies are in units
// of the sampling frequency, 0..1/2.
#pragma once

#include "real.h"

#include <cstddef>
#include <span>
#include <vector>

namespace quordsp::backend {

Real cosineOfTurns(Real f); // cos(2 pi f)
Real sineOfTurns(Real f);

struct LinearPhase {
    std::size_t taps;
    bool isAntisymmetric;

    bool isOdd() const { return taps % 2 != 0; }
    std::size_t size() const { return (isAntisymmetric ? taps : taps + 1) / 2; }

    // The filter of the same symmetry and parity that has so many coefficients in P.
    LinearPhase ofSize(std::size_t size) const;

    // Q(f), and what Q(f) / f tends to at 0 for antisymmetric filters.
    Real factor(Real f) const;
    // The same from cos(pi f) and sin(pi f).
    double factor(double cosine, double sine) const
    {
        if (isAntisymmetric)
            return isOdd() ? 2 * cosine * sine : sine;
        return isOdd() ? 1 : cosine;
    }
    Real slopeAtZero() const;
};

// A(f), whatever the rounding of h.
Real amplitude(const LinearPhase& filter, const double* h, Real f);

// The frequencies k / taps whose amplitudes fix a filter, ascending from k = 0; Q vanishes at none of them.
std::vector<Real> samplingFrequencies(const LinearPhase& filter);

// The filter that has these amplitudes there.
void filterOf(const LinearPhase& filter, std::span<const Real> amplitudes, double* h);

} // namespace quordsp::backend
