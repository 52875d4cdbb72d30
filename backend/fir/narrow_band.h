// What the numbered narrow-band entries do.
#pragma once

#include "nianlys.h"

namespace quordsp::backend {

struct NarrowBandDesign {
    double fs, passBand, stopBand, centerFrequency;
    double ripple, attenuation;
    std::int32_t type;
};

FirFilter* newFirFilter() noexcept;
void freeFirFilter(FirFilter* filter) noexcept;

// What filter held before is freed once the design stands.
Status designNarrowBand(const NarrowBandDesign& design, FirFilter* filter) noexcept;

// n samples from zero state, in place allowed. Sample is double or Complex.
template <class Sample>
Status filterNarrowBand(const Sample* x, std::int64_t n, const FirFilter& filter, Sample* y) noexcept;

} // namespace quordsp::backend
