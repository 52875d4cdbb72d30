#include "fir/narrow_band.h"

namespace quordsp::backend {

// AllocFIRFilterPtr
FirFilter* AALFunc491() noexcept
{
    return newFirFilter();
}

// FreeFIRFilterPtr
void AALFunc492(FirFilter* filter) noexcept
{
    freeFirFilter(filter);
}

// FIRNarrowBandCoef
Status AALFunc409(double fs, double passBand, double stopBand, double centerFrequency, double ripple,
                  double attenuation, std::int32_t type, FirFilter* filter) noexcept
{
    return designNarrowBand({fs, passBand, stopBand, centerFrequency, ripple, attenuation, type}, filter);
}

// FIRNarrowBandFilter
Status AALFunc410(const double* x, std::int64_t n, FirFilter filter, double* y) noexcept
{
    return filterNarrowBand(x, n, filter, y);
}

// CxFIRNarrowBandFilter
Status AALFunc411(const Complex* x, std::int64_t n, FirFilter filter, Complex* y) noexcept
{
    return filterNarrowBand(x, n, filter, y);
}

} // namespace quordsp::backend
