// Removal of a piecewise polynomial trend, for the library's own use.
#pragma once

namespace quordsp {

// What QuorDSP_detrend does.
void detrend(double* signal, int count, int order, const double* breakpoints, int breakpointCount) noexcept;

} // namespace quordsp
