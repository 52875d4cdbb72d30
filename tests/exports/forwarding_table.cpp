#include "exports/forwarding_table.h"

#include <array>

#define ROW(name, entry, shape)                                                                                        \
    Forwarded                                                                                                          \
    {                                                                                                                  \
        #name, entry, shape, &callWith<decltype(name)>                                                                 \
    }

std::span<const Forwarded> forwardedExports()
{
    static const std::array rows{
        // IIR band filters
        ROW(QuorDSP_Bw_LPF, "AALFunc21", "s:pzddip"),
        ROW(QuorDSP_Bw_HPF, "AALFunc20", "s:pzddip"),
        ROW(QuorDSP_Bssl_LPF, "AALFunc399", "s:pzddip"),
        ROW(QuorDSP_Bssl_HPF, "AALFunc400", "s:pzddip"),
        ROW(QuorDSP_Bw_BPF, "AALFunc16", "s:pzdddip"),
        ROW(QuorDSP_Bw_BSF, "AALFunc17", "s:pzdddip"),
        ROW(QuorDSP_Bssl_BPF, "AALFunc401", "s:pzdddip"),
        ROW(QuorDSP_Bssl_BSF, "AALFunc402", "s:pzdddip"),
        ROW(QuorDSP_Ch_LPF, "AALFunc27", "s:pzdddip"),
        ROW(QuorDSP_Ch_HPF, "AALFunc26", "s:pzdddip"),
        ROW(QuorDSP_Ch_BPF, "AALFunc22", "s:pzddddip"),
        ROW(QuorDSP_Ch_BSF, "AALFunc23", "s:pzddddip"),
        ROW(QuorDSP_InvCh_LPF, "AALFunc101", "s:pzdddip"),
        ROW(QuorDSP_InvCh_HPF, "AALFunc100", "s:pzdddip"),
        ROW(QuorDSP_InvCh_BPF, "AALFunc96", "s:pzddddip"),
        ROW(QuorDSP_InvCh_BSF, "AALFunc97", "s:pzddddip"),
        ROW(QuorDSP_Elp_LPF, "AALFunc64", "s:pzddddip"),
        ROW(QuorDSP_Elp_HPF, "AALFunc63", "s:pzddddip"),
        ROW(QuorDSP_Elp_BPF, "AALFunc59", "s:pzdddddip"),
        ROW(QuorDSP_Elp_BSF, "AALFunc60", "s:pzdddddip"),
        // IIR coefficients and filtering
        ROW(QuorDSP_Bw_Coef, "AALFunc19", "s:iidddpipi"),
        ROW(QuorDSP_Bessel_Coef, "AALFunc13", "s:iidddpipi"),
        ROW(QuorDSP_Ch_Coef, "AALFunc25", "s:iiddddpipi"),
        ROW(QuorDSP_InvCh_Coef, "AALFunc99", "s:iiddddpipi"),
        ROW(QuorDSP_Elp_Coef, "AALFunc62", "s:iidddddpipi"),
        ROW(QuorDSP_Bw_CascadeCoef, "AALFunc18", "s:dddp"),
        ROW(QuorDSP_Bessel_CascadeCoef, "AALFunc12", "s:dddp"),
        ROW(QuorDSP_Bessel_CascadeCoefEx, "AALFunc471", "s:dddp"),
        ROW(QuorDSP_Ch_CascadeCoef, "AALFunc24", "s:ddddp"),
        ROW(QuorDSP_InvCh_CascadeCoef, "AALFunc98", "s:ddddp"),
        ROW(QuorDSP_Elp_CascadeCoef, "AALFunc61", "s:dddddp"),
        ROW(QuorDSP_IIRCascadeFiltering, "AALFunc91", "s:pzpp"),
        ROW(QuorDSP_IIRFiltering, "AALFunc92", "s:pzppippip"),
        ROW(QuorDSP_ZeroPhaseFiltering, "AALFunc385", "s:pzpipip"),
        ROW(QuorDSP_MedianFilter, "AALFunc407", "s:pzzzp"),
        // FIR design
        ROW(QuorDSP_Wind_LPF, "AALFunc189", "s:ddipi"),
        ROW(QuorDSP_Wind_HPF, "AALFunc188", "s:ddipi"),
        ROW(QuorDSP_Wind_BPF, "AALFunc186", "s:dddipi"),
        ROW(QuorDSP_Wind_BSF, "AALFunc187", "s:dddipi"),
        ROW(QuorDSP_Ksr_LPF, "AALFunc112", "s:ddipd"),
        ROW(QuorDSP_Ksr_HPF, "AALFunc111", "s:ddipd"),
        ROW(QuorDSP_Ksr_BPF, "AALFunc109", "s:dddipd"),
        ROW(QuorDSP_Ksr_BSF, "AALFunc110", "s:dddipd"),
        ROW(QuorDSP_EquiRpl_LPF, "AALFunc69", "s:dddipp"),
        ROW(QuorDSP_EquiRpl_HPF, "AALFunc68", "s:dddipp"),
        ROW(QuorDSP_EquiRpl_BPF, "AALFunc66", "s:dddddipp"),
        ROW(QuorDSP_EquiRpl_BSF, "AALFunc67", "s:dddddipp"),
        ROW(QuorDSP_Equi_Ripple, "AALFunc65", "s:ippdpiipp"),
        ROW(QuorDSP_FIR_Coef, "AALFunc79", "s:idddip"),
        ROW(QuorDSP_WindFIR_Filter, "AALFunc335", "s:idddiidp"),
        ROW(QuorDSP_FIRNarrowBandCoef, "AALFunc409", "s:ddddddip"),
        ROW(QuorDSP_SavitzkyGolayCoef, "AALFunc355", "s:iipipp"),
        // FIR filtering
        ROW(QuorDSP_FIRFiltering, "AALFunc352", "s:pzppip"),
        ROW(QuorDSP_EquiRpl_LPFiltering, "AALFunc472", "s:pzidddp"),
        ROW(QuorDSP_EquiRpl_HPFiltering, "AALFunc473", "s:pzidddp"),
        ROW(QuorDSP_EquiRpl_BPFiltering, "AALFunc474", "s:pzidddddp"),
        ROW(QuorDSP_EquiRpl_BSFiltering, "AALFunc475", "s:pzidddddp"),
        ROW(QuorDSP_Wind_LPFiltering, "AALFunc481", "s:pziddidp"),
        ROW(QuorDSP_Wind_HPFiltering, "AALFunc482", "s:pziddidp"),
        ROW(QuorDSP_Wind_BPFiltering, "AALFunc483", "s:pzidddidp"),
        ROW(QuorDSP_Wind_BSFiltering, "AALFunc484", "s:pzidddidp"),
        ROW(QuorDSP_WindFIR_Filtering, "AALFunc480", "s:pziidddidp"),
        ROW(QuorDSP_SavitzkyGolayFiltering, "AALFunc356", "s:pziipp"),
        ROW(QuorDSP_FIRNarrowBandFilter, "AALFunc410", "s:pzrp"),
        ROW(QuorDSP_AllocFIRFilterPtr, "AALFunc491", "h:"),
        ROW(QuorDSP_FreeFIRFilterPtr, "AALFunc492", "n:p"),
        // Transforms and spectra
        ROW(QuorDSP_FFT, "AALFunc77", "s:ppz"),
        ROW(QuorDSP_InvFFT, "AALFunc102", "s:ppz"),
        ROW(QuorDSP_ReFFT, "AALFunc147", "s:ppz"),
        ROW(QuorDSP_ReInvFFT, "AALFunc148", "s:ppz"),
        ROW(QuorDSP_FFT2D, "AALFunc266", "s:pzzzzip"),
        ROW(QuorDSP_CxFFT2D, "AALFunc267", "s:pzzzzip"),
        ROW(QuorDSP_InvFFT2D, "AALFunc268", "s:pzzip"),
        ROW(QuorDSP_CxInvFFT2D, "AALFunc269", "s:pzzip"),
        ROW(QuorDSP_Spectrum, "AALFunc161", "s:pz"),
        ROW(QuorDSP_AutoPowerSpectrum, "AALFunc10", "s:pzdpp"),
        ROW(QuorDSP_AmpPhaseSpectrum, "AALFunc5", "s:pzidppp"),
        ROW(QuorDSP_CreateFFTTable, "AALFunc260", "h:z"),
        ROW(QuorDSP_DestroyFFTTable, "AALFunc261", "n:p"),
        // Statistics and detection
        ROW(QuorDSP_MaxMin1D, "AALFunc120", "s:pZpppp"),
        ROW(QuorDSP_Sort, "AALFunc160", "s:pzip"),
        ROW(QuorDSP_PeakDetector, "AALFunc194", "s:pzdziiipppp"),
    };
    static_assert(rows.size() == 82);
    return rows;
}
