// IIR designs: coefficients of the direct form, and of a cascade.
#include "frame/entries.h"

namespace entry = quordsp::entry;

AnalysisLibErrType QuorDSP_Bw_Coef(int type, int order, double fs, double fl, double fh, double* coefsA, int countA,
                                   double* coefsB, int countB) noexcept
{
    return entry::Bw_Coef(type, order, fs, fl, fh, coefsA, countA, coefsB, countB);
}

AnalysisLibErrType QuorDSP_Bessel_Coef(int type, int order, double fs, double fl, double fh, double* coefsA, int countA,
                                       double* coefsB, int countB) noexcept
{
    return entry::Bessel_Coef(type, order, fs, fl, fh, coefsA, countA, coefsB, countB);
}

AnalysisLibErrType QuorDSP_Ch_Coef(int type, int order, double fs, double fl, double fh, double ripple, double* coefsA,
                                   int countA, double* coefsB, int countB) noexcept
{
    return entry::Ch_Coef(type, order, fs, fl, fh, ripple, coefsA, countA, coefsB, countB);
}

AnalysisLibErrType QuorDSP_InvCh_Coef(int type, int order, double fs, double fl, double fh, double attenuation,
                                      double* coefsA, int countA, double* coefsB, int countB) noexcept
{
    return entry::InvCh_Coef(type, order, fs, fl, fh, attenuation, coefsA, countA, coefsB, countB);
}

AnalysisLibErrType QuorDSP_Elp_Coef(int type, int order, double fs, double fl, double fh, double ripple,
                                    double attenuation, double* coefsA, int countA, double* coefsB, int countB) noexcept
{
    return entry::Elp_Coef(type, order, fs, fl, fh, ripple, attenuation, coefsA, countA, coefsB, countB);
}

AnalysisLibErrType QuorDSP_Bw_CascadeCoef(double fs, double fl, double fh, QuorDSP_IIRFilter* filter) noexcept
{
    return entry::Bw_CascadeCoef(fs, fl, fh, filter);
}

AnalysisLibErrType QuorDSP_Bessel_CascadeCoef(double fs, double fl, double fh, QuorDSP_IIRFilter* filter) noexcept
{
    return entry::Bessel_CascadeCoef(fs, fl, fh, filter);
}

AnalysisLibErrType QuorDSP_Bessel_CascadeCoefEx(double fs, double fl, double fh, QuorDSP_IIRFilter* filter) noexcept
{
    return entry::Bessel_CascadeCoefEx(fs, fl, fh, filter);
}

AnalysisLibErrType QuorDSP_Ch_CascadeCoef(double fs, double fl, double fh, double ripple,
                                          QuorDSP_IIRFilter* filter) noexcept
{
    return entry::Ch_CascadeCoef(fs, fl, fh, ripple, filter);
}

AnalysisLibErrType QuorDSP_InvCh_CascadeCoef(double fs, double fl, double fh, double attenuation,
                                             QuorDSP_IIRFilter* filter) noexcept
{
    return entry::InvCh_CascadeCoef(fs, fl, fh, attenuation, filter);
}

AnalysisLibErrType QuorDSP_Elp_CascadeCoef(double fs, double fl, double fh, double ripple, double attenuation,
                                           QuorDSP_IIRFilter* filter) noexcept
{
    return entry::Elp_CascadeCoef(fs, fl, fh, ripple, attenuation, filter);
}
