// Fewer points for a long curve, without a change to the picture.
#pragma once
#include <cstddef>
#include <span>
#include <vector>

namespace quordsp::cli {

// The indices to draw of an equally spaced curve in a picture of so many columns: of each column the first, the lowest,
// the highest and the last sample, in order, each once. A short curve keeps all. A NaN is lowest or highest only among
// NaNs.
std::vector<std::size_t> decimate(std::span<const double> samples, std::size_t columns);

} // namespace quordsp::cli
