// The sound level is deliberately inert: it does nothing, whatever it is passed, and reports success.
#include "QuorDSP_DAQ.h"

AnalysisLibErrType QuorDSP_Calc_SPL_A(const double*, int, double, double*) noexcept
{
    return QUORDSP_SUCCESS;
}
