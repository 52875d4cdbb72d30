#include "iir/filter_record.h"

#include "status.h"

#include <cstdlib>

namespace quordsp::backend {
namespace {

// The record that belongs to a type and order, its arrays standing one after the other from first on.
IirFilter layout(Response response, std::int32_t order, double* first)
{
    const auto sections = static_cast<std::int32_t>(sectionCount(order));
    const auto states = sections * static_cast<std::int32_t>(sectionOrder(response));
    double* const forward = first + states;
    double* const state = forward + states + sections;
    return {static_cast<std::int32_t>(response), order, 1, states, first, states + sections, forward, states, state};
}

bool isValid(Response response, std::int32_t order)
{
    return isKnown(response) && order > 0 && order <= kLargestOrder;
}

bool isConsistent(const IirFilter& filter)
{
    const Response response{filter.type};
    if (!isValid(response, filter.order) || !filter.reverse || !filter.forward || !filter.state)
        return false;
    const IirFilter wanted = layout(response, filter.order, filter.reverse);
    return filter.reverseCount == wanted.reverseCount && filter.forwardCount == wanted.forwardCount &&
           filter.stateCount == wanted.stateCount;
}

} // namespace

void requireConsistent(const IirFilter* filter)
{
    require(filter && isConsistent(*filter), Status::IirFilter);
}

IirFilter* newFilter(Response response, std::int32_t order)
{
    if (!isValid(response, order))
        return nullptr;
    const std::size_t values = sectionCount(order) * (3 * sectionOrder(response) + 1);
    void* const memory = std::calloc(1, sizeof(IirFilter) + values * sizeof(double));
    if (!memory)
        return nullptr;
    auto* const filter = static_cast<IirFilter*>(memory);
    *filter = layout(response, order, reinterpret_cast<double*>(filter + 1));
    return filter;
}

} // namespace quordsp::backend
