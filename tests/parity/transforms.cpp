// Transforms and spectra.
#include "parity/exports.h"

namespace quordsp::parity {
namespace {

int madeAndDestroyed(Arguments& arguments)
{
    QuorDSP_FFTTable* const table = QuorDSP_CreateFFTTable(arguments.integer('n'));
    QuorDSP_DestroyFFTTable(table);
    return table != nullptr;
}

} // namespace

const Family& transforms()
{
    static const Family family{{{'n', {{60, 1, 2, 3, 4, 7, 16, 97, 128, 143, 210, 1000, 1009, 2048}, {0, -1}}},
                                {'m', {{0, 16, 61, 64, 200}, {-1}}},
                                {'z', {{60, 0, 64}, {-1}}},
                                {'u', {{6, 1, 5, 16}, {0, -1}}},
                                {'v', {{8, 1, 7, 12}, {0, -1}}},
                                {'x', {{0, 4, 9, 16}, {-1}}},
                                {'y', {{0, 5, 13}, {-1}}}},
                               {
                                   ROW(QuorDSP_FFT, "EFn|N"),
                                   ROW(QuorDSP_InvFFT, "EFn|N"),
                                   ROW(QuorDSP_ReFFT, "EFn|N"),
                                   ROW(QuorDSP_ReInvFFT, "EFn|N"),
                                   {"QuorDSP_CreateFFTTable", "|n", madeAndDestroyed},
                                   {"QuorDSP_DestroyFFTTable", "|n", madeAndDestroyed},
                                   ROW(QuorDSP_FFTEx, "XnmTfYW|z?"),
                                   ROW(QuorDSP_CxFFTEx, "XZnmTfYW|z?"),
                                   ROW(QuorDSP_InvFFTEx, "XZnTfY|z"),
                                   ROW(QuorDSP_CxInvFFTEx, "XZnTfYW|z?"),
                                   ROW(QuorDSP_FFT2D, "#uvxyf$|N"),
                                   ROW(QuorDSP_CxFFT2D, "%uvxyf$|N"),
                                   ROW(QuorDSP_InvFFT2D, "%uvf&|N"),
                                   ROW(QuorDSP_CxInvFFT2D, "%uvf@|N"),
                                   ROW(QuorDSP_Spectrum, "En|N"),
                                   ROW(QuorDSP_CxSpectrum, "XZnY"),
                                   ROW(QuorDSP_AutoPowerSpectrum, "XndQR|N"),
                                   ROW(QuorDSP_AmpPhaseSpectrum, "XnfdQKR|N"),
                               }};
    return family;
}

} // namespace quordsp::parity
