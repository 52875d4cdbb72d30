#include "numeric/detrend_breakpoints.h"

namespace quordsp {
namespace {

bool append(NumericArray<double>& column, double element) noexcept
{
    const std::int32_t count = column.size[0]++;
    if (!ensureCapacity(column, count))
        return false;
    column.data[count] = element;
    return true;
}

} // namespace

// With as many breakpoints as samples, the highest power alone makes more columns than there are samples: no further
// place has an influence.
bool keepBreakpoints(int count, const double* breakpoints, int breakpointCount, Breakpoints& kept) noexcept
{
    kept = {createOwnedColumn<double>(1), 1};
    if (!kept.places)
        return false;
    const int given = breakpoints ? breakpointCount : 0;
    for (int i = 0; i < given; ++i) {
        const double place = breakpoints[i] - 1.0;
        if (place > 0.0 && place < count - 1 && kept.count++ < count && !append(*kept.places, place))
            return false;
    }
    return true;
}

} // namespace quordsp
