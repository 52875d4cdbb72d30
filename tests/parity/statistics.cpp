// Extremes, order and peaks.
#include <algorithm>

#include "parity/exports.h"
#include "support/integer_signal.h"

namespace quordsp::parity {
namespace {

// One block of a sequence; its peaks are one output each of places, heights and second derivatives.
int peaksOfBlock(Arguments& arguments, std::vector<double> block, int width, int initialize, int endOfData)
{
    std::int64_t count = -1;
    double* found[3] = {};
    const int n = std::min(arguments.integer('n'), static_cast<int>(block.size()));
    const int status = QuorDSP_PeakDetector(block.data(), n, arguments.scalar('h'), width, arguments.integer('f'),
                                            initialize, endOfData, &count, &found[0], &found[1], &found[2]);
    arguments.add('c', {static_cast<double>(count)});
    for (double* const values : found) {
        if (count > 0)
            arguments.add('v', {values, values + count});
        backendFunction<QuorDSP_FreeAnalysisMemFunction>("FreeAnalysisMem")(values);
    }
    return status;
}

// Three blocks of a sequence; the last one may come with another width.
int peaks(Arguments& arguments)
{
    const int width = arguments.integer('g');
    const std::size_t count = static_cast<std::size_t>(std::max(1, arguments.integer('n')));
    const int first = peaksOfBlock(arguments, noise(count, 1), width, 1, 0);
    const int second = peaksOfBlock(arguments, scaled(triangle(count, 14), 0.75), width, 0, 0);
    const int third = peaksOfBlock(arguments, noise(count, 3), width + arguments.integer('x'), 0, 1);
    return first != 0 ? first : second != 0 ? second : third;
}

} // namespace

const Family& statistics()
{
    static const Family family{{{'n', {{129, 1, 2, 3, 16, 1000}, {0, -1}}},
                                {'h', {{-2, 0, 0.5, 2}, {}}},
                                {'g', {{3, 4, 9, 31}, {0, -1, 2}}},
                                {'x', {{0}, {1, 4}}},
                                {'f', {{0, 1, -1, 2}, {}}}},
                               {
                                   ROW(QuorDSP_MaxMin1D, "XnR-O+|N"),
                                   ROW(QuorDSP_Sort, "XnfY|N"),
                                   {"QuorDSP_PeakDetector", "|nhgfx", peaks},
                               }};
    return family;
}

} // namespace quordsp::parity
