// Filtering with given coefficients, and the FIR filters in one call.
#include "frame/entries.h"

using quordsp::widen;
namespace entry = quordsp::entry;

AnalysisLibErrType QuorDSP_IIRCascadeFiltering(const double* in, int n, QuorDSP_IIRFilter* filter, double* out) noexcept
{
    return entry::IIRCascadeFiltering(in, widen(n), filter, out);
}

AnalysisLibErrType QuorDSP_IIRFiltering(const double* in, int n, const double* coefsA, double* stateA, int countA,
                                        const double* coefsB, double* stateB, int countB, double* out) noexcept
{
    return entry::IIRFiltering(in, widen(n), coefsA, stateA, countA, coefsB, stateB, countB, out);
}

AnalysisLibErrType QuorDSP_ZeroPhaseFiltering(const double* in, int n, const double* coefsA, int countA,
                                              const double* coefsB, int countB, double* out) noexcept
{
    return entry::ZeroPhaseFiltering(in, widen(n), coefsA, countA, coefsB, countB, out);
}

AnalysisLibErrType QuorDSP_MedianFilter(const double* in, int n, int leftRank, int rightRank, double* out) noexcept
{
    return entry::MedianFilter(in, widen(n), widen(leftRank), widen(rightRank), out);
}

AnalysisLibErrType QuorDSP_FIRFiltering(const double* in, int n, const double* coefs, double* state, int taps,
                                        double* out) noexcept
{
    return entry::FIRFiltering(in, widen(n), coefs, state, taps, out);
}

AnalysisLibErrType QuorDSP_EquiRpl_LPFiltering(const double* in, int n, int taps, double fs, double f1, double f2,
                                               double* out) noexcept
{
    return entry::EquiRpl_LPFiltering(in, widen(n), taps, fs, f1, f2, out);
}

AnalysisLibErrType QuorDSP_EquiRpl_HPFiltering(const double* in, int n, int taps, double fs, double f1, double f2,
                                               double* out) noexcept
{
    return entry::EquiRpl_HPFiltering(in, widen(n), taps, fs, f1, f2, out);
}

AnalysisLibErrType QuorDSP_EquiRpl_BPFiltering(const double* in, int n, int taps, double fs, double f1, double f2,
                                               double f3, double f4, double* out) noexcept
{
    return entry::EquiRpl_BPFiltering(in, widen(n), taps, fs, f1, f2, f3, f4, out);
}

AnalysisLibErrType QuorDSP_EquiRpl_BSFiltering(const double* in, int n, int taps, double fs, double f1, double f2,
                                               double f3, double f4, double* out) noexcept
{
    return entry::EquiRpl_BSFiltering(in, widen(n), taps, fs, f1, f2, f3, f4, out);
}

AnalysisLibErrType QuorDSP_Wind_LPFiltering(const double* in, int n, int taps, double fs, double fc, int window,
                                            double windowParameter, double* out) noexcept
{
    return entry::Wind_LPFiltering(in, widen(n), taps, fs, fc, window, windowParameter, out);
}

AnalysisLibErrType QuorDSP_Wind_HPFiltering(const double* in, int n, int taps, double fs, double fc, int window,
                                            double windowParameter, double* out) noexcept
{
    return entry::Wind_HPFiltering(in, widen(n), taps, fs, fc, window, windowParameter, out);
}

AnalysisLibErrType QuorDSP_Wind_BPFiltering(const double* in, int n, int taps, double fs, double fl, double fh,
                                            int window, double windowParameter, double* out) noexcept
{
    return entry::Wind_BPFiltering(in, widen(n), taps, fs, fl, fh, window, windowParameter, out);
}

AnalysisLibErrType QuorDSP_Wind_BSFiltering(const double* in, int n, int taps, double fs, double fl, double fh,
                                            int window, double windowParameter, double* out) noexcept
{
    return entry::Wind_BSFiltering(in, widen(n), taps, fs, fl, fh, window, windowParameter, out);
}

AnalysisLibErrType QuorDSP_WindFIR_Filtering(const double* in, int n, int type, int taps, double fs, double fl,
                                             double fh, int window, double windowParameter, double* out) noexcept
{
    return entry::WindFIR_Filtering(in, widen(n), type, taps, fs, fl, fh, window, windowParameter, out);
}

AnalysisLibErrType QuorDSP_SavitzkyGolayFiltering(const double* in, int n, int order, int sidePoints,
                                                  const double* weights, double* out) noexcept
{
    return entry::SavitzkyGolayFiltering(in, widen(n), order, sidePoints, weights, out);
}

AnalysisLibErrType QuorDSP_FIRNarrowBandFilter(const double* in, int n, QuorDSP_FIRFilter filter, double* out) noexcept
{
    return entry::FIRNarrowBandFilter(in, widen(n), filter, out);
}
