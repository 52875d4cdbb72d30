// The Dolph-Chebyshev window: of all windows with side lobes as low, the one with the narrowest main lobe.
#pragma once

#include "buffer.h"

namespace quordsp::backend {

// The first half of taps values, the middle of an odd number included. attenuation of the side lobes: dB, finite, > 0.
// More than 2^23 taps are answered as "out of memory".
Buffer<> dolphChebyshevHalf(double attenuation, std::size_t taps);

} // namespace quordsp::backend
