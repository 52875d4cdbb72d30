// Filtering through a cascade of sections.
#pragma once

#include "iir/cascade_kernel.h"
#include "parts.h"

namespace quordsp::backend {

// Section: DirectSection<2>, DirectSection<4> or DeltaSection; state: the values of each section's delay line, newest
// first; x may be y. The results have the same bits however a signal is cut into blocks, and whether real signals or
// parts of complex ones are filtered.
template <class Section>
void filterCascade(const double* x, std::int64_t n, const Sections& sections, std::size_t parts, double* state,
                   double* y) noexcept;

template <class Section, class Sample>
void filterCascade(const Sample* x, std::int64_t n, const Sections& sections, Sample* state, Sample* y) noexcept
{
    filterCascade<Section>(partsOf(x), n, sections, kParts<Sample>, partsOf(state), partsOf(y));
}

} // namespace quordsp::backend
