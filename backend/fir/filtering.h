// FIR filtering of real and complex signals: y[i] = h[0] x[i] + h[1] x[i-1] + ... + h[taps-1] x[i-taps+1].
//
// Sample is double or Complex. x may be y; otherwise they do not overlap, and neither overlaps h or state. taps <= 0:
// y = x. Throws std::bad_alloc before anything is written.
#pragma once

#include "nianlys.h"
#include "parts.h"
#include "status.h"

namespace quordsp::backend {

// Between neighbouring coefficients lie spacing samples: 1, but for filters that run on every so many samples.
struct Fir {
    const double* h;
    std::int64_t taps;
    std::int64_t spacing = 1;
};

void filterParts(const double* x, std::int64_t n, const Fir& fir, std::size_t parts, double* state, double* y);
void filterPartsFromRest(const double* x, std::int64_t n, const Fir& fir, std::size_t parts, double* y);

// state: the last (taps - 1) * spacing inputs, newest last, before and after; null means zeros. The results have the
// same bits however a signal is cut into blocks, and whether real signals or parts of complex ones are filtered.
template <class Sample>
void filter(const Sample* x, std::int64_t n, const Fir& fir, Sample* state, Sample* y)
{
    filterParts(partsOf(x), n, fir, kParts<Sample>, state ? partsOf(state) : nullptr, partsOf(y));
}

// A whole signal from zero state. Many taps are worked off by Fourier transforms: results are then within 1e-12 sum |h|
// max |x|, or 1e-298, of the direct sums, and still the same bits for real signals and parts of complex ones.
template <class Sample>
void filterFromRest(const Sample* x, std::int64_t n, const Fir& fir, Sample* y)
{
    filterPartsFromRest(partsOf(x), n, fir, kParts<Sample>, partsOf(y));
}

template <class Sample>
void filterFromRest(const Sample* x, std::int64_t n, const double* h, std::int64_t taps, Sample* y)
{
    filterFromRest(x, n, Fir{h, taps}, y);
}

// What the entries with a caller's coefficients do.
template <class Sample>
Status filterBlock(const Sample* x, std::int64_t n, const double* h, Sample* state, std::int32_t taps,
                   Sample* y) noexcept
{
    return guarded([&] {
        requirePositiveCount(n);
        requireArrays(x, y);
        require(taps <= 0 || h, Status::ArraySize);
        filter(x, n, Fir{h, taps}, state, y);
    });
}

} // namespace quordsp::backend
