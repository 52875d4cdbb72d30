// A filter as a caller orders it, checked and worked out.
#pragma once

#include "iir/sections.h"

namespace quordsp::backend {

// The largest order that is worked out; one above it is answered as "not enough memory", before any is asked for.
inline constexpr std::int32_t kLargestOrder = 1 << 20;

struct Design {
    const Family& family;
    Response response;
    std::int32_t order;
    Frequencies frequencies;
    Tolerances tolerances = {};
};

// Throws what is wrong with the order, the frequencies, the tolerances or the response, in this order.
void check(const Design& design);

// To be called in extended precision.
std::vector<AnalogSection> sectionsOf(const Design& design);

// For DirectSection<sectionOrder>, and for DeltaSection.
Coefficients cascadeOf(const Design& design, std::size_t sectionOrder);
Coefficients deltaCascadeOf(const Design& design);

// The number of coefficients of the direct form.
std::int64_t directCount(Response response, std::int32_t order);

} // namespace quordsp::backend
