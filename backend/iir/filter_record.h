// The cascade filter record of callers.
#pragma once

#include "iir/design.h"
#include "nianlys.h"

namespace quordsp::backend {

constexpr std::size_t sectionOrder(Response response)
{
    return isBand(response) ? 4 : 2;
}

constexpr std::size_t sectionCount(std::int32_t order)
{
    return static_cast<std::size_t>(order / 2 + order % 2);
}

// Throws IirFilter unless the record is one that newFilter() made and nobody has changed in size or type.
void requireConsistent(const IirFilter* filter);

// Zero coefficients and state, reset armed; one block for std::free. Null when there is no memory for it.
IirFilter* newFilter(Response response, std::int32_t order);

} // namespace quordsp::backend
