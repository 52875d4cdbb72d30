// Signal-to-noise ratio in decibels, element by element.
#include <cmath>

#include "QuorDSP_DAQ.h"

AnalysisLibErrType QuorDSP_getSNR(const double* signal, int n, const double* noise, double* snr) noexcept
{
    for (int i = 0; i < n; ++i)
        snr[i] = 10.0 * std::log10(signal[i] / noise[i]);
    return QUORDSP_SUCCESS;
}
