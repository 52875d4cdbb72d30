// The transforms of a chosen size or with a table, and the complex spectrum.
#include "complex/packed_filters.h"

using namespace quordsp;

// The backend may write all m bins; n of them are handed out.
AnalysisLibErrType QuorDSP_FFTEx(const double* x, int n, int m, const QuorDSP_FFTTable* p, int flag, double* outRe,
                                 double* outIm) noexcept
{
    const PackedBlock output{n, widen(m)};
    if (output.isMissing())
        return QUORDSP_BACKEND_NOT_FOUND;
    const Status status = entry::FFTEx(x, widen(n), widen(m), p, flag, output.data());
    output.unpack({outRe, outIm});
    return status;
}

AnalysisLibErrType QuorDSP_CxFFTEx(const double* inRe, const double* inIm, int n, int m, const QuorDSP_FFTTable* p,
                                   int flag, double* outRe, double* outIm) noexcept
{
    PackedBlock input{n};
    PackedBlock output{n, widen(m)};
    if (isAnyMissing(input, output))
        return QUORDSP_BACKEND_NOT_FOUND;
    input.pack({inRe, inIm});
    const Status status = entry::CxFFTEx(input.data(), widen(n), widen(m), p, flag, output.data());
    output.unpack({outRe, outIm});
    release(input, output);
    return status;
}

AnalysisLibErrType QuorDSP_InvFFTEx(const double* inRe, const double* inIm, int n, const QuorDSP_FFTTable* p, int flag,
                                    double* out) noexcept
{
    const PackedBlock input{n};
    if (input.isMissing())
        return QUORDSP_BACKEND_NOT_FOUND;
    input.pack({inRe, inIm});
    return entry::InvFFTEx(input.data(), widen(n), p, flag, out);
}

AnalysisLibErrType QuorDSP_CxInvFFTEx(const double* inRe, const double* inIm, int n, const QuorDSP_FFTTable* p,
                                      int flag, double* outRe, double* outIm) noexcept
{
    return filterToSecondBlock(entry::CxInvFFTEx, {inRe, inIm}, n, {outRe, outIm}, p, flag);
}

AnalysisLibErrType QuorDSP_CxSpectrum(const double* inRe, const double* inIm, int n, double* out) noexcept
{
    const PackedBlock input{n};
    if (input.isMissing())
        return QUORDSP_BACKEND_NOT_FOUND;
    input.pack({inRe, inIm});
    return entry::CxSpectrum(input.data(), widen(n), out);
}
