// Peaks and valleys of a signal that comes block by block.
#pragma once

#include <cstdint>

namespace quordsp::backend {

// A parabola is fitted to every group of width samples. Where its slope at the centre of the group passes from positive
// to 0 or less between one group and the next, there is a peak at the vertex of one of the two parabolas: of those that
// open downwards the one with the vertex nearer to its centre, the earlier of equals. The first group of a signal has
// none before it, the last one none behind it: they have a peak if their vertex is within half a sample of the centre.
//
// The detector is the thread's: it goes on from block to block until the end of data or the next first block.
void detectPeaks(const double* x, std::int64_t n, double threshold, std::int64_t width, std::int32_t polarity,
                 std::int32_t initialize, std::int32_t endOfData, std::int64_t* count, double** locations,
                 double** amplitudes, double** secondDerivatives);

} // namespace quordsp::backend
