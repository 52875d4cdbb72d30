#include "fir/savitzky_golay.h"

namespace quordsp::backend {

// SavitzkyGolayCoef
Status AALFunc355(std::int32_t polynomialOrder, std::int32_t sidePoints, const double* weights,
                  std::int32_t computeDiffFilters, double* filters, double* diffFilters) noexcept
{
    return savitzkyGolayCoefficients({polynomialOrder, sidePoints, weights}, computeDiffFilters != 0, filters,
                                     diffFilters);
}

// SavitzkyGolayFiltering
Status AALFunc356(const double* x, std::int64_t n, std::int32_t polynomialOrder, std::int32_t sidePoints,
                  const double* weights, double* y) noexcept
{
    return filterSavitzkyGolay(x, n, {polynomialOrder, sidePoints, weights}, y);
}

// SavitzkyGolayFiltering_CxInput
Status AALFunc357(const Complex* x, std::int64_t n, std::int32_t polynomialOrder, std::int32_t sidePoints,
                  const double* weights, Complex* y) noexcept
{
    return filterSavitzkyGolay(x, n, {polynomialOrder, sidePoints, weights}, y);
}

} // namespace quordsp::backend
