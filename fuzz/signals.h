// Signals of a fuzz target, complex ones in two arrays or as pairs.
#pragma once
#include "bytes.h"
#include "nianlys.h"

namespace quordsp::fuzz {

using Samples = std::vector<double>;

struct Signal {
    Samples re, im;
};

// Long signals of few bytes.
Samples repeated(const Samples& few, std::size_t count);

Samples interleaved(const Signal& signal);
Signal separated(const Samples& pairs);

// As the backend takes pairs.
inline backend::Complex* elements(Samples& pairs)
{
    return reinterpret_cast<backend::Complex*>(pairs.data());
}

inline const backend::Complex* elements(const Samples& pairs)
{
    return reinterpret_cast<const backend::Complex*>(pairs.data());
}

bool areFinite(const Samples& values);

// Within the rounding of a transform; the scale is the sum of what was transformed.
void requireNear(const Samples& a, const Samples& b, double scale, const char* what);

} // namespace quordsp::fuzz
