// The families of IIR filters.
#pragma once

namespace quordsp::test {

enum Family : int { Butterworth, Bessel, Chebyshev, InverseChebyshev, Elliptic };

inline constexpr Family kFamilies[] = {Butterworth, Bessel, Chebyshev, InverseChebyshev, Elliptic};

} // namespace quordsp::test
