/* The public header alone in C11: sizes, layouts and a type of each kind. With QUORDSP_NO_ANALYSIS_LIB_ERR_TYPE defined
 * this file is a client that brings its own status type. */
#ifdef QUORDSP_NO_ANALYSIS_LIB_ERR_TYPE
typedef enum AnalysisLibErrType { NoErr = 0, OutOfMemErr = -20001, LargestErr = 2147483647 } AnalysisLibErrType;
#endif
#include "QuorDSP_DAQ.h"

#include <stddef.h>

#define OFFSET(record, field, bytes) _Static_assert(offsetof(record, field) == (bytes), #record "." #field)
#define IS(expression, ...) _Static_assert(_Generic((expression), __VA_ARGS__: 1, default: 0), #expression)

_Static_assert(sizeof(AnalysisLibErrType) == 4, "status");
#ifndef QUORDSP_NO_ANALYSIS_LIB_ERR_TYPE
_Static_assert(QUORDSP_BACKEND_NOT_FOUND == -5093 && QUORDSP_ENTRY_NOT_FOUND == -5094, "statuses of the binding");
_Static_assert(QUORDSP_INVALID_THERMOCOUPLE_TYPE == 0x7FFFFFFF, "largest status");
#endif

_Static_assert(sizeof(QuorDSP_IIRFilter) == 56, "IIR filter");
OFFSET(QuorDSP_IIRFilter, type, 0);
OFFSET(QuorDSP_IIRFilter, order, 4);
OFFSET(QuorDSP_IIRFilter, reset, 8);
OFFSET(QuorDSP_IIRFilter, reverseCount, 12);
OFFSET(QuorDSP_IIRFilter, reverse, 16);
OFFSET(QuorDSP_IIRFilter, forwardCount, 24);
OFFSET(QuorDSP_IIRFilter, forward, 32);
OFFSET(QuorDSP_IIRFilter, stateCount, 40);
OFFSET(QuorDSP_IIRFilter, state, 48);

_Static_assert(sizeof(QuorDSP_FIRFilter) == 40, "FIR filter");
OFFSET(QuorDSP_FIRFilter, type, 0);
OFFSET(QuorDSP_FIRFilter, interpolation, 4);
OFFSET(QuorDSP_FIRFilter, modelCount, 8);
OFFSET(QuorDSP_FIRFilter, model, 16);
OFFSET(QuorDSP_FIRFilter, imageCount, 24);
OFFSET(QuorDSP_FIRFilter, image, 32);

IS(&QuorDSP_Bw_LPF, AnalysisLibErrType (*)(const double*, int, double, double, int, double*));
IS(&QuorDSP_MaxMin1D, AnalysisLibErrType (*)(const double*, int64_t, double*, int64_t*, double*, int64_t*));
IS(&QuorDSP_FIRNarrowBandFilter, AnalysisLibErrType (*)(const double*, int, QuorDSP_FIRFilter, double*));
IS(&QuorDSP_CreateFFTTable, QuorDSP_FFTTable* (*)(int));
IS(&QuorDSP_WriteWAV, AnalysisLibErrType (*)(const char*, const float*, int, unsigned int));
IS(&linear_regression, void (*)(double*, int));
IS(&QuorDSP_Parks_McClellanCoef,
   AnalysisLibErrType (*)(int, double, double*, double*, double*, double*, int, int, double*, double*));
IS((QuorDSP_AllocIIRFilterPtrFunction)0, QuorDSP_IIRFilter* (*)(int, int));

/* Refers to both decorated names, so that the object file shows how this compiler spells them. */
AnalysisLibErrType useDecoratedNames(double* array);
AnalysisLibErrType useDecoratedNames(double* array)
{
    QuorDSP_Parks_McClellanCoef(3, 1.0, array, array, array, array, 1, 0, array, array);
    return QuorDSP_Vibration_Acceleration_Euler(array, 0, 1.0, 1.0, 0.0, 0.0, 0.0, 1.0, -1.0, 1.0, -1.0, array, array,
                                                array, array, 0);
}
