/*
 * What a client written in C, C++ or against another compiler's ABI sees through the import library. No C library is
 * needed. Returns 0, or the number of the check that failed. The backend may be there or not: haveBackend says which.
 */
#ifndef QUORDSP_TESTS_CLIENT_CHECKS_H
#define QUORDSP_TESTS_CLIENT_CHECKS_H

#include "QuorDSP_DAQ.h"

static int nearlyZero(double value)
{
    return value < 1e-12 && value > -1e-12;
}

static int checkLibrary(int haveBackend)
{
    double line[3] = {3.0, 7.0, 11.0};
    const double impulse[4] = {1.0, 0.0, 0.0, 0.0};
    double out[4] = {-1.0, -1.0, -1.0, -1.0};
    double sample[4] = {3.0, 0.0, 0.0, 0.0};
    AnalysisLibErrType status;

    if (QuorDSP_Calc_SPL_A(0, 0, 0.0, 0) != QUORDSP_SUCCESS)
        return 1;
    linear_regression(line, 3);
    if (!nearlyZero(line[0]) || !nearlyZero(line[1]) || !nearlyZero(line[2]))
        return 2;
    /* by its decorated name: 3 raw units of 2 g, less 1 g */
    status = QuorDSP_Vibration_Acceleration_Euler(&sample[0], 1, 1.0, 2.0, -1.0, 0.0, 0.0, 1.0, -1.0, 1.0, -1.0,
                                                  &sample[1], &sample[2], &sample[3], 0, 0);
    if (status != QUORDSP_SUCCESS || !nearlyZero(sample[1] - 5.0))
        return 6;
    /* by its decorated name, and without a band: there is no design */
    status = QuorDSP_Parks_McClellanCoef(1, 1.0, sample, sample, sample, sample, 0, 0, out, out);
    if (status != QUORDSP_BAD_ARGUMENT || out[0] != -1.0)
        return 7;
    status = QuorDSP_Bw_LPF(impulse, 4, 1000.0, 100.0, 2, out);
    if (!haveBackend)
        return status == QUORDSP_BACKEND_NOT_FOUND && out[0] == -1.0 ? 0 : 3;
    /* b0 of the 2nd-order Butterworth low-pass at a tenth of the sampling frequency, from SciPy: butter(2, 0.2) */
    if (status != QUORDSP_SUCCESS || !nearlyZero(out[0] - 0.06745527388907189))
        return 4;
    return QuorDSP_Bw_LPF(impulse, -1, 1000.0, 100.0, 2, out) == QUORDSP_ERR_COUNT_NOT_POSITIVE ? 0 : 5;
}

#endif
