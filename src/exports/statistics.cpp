// Extrema and sorting.
#include "frame/entries.h"

using quordsp::widen;
namespace entry = quordsp::entry;

AnalysisLibErrType QuorDSP_MaxMin1D(const double* in, int64_t n, double* max, int64_t* maxIndex, double* min,
                                    int64_t* minIndex) noexcept
{
    return entry::MaxMin1D(in, n, max, maxIndex, min, minIndex);
}

AnalysisLibErrType QuorDSP_Sort(const double* in, int n, int direction, double* out) noexcept
{
    return entry::Sort(in, widen(n), direction, out);
}
