// Filtering through a cascade of sections.
#pragma once

#include "iir/cascade_kernel.h"
#include "parts.h"

namespace quordsp::backend {

// order: 2 or 4, of every section; state: the last order values of each section's delay line, newest first; x may be y.
// The results have the same bits however a signal is cut into blocks, and whether real signals or parts of complex ones
// are filtered.
void filterCascade(const double* x, std::int64_t n, std::size_t order, const Sections& sections, std::size_t parts,
                   double* state, double* y) noexcept;

template <class Sample>
void filterCascade(const Sample* x, std::int64_t n, std::size_t order, const Sections& sections, Sample* state,
                   Sample* y) noexcept
{
    filterCascade(partsOf(x), n, order, sections, kParts<Sample>, partsOf(state), partsOf(y));
}

} // namespace quordsp::backend
