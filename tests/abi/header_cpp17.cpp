// The public header alone in C++17: sizes, layouts and a type of each kind. With QUORDSP_NO_ANALYSIS_LIB_ERR_TYPE
// defined this file is a client that brings its own status type.
#ifdef QUORDSP_NO_ANALYSIS_LIB_ERR_TYPE
enum AnalysisLibErrType { NoErr = 0, OutOfMemErr = -20001, LargestErr = 2147483647 };
#endif
#include "QuorDSP_DAQ.h"

#include <stddef.h>

static_assert(sizeof(AnalysisLibErrType) == 4);
#ifndef QUORDSP_NO_ANALYSIS_LIB_ERR_TYPE
static_assert(QUORDSP_BACKEND_NOT_FOUND == -5093 && QUORDSP_ENTRY_NOT_FOUND == -5094);
static_assert(QUORDSP_INVALID_THERMOCOUPLE_TYPE == 0x7FFFFFFF);
#endif

static_assert(sizeof(QuorDSP_IIRFilter) == 56 && offsetof(QuorDSP_IIRFilter, reverse) == 16);
static_assert(offsetof(QuorDSP_IIRFilter, forward) == 32 && offsetof(QuorDSP_IIRFilter, state) == 48);
static_assert(sizeof(QuorDSP_FIRFilter) == 40 && offsetof(QuorDSP_FIRFilter, modelCount) == 8);
static_assert(offsetof(QuorDSP_FIRFilter, model) == 16 && offsetof(QuorDSP_FIRFilter, image) == 32);

// Each alias compiles only when the function has exactly the type that it is cast to.
using Status = AnalysisLibErrType;
template <class Function>
using Pointer = Function*;
using Filter =
    decltype(static_cast<Pointer<Status(const double*, int, double, double, int, double*)>>(&QuorDSP_Bw_LPF));
using Extrema = decltype(static_cast<Pointer<Status(const double*, int64_t, double*, int64_t*, double*, int64_t*)>>(
    &QuorDSP_MaxMin1D));
using ByValue = decltype(static_cast<Pointer<Status(const double*, int, QuorDSP_FIRFilter, double*)>>(
    &QuorDSP_FIRNarrowBandFilter));
using Table = decltype(static_cast<Pointer<QuorDSP_FFTTable*(int)>>(&QuorDSP_CreateFFTTable));
using File = decltype(static_cast<Pointer<Status(const char*, const float*, int, unsigned)>>(&QuorDSP_WriteWAV));
using Line = decltype(static_cast<Pointer<void(double*, int)>>(&linear_regression));
using Bands =
    decltype(static_cast<Pointer<Status(int, double, double*, double*, double*, double*, int, int, double*, double*)>>(
        &QuorDSP_Parks_McClellanCoef));

// Refers to both decorated names, so that the object file shows how this compiler spells them.
Status useDecoratedNames(double* array);
Status useDecoratedNames(double* array)
{
    QuorDSP_Parks_McClellanCoef(3, 1.0, array, array, array, array, 1, 0, array, array);
    return QuorDSP_Vibration_Acceleration_Euler(array, 0, 1.0, 1.0, 0.0, 0.0, 0.0, 1.0, -1.0, 1.0, -1.0, array, array,
                                                array, array, 0);
}
