// The front end of the backend's equiripple design: bands from four arrays.
#include <algorithm>

#include "complex/packed_block.h"
#include "frame/entries.h"

using namespace quordsp;

// The status tells nothing, as callers rely on.
AnalysisLibErrType QuorDSP_Parks_McClellanCoef(int n, double d, double* const bandA, double* const bandB,
                                               double* const bandC, double* const bandD, int bandCount, int k,
                                               double* const outA, double* outB) noexcept
{
    const ScratchBlock<Band> bands{std::max(n, bandCount)};
    if (bands.isMissing())
        return QUORDSP_BAD_ARGUMENT;
    for (int i = 0; i < bandCount; ++i)
        bands.data()[i] = {bandA[i], bandB[i], bandC[i], bandD[i]};
    entry::Parks_McClellanCoef(n, d, bands.data(), widen(bandCount), k, outA, outB);
    return QUORDSP_BAD_ARGUMENT;
}
