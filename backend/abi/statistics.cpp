#include "nianlys.h"
#include "statistics/extremes.h"
#include "statistics/integrate.h"
#include "statistics/peak_detector.h"
#include "statistics/sort.h"
#include "status.h"

namespace quordsp::backend {

// MaxMin1D
Status AALFunc120(const double* x, std::int64_t n, double* max, std::int64_t* maxIndex, double* min,
                  std::int64_t* minIndex) noexcept
{
    return guarded([&] { maxMin(x, n, max, maxIndex, min, minIndex); });
}

// Sort
Status AALFunc160(const double* x, std::int64_t n, std::int32_t direction, double* y) noexcept
{
    return guarded([&] { sort(x, n, direction, y); });
}

// PeakDetector
Status AALFunc194(const double* x, std::int64_t n, double threshold, std::int64_t width, std::int32_t polarity,
                  std::int32_t initialize, std::int32_t endOfData, std::int64_t* count, double** locations,
                  double** amplitudes, double** secondDerivatives) noexcept
{
    return guarded([&] {
        detectPeaks(x, n, threshold, width, polarity, initialize, endOfData, count, locations, amplitudes,
                    secondDerivatives);
    });
}

// Integrate
Status AALFunc95(const double* x, std::int64_t n, double dt, double initial, double final, double* y) noexcept
{
    return guarded([&] { integrate(x, n, dt, initial, final, y); });
}

} // namespace quordsp::backend
