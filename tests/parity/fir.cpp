// FIR designs, and FIR filters of real signals.
#include "parity/exports.h"

namespace quordsp::parity {
namespace {

int allocatedAndFreed(Arguments&)
{
    QuorDSP_FIRFilter* const record = QuorDSP_AllocFIRFilterPtr();
    QuorDSP_FreeFIRFilterPtr(record);
    return record != nullptr;
}

int freedWithDesign(Arguments& arguments)
{
    QuorDSP_FreeFIRFilterPtr(nullptr);
    QuorDSP_FIRFilter* const record = QuorDSP_AllocFIRFilterPtr();
    const int status = QuorDSP_FIRNarrowBandCoef(1000, 30, 90, 100, 0.01, 60, arguments.integer('t'), record);
    QuorDSP_FreeFIRFilterPtr(record);
    return status;
}

} // namespace

const Family& fir()
{
    static const Family family{{{'v', {{4, 1, 2, 3, 5}, {0, 6}}}, // the windows of the older designs
                                {'i', {{1, 2, 3}, {0, 4}}},       // the types of QuorDSP_Equi_Ripple
                                {'u', {{0, 1, 2}, {3, -1}}},      // those of QuorDSP_Parks_McClellanCoef
                                {'r', {{0.01, 0.1, 0.001}, {0, -1}}},
                                {'o', {{2, 0, 1, 3, 4, 6}, {-1, 11}}}},
                               {
                                   ROW(QuorDSP_Wind_LPF, "slkCv|N"),
                                   ROW(QuorDSP_Wind_HPF, "slkCv"),
                                   ROW(QuorDSP_Wind_BPF, "slhkCv"),
                                   ROW(QuorDSP_Wind_BSF, "slhkCv"),
                                   ROW(QuorDSP_Ksr_LPF, "slkCb|N"),
                                   ROW(QuorDSP_Ksr_HPF, "slkCb"),
                                   ROW(QuorDSP_Ksr_BPF, "slhkCb"),
                                   ROW(QuorDSP_Ksr_BSF, "slhkCb"),
                                   ROW(QuorDSP_FIR_Coef, "tslhkC|N"),
                                   ROW(QuorDSP_WindFIR_Filter, "tslhkwbC|N"),
                                   ROW(QuorDSP_EquiRpl_LPF, "s12kCR|N"),
                                   ROW(QuorDSP_EquiRpl_HPF, "s12kCR"),
                                   ROW(QuorDSP_EquiRpl_BPF, "s1234kCR"),
                                   ROW(QuorDSP_EquiRpl_BSF, "s1234kCR"),
                                   ROW(QuorDSP_Equi_Ripple, "5()s=ikCR|jN"),
                                   ROW(QuorDSP_Parks_McClellanCoef, "ks(<>)5uCR|j"),
                                   ROW(QuorDSP_SavitzkyGolayCoef, "og*f[]|eN"),
                                   {"QuorDSP_AllocFIRFilterPtr", "", allocatedAndFreed},
                                   {"QuorDSP_FreeFIRFilterPtr", "|t", freedWithDesign},
                                   ROW(QuorDSP_FIRNarrowBandCoef, "s67lratD|N"),
                                   ROW(QuorDSP_FIRFiltering, "XnHSkY|N+"),
                                   ROW(QuorDSP_EquiRpl_LPFiltering, "Xnks12Y|N"),
                                   ROW(QuorDSP_EquiRpl_HPFiltering, "Xnks12Y"),
                                   ROW(QuorDSP_EquiRpl_BPFiltering, "Xnks1234Y"),
                                   ROW(QuorDSP_EquiRpl_BSFiltering, "Xnks1234Y"),
                                   ROW(QuorDSP_Wind_LPFiltering, "XnkslwbY|N"),
                                   ROW(QuorDSP_Wind_HPFiltering, "XnkslwbY"),
                                   ROW(QuorDSP_Wind_BPFiltering, "XnkslhwbY"),
                                   ROW(QuorDSP_Wind_BSFiltering, "XnkslhwbY"),
                                   ROW(QuorDSP_WindFIR_Filtering, "XntkslhwbY"),
                                   ROW(QuorDSP_FIRNarrowBandFilter, "Xn!Y|67t"),
                                   ROW(QuorDSP_SavitzkyGolayFiltering, "Xnog*Y|eN"),
                               }};
    return family;
}

} // namespace quordsp::parity
