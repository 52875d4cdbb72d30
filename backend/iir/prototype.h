// Low-pass prototypes with cut-off 1 rad/s: what distinguishes one family of filters from another, and nothing else.
#pragma once

#include "real.h"

#include <cstdint>
#include <limits>
#include <vector>

namespace quordsp::backend {

// A pole pair (or one real pole) with its zeros, of unit gain at s = 0. Every family has its zeros on the imaginary
// axis: one pair at +-j zero, or none when zero is infinite. A real pole has none.
struct PrototypeSection {
    std::complex<Real> pole; // either of the pair
    Real zero = std::numeric_limits<Real>::infinity();

    bool isPair() const { return pole.imag() != 0; }
};

struct Prototype {
    std::vector<PrototypeSection> sections; // by ascending quality; the real pole of an odd order is the first
    Real gain = 1;                          // at s = 0
};

// What section makes of each odd k, from k = order, the real pole of an odd order, down to k = 1, the sharpest.
template <class Section>
std::vector<PrototypeSection> sectionsByQuality(std::int32_t order, const Section& section)
{
    std::vector<PrototypeSection> sections;
    sections.reserve(static_cast<std::size_t>(order / 2 + order % 2));
    for (std::int32_t k = order - 1 + order % 2; k > 0; k -= 2)
        sections.push_back(section(k));
    return sections;
}

struct Tolerances {
    double ripple = 0;      // dB
    double attenuation = 0; // dB
};

struct Family {
    Prototype (*prototype)(std::int32_t order, const Tolerances&);
    bool hasRipple;
    bool hasAttenuation;
};

Prototype butterworthPrototype(std::int32_t order, const Tolerances&);
Prototype besselPrototype(std::int32_t order, const Tolerances&);
Prototype chebyshevPrototype(std::int32_t order, const Tolerances&);
Prototype inverseChebyshevPrototype(std::int32_t order, const Tolerances&);
Prototype ellipticPrototype(std::int32_t order, const Tolerances&);

inline constexpr Family kButterworth{butterworthPrototype, false, false};
inline constexpr Family kBessel{besselPrototype, false, false};
inline constexpr Family kChebyshev{chebyshevPrototype, true, false};
inline constexpr Family kInverseChebyshev{inverseChebyshevPrototype, false, true};
inline constexpr Family kElliptic{ellipticPrototype, true, true};

} // namespace quordsp::backend
