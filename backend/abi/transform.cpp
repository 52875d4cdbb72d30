#include "nianlys.h"
#include "status.h"
#include "transform/extended.h"
#include "transform/fft_table.h"
#include "transform/matrix.h"
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

// CreateFFTTable
FftTable* AALFunc260(std::int64_t size) noexcept
{
    return createTable(size);
}

// DestroyFFTTable
void AALFunc261(FftTable* table) noexcept
{
    delete table;
}

// FFTEx
Status AALFunc262(const double* x, std::int64_t n, std::int64_t fftSize, const FftTable* table, std::int32_t shift,
                  Complex* y) noexcept
{
    return guarded([&] { extendedFft(x, n, fftSize, table, shift != 0, y); });
}

// CxFFTEx
Status AALFunc263(const Complex* x, std::int64_t n, std::int64_t fftSize, const FftTable* table, std::int32_t shift,
                  Complex* y) noexcept
{
    return guarded([&] { extendedFft(x, n, fftSize, table, shift != 0, y); });
}

// InvFFTEx
Status AALFunc264(const Complex* x, std::int64_t n, const FftTable* table, std::int32_t shifted, double* y) noexcept
{
    return guarded([&] { extendedInverseFft(x, n, table, shifted != 0, y); });
}

// CxInvFFTEx
Status AALFunc265(const Complex* x, std::int64_t n, const FftTable* table, std::int32_t shifted, Complex* y) noexcept
{
    return guarded([&] { extendedInverseFft(x, n, table, shifted != 0, y); });
}

// FFT2D
Status AALFunc266(const double* x, std::int64_t rows, std::int64_t columns, std::int64_t resultRows,
                  std::int64_t resultColumns, std::int32_t shift, Complex* y) noexcept
{
    return guarded([&] { matrixFft(x, {rows, columns}, {resultRows, resultColumns}, shift != 0, y); });
}

// CxFFT2D
Status AALFunc267(const Complex* x, std::int64_t rows, std::int64_t columns, std::int64_t resultRows,
                  std::int64_t resultColumns, std::int32_t shift, Complex* y) noexcept
{
    return guarded([&] { matrixFft(x, {rows, columns}, {resultRows, resultColumns}, shift != 0, y); });
}

// InvFFT2D
Status AALFunc268(const Complex* x, std::int64_t rows, std::int64_t columns, std::int32_t shifted, double* y) noexcept
{
    return guarded([&] { matrixInverseFft(x, {rows, columns}, shifted != 0, y); });
}

// CxInvFFT2D
Status AALFunc269(const Complex* x, std::int64_t rows, std::int64_t columns, std::int32_t shifted, Complex* y) noexcept
{
    return guarded([&] { matrixInverseFft(x, {rows, columns}, shifted != 0, y); });
}

// Spectrum
Status AALFunc161(double* x, std::int64_t n) noexcept
{
    return guarded([&] { powerSpectrum(x, n); });
}

// CxSpectrum
Status AALFunc467(const Complex* x, std::int64_t n, double* s) noexcept
{
    return guarded([&] { powerSpectrum(x, n, s); });
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
