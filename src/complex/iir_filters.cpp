// IIR filters of complex signals in one call, in place but for one.
#include "complex/packed_filters.h"

using namespace quordsp;

AnalysisLibErrType QuorDSP_CxBssl_LPF(const double* inRe, const double* inIm, int n, double fs, double fc, int order,
                                      double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxBssl_LPF, {inRe, inIm}, n, {outRe, outIm}, fs, fc, order);
}

AnalysisLibErrType QuorDSP_CxBssl_HPF(const double* inRe, const double* inIm, int n, double fs, double fc, int order,
                                      double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxBssl_HPF, {inRe, inIm}, n, {outRe, outIm}, fs, fc, order);
}

AnalysisLibErrType QuorDSP_CxBssl_BPF(const double* inRe, const double* inIm, int n, double fs, double fl, double fh,
                                      int order, double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxBssl_BPF, {inRe, inIm}, n, {outRe, outIm}, fs, fl, fh, order);
}

AnalysisLibErrType QuorDSP_CxBssl_BSF(const double* inRe, const double* inIm, int n, double fs, double fl, double fh,
                                      int order, double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxBssl_BSF, {inRe, inIm}, n, {outRe, outIm}, fs, fl, fh, order);
}

AnalysisLibErrType QuorDSP_CxBw_LPF(const double* inRe, const double* inIm, int n, double fs, double fc, int order,
                                    double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxBw_LPF, {inRe, inIm}, n, {outRe, outIm}, fs, fc, order);
}

AnalysisLibErrType QuorDSP_CxBw_HPF(const double* inRe, const double* inIm, int n, double fs, double fc, int order,
                                    double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxBw_HPF, {inRe, inIm}, n, {outRe, outIm}, fs, fc, order);
}

AnalysisLibErrType QuorDSP_CxBw_BPF(const double* inRe, const double* inIm, int n, double fs, double fl, double fh,
                                    int order, double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxBw_BPF, {inRe, inIm}, n, {outRe, outIm}, fs, fl, fh, order);
}

AnalysisLibErrType QuorDSP_CxBw_BSF(const double* inRe, const double* inIm, int n, double fs, double fl, double fh,
                                    int order, double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxBw_BSF, {inRe, inIm}, n, {outRe, outIm}, fs, fl, fh, order);
}

AnalysisLibErrType QuorDSP_CxCh_LPF(const double* inRe, const double* inIm, int n, double fs, double fc, double ripple,
                                    int order, double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxCh_LPF, {inRe, inIm}, n, {outRe, outIm}, fs, fc, ripple, order);
}

AnalysisLibErrType QuorDSP_CxCh_HPF(const double* inRe, const double* inIm, int n, double fs, double fc, double ripple,
                                    int order, double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxCh_HPF, {inRe, inIm}, n, {outRe, outIm}, fs, fc, ripple, order);
}

AnalysisLibErrType QuorDSP_CxCh_BPF(const double* inRe, const double* inIm, int n, double fs, double fl, double fh,
                                    double ripple, int order, double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxCh_BPF, {inRe, inIm}, n, {outRe, outIm}, fs, fl, fh, ripple, order);
}

// The only one of its group with a second block. That is intended: the entry is given an output.
AnalysisLibErrType QuorDSP_CxCh_BSF(const double* inRe, const double* inIm, int n, double fs, double fl, double fh,
                                    double ripple, int order, double* outRe, double* outIm) noexcept
{
    return filterToSecondBlock(entry::CxCh_BSF, {inRe, inIm}, n, {outRe, outIm}, fs, fl, fh, ripple, order);
}

AnalysisLibErrType QuorDSP_CxInvCh_LPF(const double* inRe, const double* inIm, int n, double fs, double fc,
                                       double attenuation, int order, double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxInvCh_LPF, {inRe, inIm}, n, {outRe, outIm}, fs, fc, attenuation, order);
}

AnalysisLibErrType QuorDSP_CxInvCh_HPF(const double* inRe, const double* inIm, int n, double fs, double fc,
                                       double attenuation, int order, double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxInvCh_HPF, {inRe, inIm}, n, {outRe, outIm}, fs, fc, attenuation, order);
}

AnalysisLibErrType QuorDSP_CxInvCh_BPF(const double* inRe, const double* inIm, int n, double fs, double fl, double fh,
                                       double attenuation, int order, double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxInvCh_BPF, {inRe, inIm}, n, {outRe, outIm}, fs, fl, fh, attenuation, order);
}

AnalysisLibErrType QuorDSP_CxInvCh_BSF(const double* inRe, const double* inIm, int n, double fs, double fl, double fh,
                                       double attenuation, int order, double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxInvCh_BSF, {inRe, inIm}, n, {outRe, outIm}, fs, fl, fh, attenuation, order);
}

AnalysisLibErrType QuorDSP_CxElp_LPF(const double* inRe, const double* inIm, int n, double fs, double fc, double ripple,
                                     double attenuation, int order, double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxElp_LPF, {inRe, inIm}, n, {outRe, outIm}, fs, fc, ripple, attenuation, order);
}

AnalysisLibErrType QuorDSP_CxElp_HPF(const double* inRe, const double* inIm, int n, double fs, double fc, double ripple,
                                     double attenuation, int order, double* outRe, double* outIm) noexcept
{
    return filterInPlace(entry::CxElp_HPF, {inRe, inIm}, n, {outRe, outIm}, fs, fc, ripple, attenuation, order);
}

AnalysisLibErrType QuorDSP_CxElp_BPF(const double* inRe, const double* inIm, int n, double fs, double fl, double fh,
                                     double ripple, double attenuation, int order, double* outRe,
                                     double* outIm) noexcept
{
    return filterInPlace(entry::CxElp_BPF, {inRe, inIm}, n, {outRe, outIm}, fs, fl, fh, ripple, attenuation, order);
}

AnalysisLibErrType QuorDSP_CxElp_BSF(const double* inRe, const double* inIm, int n, double fs, double fl, double fh,
                                     double ripple, double attenuation, int order, double* outRe,
                                     double* outIm) noexcept
{
    return filterInPlace(entry::CxElp_BSF, {inRe, inIm}, n, {outRe, outIm}, fs, fl, fh, ripple, attenuation, order);
}
