// Savitzky-Golay smoothing: each point becomes the value there of the polynomial that fits its frame of 2 sidePoints +
// 1 points best, in the sense of weighted least squares. Points near an end take the fit of the first or last whole
// frame.
#pragma once

#include "nianlys.h"

namespace quordsp::backend {

struct PolynomialFit {
    std::int32_t order;
    std::int32_t sidePoints;
    const double* weights; // of the points of a frame, finite and not negative; null: 1 each
};

// diffFilters is neither needed nor written unless withDiffFilters.
Status savitzkyGolayCoefficients(const PolynomialFit& fit, bool withDiffFilters, double* filters,
                                 double* diffFilters) noexcept;

// x may be y. Sample is double or Complex.
template <class Sample>
Status filterSavitzkyGolay(const Sample* x, std::int64_t n, const PolynomialFit& fit, Sample* y) noexcept;

} // namespace quordsp::backend
