// Fourier transforms and spectra.
#include "frame/entries.h"

using quordsp::widen;
namespace entry = quordsp::entry;

AnalysisLibErrType QuorDSP_FFT(double* re, double* im, int n) noexcept
{
    return entry::FFT(re, im, widen(n));
}

AnalysisLibErrType QuorDSP_InvFFT(double* re, double* im, int n) noexcept
{
    return entry::InvFFT(re, im, widen(n));
}

AnalysisLibErrType QuorDSP_ReFFT(double* re, double* im, int n) noexcept
{
    return entry::ReFFT(re, im, widen(n));
}

AnalysisLibErrType QuorDSP_ReInvFFT(double* re, double* im, int n) noexcept
{
    return entry::ReInvFFT(re, im, widen(n));
}

AnalysisLibErrType QuorDSP_FFT2D(const double* in, int rows, int columns, int resultRows, int resultColumns, int shift,
                                 double* out) noexcept
{
    return entry::FFT2D(in, widen(rows), widen(columns), widen(resultRows), widen(resultColumns), shift, out);
}

AnalysisLibErrType QuorDSP_CxFFT2D(const double* in, int rows, int columns, int resultRows, int resultColumns,
                                   int shift, double* out) noexcept
{
    return entry::CxFFT2D(in, widen(rows), widen(columns), widen(resultRows), widen(resultColumns), shift, out);
}

AnalysisLibErrType QuorDSP_InvFFT2D(const double* in, int rows, int columns, int shifted, double* out) noexcept
{
    return entry::InvFFT2D(in, widen(rows), widen(columns), shifted, out);
}

AnalysisLibErrType QuorDSP_CxInvFFT2D(const double* in, int rows, int columns, int shifted, double* out) noexcept
{
    return entry::CxInvFFT2D(in, widen(rows), widen(columns), shifted, out);
}

AnalysisLibErrType QuorDSP_Spectrum(double* x, int n) noexcept
{
    return entry::Spectrum(x, widen(n));
}

AnalysisLibErrType QuorDSP_AutoPowerSpectrum(const double* in, int n, double dt, double* out, double* df) noexcept
{
    return entry::AutoPowerSpectrum(in, widen(n), dt, out, df);
}

AnalysisLibErrType QuorDSP_AmpPhaseSpectrum(const double* in, int n, int unwrap, double dt, double* amplitude,
                                            double* phase, double* df) noexcept
{
    return entry::AmpPhaseSpectrum(in, widen(n), unwrap, dt, amplitude, phase, df);
}
