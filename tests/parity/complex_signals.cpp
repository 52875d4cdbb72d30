// Filters of complex signals.
#include "parity/exports.h"

namespace quordsp::parity {

const Family& complexSignals()
{
    static const Family family{{},
                               {
                                   ROW(QuorDSP_CxBw_LPF, "XZnsloYW"),
                                   ROW(QuorDSP_CxBw_HPF, "XZnsloYW"),
                                   ROW(QuorDSP_CxBw_BPF, "XZnslhoYW"),
                                   ROW(QuorDSP_CxBw_BSF, "XZnslhoYW"),
                                   ROW(QuorDSP_CxBssl_LPF, "XZnsloYW"),
                                   ROW(QuorDSP_CxBssl_HPF, "XZnsloYW"),
                                   ROW(QuorDSP_CxBssl_BPF, "XZnslhoYW"),
                                   ROW(QuorDSP_CxBssl_BSF, "XZnslhoYW"),
                                   ROW(QuorDSP_CxCh_LPF, "XZnslroYW"),
                                   ROW(QuorDSP_CxCh_HPF, "XZnslroYW"),
                                   ROW(QuorDSP_CxCh_BPF, "XZnslhroYW"),
                                   ROW(QuorDSP_CxCh_BSF, "XZnslhroYW|?"),
                                   ROW(QuorDSP_CxInvCh_LPF, "XZnslaoYW"),
                                   ROW(QuorDSP_CxInvCh_HPF, "XZnslaoYW"),
                                   ROW(QuorDSP_CxInvCh_BPF, "XZnslhaoYW"),
                                   ROW(QuorDSP_CxInvCh_BSF, "XZnslhaoYW"),
                                   ROW(QuorDSP_CxElp_LPF, "XZnslraoYW"),
                                   ROW(QuorDSP_CxElp_HPF, "XZnslraoYW"),
                                   ROW(QuorDSP_CxElp_BPF, "XZnslhraoYW"),
                                   ROW(QuorDSP_CxElp_BSF, "XZnslhraoYW"),
                                   ROW(QuorDSP_IIRFiltering_CxInput, "XZnAGMxBGMyYW|c?"),
                                   ROW(QuorDSP_CxIIRCascadeFiltering, "XZnIxGMYW|to?"),
                                   ROW(QuorDSP_FIRFiltering_CxInput, "XZnHGMkYW|?"),
                                   ROW(QuorDSP_CxEquiRpl_LPFiltering, "XZnks12YW|?"),
                                   ROW(QuorDSP_CxEquiRpl_HPFiltering, "XZnks12YW|?"),
                                   ROW(QuorDSP_CxEquiRpl_BPFiltering, "XZnks1234YW|?"),
                                   ROW(QuorDSP_CxEquiRpl_BSFiltering, "XZnks1234YW|?"),
                                   ROW(QuorDSP_CxWind_LPFiltering, "XZnkslwbYW|?"),
                                   ROW(QuorDSP_CxWind_HPFiltering, "XZnkslwbYW|?"),
                                   ROW(QuorDSP_CxWind_BPFiltering, "XZnkslhwbYW|?"),
                                   ROW(QuorDSP_CxWind_BSFiltering, "XZnkslhwbYW|?"),
                                   ROW(QuorDSP_CxWindFIR_Filtering, "XZntkslhwbYW|?"),
                                   ROW(QuorDSP_CxFIRNarrowBandFilter, "XZn!YW|67t?"),
                                   ROW(QuorDSP_SavitzkyGolayFiltering_CxInput, "XZnog*YW|e?"),
                               }};
    return family;
}

} // namespace quordsp::parity
