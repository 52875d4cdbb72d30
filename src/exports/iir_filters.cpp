// IIR filters in one call: Butterworth, Bessel, Chebyshev, inverse Chebyshev, elliptic; low-pass, high-pass, band-pass,
// band-stop.
#include "frame/entries.h"

using quordsp::widen;
namespace entry = quordsp::entry;

AnalysisLibErrType QuorDSP_Bw_LPF(const double* in, int n, double fs, double fc, int order, double* out) noexcept
{
    return entry::Bw_LPF(in, widen(n), fs, fc, order, out);
}

AnalysisLibErrType QuorDSP_Bw_HPF(const double* in, int n, double fs, double fc, int order, double* out) noexcept
{
    return entry::Bw_HPF(in, widen(n), fs, fc, order, out);
}

AnalysisLibErrType QuorDSP_Bw_BPF(const double* in, int n, double fs, double fl, double fh, int order,
                                  double* out) noexcept
{
    return entry::Bw_BPF(in, widen(n), fs, fl, fh, order, out);
}

AnalysisLibErrType QuorDSP_Bw_BSF(const double* in, int n, double fs, double fl, double fh, int order,
                                  double* out) noexcept
{
    return entry::Bw_BSF(in, widen(n), fs, fl, fh, order, out);
}

AnalysisLibErrType QuorDSP_Bssl_LPF(const double* in, int n, double fs, double fc, int order, double* out) noexcept
{
    return entry::Bssl_LPF(in, widen(n), fs, fc, order, out);
}

AnalysisLibErrType QuorDSP_Bssl_HPF(const double* in, int n, double fs, double fc, int order, double* out) noexcept
{
    return entry::Bssl_HPF(in, widen(n), fs, fc, order, out);
}

AnalysisLibErrType QuorDSP_Bssl_BPF(const double* in, int n, double fs, double fl, double fh, int order,
                                    double* out) noexcept
{
    return entry::Bssl_BPF(in, widen(n), fs, fl, fh, order, out);
}

AnalysisLibErrType QuorDSP_Bssl_BSF(const double* in, int n, double fs, double fl, double fh, int order,
                                    double* out) noexcept
{
    return entry::Bssl_BSF(in, widen(n), fs, fl, fh, order, out);
}

AnalysisLibErrType QuorDSP_Ch_LPF(const double* in, int n, double fs, double fc, double ripple, int order,
                                  double* out) noexcept
{
    return entry::Ch_LPF(in, widen(n), fs, fc, ripple, order, out);
}

AnalysisLibErrType QuorDSP_Ch_HPF(const double* in, int n, double fs, double fc, double ripple, int order,
                                  double* out) noexcept
{
    return entry::Ch_HPF(in, widen(n), fs, fc, ripple, order, out);
}

AnalysisLibErrType QuorDSP_Ch_BPF(const double* in, int n, double fs, double fl, double fh, double ripple, int order,
                                  double* out) noexcept
{
    return entry::Ch_BPF(in, widen(n), fs, fl, fh, ripple, order, out);
}

AnalysisLibErrType QuorDSP_Ch_BSF(const double* in, int n, double fs, double fl, double fh, double ripple, int order,
                                  double* out) noexcept
{
    return entry::Ch_BSF(in, widen(n), fs, fl, fh, ripple, order, out);
}

AnalysisLibErrType QuorDSP_InvCh_LPF(const double* in, int n, double fs, double fc, double attenuation, int order,
                                     double* out) noexcept
{
    return entry::InvCh_LPF(in, widen(n), fs, fc, attenuation, order, out);
}

AnalysisLibErrType QuorDSP_InvCh_HPF(const double* in, int n, double fs, double fc, double attenuation, int order,
                                     double* out) noexcept
{
    return entry::InvCh_HPF(in, widen(n), fs, fc, attenuation, order, out);
}

AnalysisLibErrType QuorDSP_InvCh_BPF(const double* in, int n, double fs, double fl, double fh, double attenuation,
                                     int order, double* out) noexcept
{
    return entry::InvCh_BPF(in, widen(n), fs, fl, fh, attenuation, order, out);
}

AnalysisLibErrType QuorDSP_InvCh_BSF(const double* in, int n, double fs, double fl, double fh, double attenuation,
                                     int order, double* out) noexcept
{
    return entry::InvCh_BSF(in, widen(n), fs, fl, fh, attenuation, order, out);
}

AnalysisLibErrType QuorDSP_Elp_LPF(const double* in, int n, double fs, double fc, double ripple, double attenuation,
                                   int order, double* out) noexcept
{
    return entry::Elp_LPF(in, widen(n), fs, fc, ripple, attenuation, order, out);
}

AnalysisLibErrType QuorDSP_Elp_HPF(const double* in, int n, double fs, double fc, double ripple, double attenuation,
                                   int order, double* out) noexcept
{
    return entry::Elp_HPF(in, widen(n), fs, fc, ripple, attenuation, order, out);
}

AnalysisLibErrType QuorDSP_Elp_BPF(const double* in, int n, double fs, double fl, double fh, double ripple,
                                   double attenuation, int order, double* out) noexcept
{
    return entry::Elp_BPF(in, widen(n), fs, fl, fh, ripple, attenuation, order, out);
}

AnalysisLibErrType QuorDSP_Elp_BSF(const double* in, int n, double fs, double fl, double fh, double ripple,
                                   double attenuation, int order, double* out) noexcept
{
    return entry::Elp_BSF(in, widen(n), fs, fl, fh, ripple, attenuation, order, out);
}
