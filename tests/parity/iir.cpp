// IIR filters and designs of real signals, and the median filter.
#include "parity/exports.h"

namespace quordsp::parity {

const Family& iir()
{
    static const Family family{{{'i', {{2, 0, 5, 200}, {-1}}}, {'z', {{-1, 3, 0, 7}, {129, 1000}}}},
                               {
                                   ROW(QuorDSP_Bw_LPF, "XnsloY|N"),
                                   ROW(QuorDSP_Bw_HPF, "XnsloY"),
                                   ROW(QuorDSP_Bw_BPF, "XnslhoY|N"),
                                   ROW(QuorDSP_Bw_BSF, "XnslhoY"),
                                   ROW(QuorDSP_Bssl_LPF, "XnsloY|N"),
                                   ROW(QuorDSP_Bssl_HPF, "XnsloY"),
                                   ROW(QuorDSP_Bssl_BPF, "XnslhoY"),
                                   ROW(QuorDSP_Bssl_BSF, "XnslhoY"),
                                   ROW(QuorDSP_Ch_LPF, "XnslroY|N"),
                                   ROW(QuorDSP_Ch_HPF, "XnslroY"),
                                   ROW(QuorDSP_Ch_BPF, "XnslhroY"),
                                   ROW(QuorDSP_Ch_BSF, "XnslhroY"),
                                   ROW(QuorDSP_InvCh_LPF, "XnslaoY|N"),
                                   ROW(QuorDSP_InvCh_HPF, "XnslaoY"),
                                   ROW(QuorDSP_InvCh_BPF, "XnslhaoY"),
                                   ROW(QuorDSP_InvCh_BSF, "XnslhaoY"),
                                   ROW(QuorDSP_Elp_LPF, "XnslraoY|N"),
                                   ROW(QuorDSP_Elp_HPF, "XnslraoY"),
                                   ROW(QuorDSP_Elp_BPF, "XnslhraoY"),
                                   ROW(QuorDSP_Elp_BSF, "XnslhraoY"),
                                   ROW(QuorDSP_Bw_Coef, "toslhPpVq|N"),
                                   ROW(QuorDSP_Bessel_Coef, "toslhPpVq|N"),
                                   ROW(QuorDSP_Ch_Coef, "toslhrPpVq|N"),
                                   ROW(QuorDSP_InvCh_Coef, "toslhaPpVq|N"),
                                   ROW(QuorDSP_Elp_Coef, "toslhraPpVq|N"),
                                   ROW(QuorDSP_Bw_CascadeCoef, "slhJ|toN"),
                                   ROW(QuorDSP_Bessel_CascadeCoef, "slhJ|to"),
                                   ROW(QuorDSP_Bessel_CascadeCoefEx, "slhJ|to"),
                                   ROW(QuorDSP_Ch_CascadeCoef, "slhrJ|to"),
                                   ROW(QuorDSP_InvCh_CascadeCoef, "slhaJ|to"),
                                   ROW(QuorDSP_Elp_CascadeCoef, "slhraJ|to"),
                                   ROW(QuorDSP_IIRFiltering, "XnALxBUyY|cN+"),
                                   ROW(QuorDSP_IIRCascadeFiltering, "XnIY|toN+"),
                                   ROW(QuorDSP_ZeroPhaseFiltering, "XnAxByY|cN"),
                                   ROW(QuorDSP_MedianFilter, "XnizY|N"),
                               }};
    return family;
}

} // namespace quordsp::parity
