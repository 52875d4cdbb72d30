// The steps of a large transform between its two halves.
#pragma once

#include "transform/point.h"

#include <cstddef>

namespace quordsp::backend {

// Row k of x, times row k of twiddles, times factors[k], becomes row k of y. Rows of kLanes.
void turnRows(std::size_t rows, ConstSplit x, ConstSplit twiddles, ConstSplit factors, Split y);

// kLanes rows of x, count values each, become columns: rows of lanes.
void rowsToLanes(std::size_t count, ConstSplit x, Split lanes);

} // namespace quordsp::backend
