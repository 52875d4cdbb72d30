// FIR filters of complex signals in one call.
#include "complex/packed_filters.h"

using namespace quordsp;

AnalysisLibErrType QuorDSP_CxEquiRpl_LPFiltering(const double* inRe, const double* inIm, int n, int taps, double fs,
                                                 double f1, double f2, double* outRe, double* outIm) noexcept
{
    return filterToSecondBlock(entry::CxEquiRpl_LPFiltering, {inRe, inIm}, n, {outRe, outIm}, taps, fs, f1, f2);
}

AnalysisLibErrType QuorDSP_CxEquiRpl_HPFiltering(const double* inRe, const double* inIm, int n, int taps, double fs,
                                                 double f1, double f2, double* outRe, double* outIm) noexcept
{
    return filterToSecondBlock(entry::CxEquiRpl_HPFiltering, {inRe, inIm}, n, {outRe, outIm}, taps, fs, f1, f2);
}

AnalysisLibErrType QuorDSP_CxEquiRpl_BPFiltering(const double* inRe, const double* inIm, int n, int taps, double fs,
                                                 double f1, double f2, double f3, double f4, double* outRe,
                                                 double* outIm) noexcept
{
    return filterToSecondBlock(entry::CxEquiRpl_BPFiltering, {inRe, inIm}, n, {outRe, outIm}, taps, fs, f1, f2, f3, f4);
}

AnalysisLibErrType QuorDSP_CxEquiRpl_BSFiltering(const double* inRe, const double* inIm, int n, int taps, double fs,
                                                 double f1, double f2, double f3, double f4, double* outRe,
                                                 double* outIm) noexcept
{
    return filterToSecondBlock(entry::CxEquiRpl_BSFiltering, {inRe, inIm}, n, {outRe, outIm}, taps, fs, f1, f2, f3, f4);
}

AnalysisLibErrType QuorDSP_CxWind_LPFiltering(const double* inRe, const double* inIm, int n, int taps, double fs,
                                              double fc, int window, double windowParameter, double* outRe,
                                              double* outIm) noexcept
{
    return filterToSecondBlock(entry::CxWind_LPFiltering, {inRe, inIm}, n, {outRe, outIm}, taps, fs, fc, window,
                               windowParameter);
}

AnalysisLibErrType QuorDSP_CxWind_HPFiltering(const double* inRe, const double* inIm, int n, int taps, double fs,
                                              double fc, int window, double windowParameter, double* outRe,
                                              double* outIm) noexcept
{
    return filterToSecondBlock(entry::CxWind_HPFiltering, {inRe, inIm}, n, {outRe, outIm}, taps, fs, fc, window,
                               windowParameter);
}

AnalysisLibErrType QuorDSP_CxWind_BPFiltering(const double* inRe, const double* inIm, int n, int taps, double fs,
                                              double fl, double fh, int window, double windowParameter, double* outRe,
                                              double* outIm) noexcept
{
    return filterToSecondBlock(entry::CxWind_BPFiltering, {inRe, inIm}, n, {outRe, outIm}, taps, fs, fl, fh, window,
                               windowParameter);
}

AnalysisLibErrType QuorDSP_CxWind_BSFiltering(const double* inRe, const double* inIm, int n, int taps, double fs,
                                              double fl, double fh, int window, double windowParameter, double* outRe,
                                              double* outIm) noexcept
{
    return filterToSecondBlock(entry::CxWind_BSFiltering, {inRe, inIm}, n, {outRe, outIm}, taps, fs, fl, fh, window,
                               windowParameter);
}

AnalysisLibErrType QuorDSP_CxWindFIR_Filtering(const double* inRe, const double* inIm, int n, int type, int taps,
                                               double fs, double fl, double fh, int window, double windowParameter,
                                               double* outRe, double* outIm) noexcept
{
    return filterToSecondBlock(entry::CxWindFIR_Filtering, {inRe, inIm}, n, {outRe, outIm}, type, taps, fs, fl, fh,
                               window, windowParameter);
}
