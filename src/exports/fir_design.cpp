// FIR designs: windowed, Kaiser, equiripple, narrow-band, Savitzky-Golay.
#include "frame/entries.h"

namespace entry = quordsp::entry;

AnalysisLibErrType QuorDSP_Wind_LPF(double fs, double fc, int taps, double* coefs, int windType) noexcept
{
    return entry::Wind_LPF(fs, fc, taps, coefs, windType);
}

AnalysisLibErrType QuorDSP_Wind_HPF(double fs, double fc, int taps, double* coefs, int windType) noexcept
{
    return entry::Wind_HPF(fs, fc, taps, coefs, windType);
}

AnalysisLibErrType QuorDSP_Wind_BPF(double fs, double fl, double fh, int taps, double* coefs, int windType) noexcept
{
    return entry::Wind_BPF(fs, fl, fh, taps, coefs, windType);
}

AnalysisLibErrType QuorDSP_Wind_BSF(double fs, double fl, double fh, int taps, double* coefs, int windType) noexcept
{
    return entry::Wind_BSF(fs, fl, fh, taps, coefs, windType);
}

AnalysisLibErrType QuorDSP_Ksr_LPF(double fs, double fc, int taps, double* coefs, double beta) noexcept
{
    return entry::Ksr_LPF(fs, fc, taps, coefs, beta);
}

AnalysisLibErrType QuorDSP_Ksr_HPF(double fs, double fc, int taps, double* coefs, double beta) noexcept
{
    return entry::Ksr_HPF(fs, fc, taps, coefs, beta);
}

AnalysisLibErrType QuorDSP_Ksr_BPF(double fs, double fl, double fh, int taps, double* coefs, double beta) noexcept
{
    return entry::Ksr_BPF(fs, fl, fh, taps, coefs, beta);
}

AnalysisLibErrType QuorDSP_Ksr_BSF(double fs, double fl, double fh, int taps, double* coefs, double beta) noexcept
{
    return entry::Ksr_BSF(fs, fl, fh, taps, coefs, beta);
}

AnalysisLibErrType QuorDSP_EquiRpl_LPF(double fs, double f1, double f2, int taps, double* coefs,
                                       double* ripple) noexcept
{
    return entry::EquiRpl_LPF(fs, f1, f2, taps, coefs, ripple);
}

AnalysisLibErrType QuorDSP_EquiRpl_HPF(double fs, double f1, double f2, int taps, double* coefs,
                                       double* ripple) noexcept
{
    return entry::EquiRpl_HPF(fs, f1, f2, taps, coefs, ripple);
}

AnalysisLibErrType QuorDSP_EquiRpl_BPF(double fs, double f1, double f2, double f3, double f4, int taps, double* coefs,
                                       double* ripple) noexcept
{
    return entry::EquiRpl_BPF(fs, f1, f2, f3, f4, taps, coefs, ripple);
}

AnalysisLibErrType QuorDSP_EquiRpl_BSF(double fs, double f1, double f2, double f3, double f4, int taps, double* coefs,
                                       double* ripple) noexcept
{
    return entry::EquiRpl_BSF(fs, f1, f2, f3, f4, taps, coefs, ripple);
}

AnalysisLibErrType QuorDSP_Equi_Ripple(int bandCount, const double* amplitudes, const double* weights, double fs,
                                       const double* edges, int type, int taps, double* coefs, double* ripple) noexcept
{
    return entry::Equi_Ripple(bandCount, amplitudes, weights, fs, edges, type, taps, coefs, ripple);
}

AnalysisLibErrType QuorDSP_FIR_Coef(int type, double fs, double fl, double fh, int taps, double* coefs) noexcept
{
    return entry::FIR_Coef(type, fs, fl, fh, taps, coefs);
}

AnalysisLibErrType QuorDSP_WindFIR_Filter(int type, double fs, double fl, double fh, int taps, int window,
                                          double windowParameter, double* coefs) noexcept
{
    return entry::WindFIR_Filter(type, fs, fl, fh, taps, window, windowParameter, coefs);
}

AnalysisLibErrType QuorDSP_FIRNarrowBandCoef(double fs, double passBand, double stopBand, double centerFrequency,
                                             double ripple, double attenuation, int type,
                                             QuorDSP_FIRFilter* filter) noexcept
{
    return entry::FIRNarrowBandCoef(fs, passBand, stopBand, centerFrequency, ripple, attenuation, type, filter);
}

AnalysisLibErrType QuorDSP_SavitzkyGolayCoef(int order, int sidePoints, const double* weights, int computeDiffFilters,
                                             double* filters, double* diffFilters) noexcept
{
    return entry::SavitzkyGolayCoef(order, sidePoints, weights, computeDiffFilters, filters, diffFilters);
}
