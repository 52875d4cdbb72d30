// Removal of the least-squares straight line, for the library's own use.
#pragma once

namespace quordsp {

// What linear_regression does.
void removeLine(double* data, int count) noexcept;

} // namespace quordsp
