// Where an exchange starts.
#pragma once

#include "fir/interpolant.h"

namespace quordsp::backend {

// In even distances.
Reference evenReference(const Approximation& approximation, std::size_t count);

// As a reference of another count lies in the bands.
Reference scaledReference(const Approximation& approximation, const Reference& model, std::size_t count);

} // namespace quordsp::backend
