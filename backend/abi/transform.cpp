#include "nianlys.h"
#include "status.h"
#include "transform/spectra.h"
#include "transform/transforms.h"

namespace quordsp::backend {

// FFT
Status AALFunc77(double* re, double* im, std::int64_t n) noexcept
{
    return guarded([&] { fft(re, im, n); });
}

// InvFFT
Status AALFunc102(double* re, double* im, std::int64_t n) noexcept
{
    return guarded([&] { inverseFft(re, im, n); });
}

// ReFFT
Status AALFunc147(double* re, double* im, std::int64_t n) noexcept
{
    return guarded([&] { realFft(re, im, n); });
}

// ReInvFFT
Status AALFunc148(double* re, double* im, std::int64_t n) noexcept
{
    return guarded([&] { inverseRealFft(re, im, n); });
}

// Spectrum
Status AALFunc161(double* x, std::int64_t n) noexcept
{
    return guarded([&] { powerSpectrum(x, n); });
}

// AutoPowerSpectrum
Status AALFunc10(const double* x, std::int64_t n, double dt, double* s, double* df) noexcept
{
    return guarded([&] { autoPowerSpectrum(x, n, dt, s, df); });
}

// AmpPhaseSpectrum
Status AALFunc5(const double* x, std::int64_t n, std::int32_t unwrap, double dt, double* amplitude, double* phase,
                double* df) noexcept
{
    return guarded([&] { amplitudePhaseSpectrum(x, n, unwrap != 0, dt, amplitude, phase, df); });
}

} // namespace quordsp::backend
