#include "backend/filters/linear_filters.h"
#include "backend/support/iir_families.h"

namespace quordsp::test {
namespace {

using backend::Complex;

std::string nameOf(const char* kind, const Order& order)
{
    return std::string(kind) + ", family " + std::to_string(order.family) + ", type " + std::to_string(order.type) +
           ", order " + std::to_string(order.order);
}

LinearFilter inOneCall(const Order& order)
{
    const auto real = [=](const double* x, std::int64_t n, double* y) { return filter(order, x, n, y); };
    const auto complex = [=](const Complex* x, std::int64_t n, Complex* y) {
        return filter(order, const_cast<Complex*>(x), n, y); // only read, as there is a y
    };
    return {.name = nameOf("in one call", order),
            .real = [=] { return real; },
            .complex = [=] { return complex; },
            .twiceTheDelay = {}};
}

Run<double> cascadeAtRest(const Order& order)
{
    return [filter = std::shared_ptr(cascade(order))](const double* x, std::int64_t n, double* y) {
        return backend::AALFunc91(x, n, filter.get(), y);
    };
}

Run<Complex> complexCascadeAtRest(const Order& order)
{
    std::shared_ptr<backend::IirFilter> filter = cascade(order);
    std::vector<Complex> state(static_cast<std::size_t>(filter->reverseCount));
    return [=](const Complex* x, std::int64_t n, Complex* y) mutable {
        backend::ComplexState record{filter->reverseCount, state.data()};
        return backend::AALFunc466(x, n, filter.get(), &record, y);
    };
}

LinearFilter asCascade(const Order& order)
{
    return {.name = nameOf("cascade", order),
            .real = [=] { return cascadeAtRest(order); },
            .complex = [=] { return complexCascadeAtRest(order); },
            .keepsState = true,
            .twiceTheDelay = {}};
}

template <class Sample, class Entry>
Run<Sample> directFormAtRest(const DirectCoefficients& c, Entry* entry)
{
    const auto count = static_cast<std::int32_t>(c.a.size());
    std::vector<Sample> past(c.a.size() - 1);
    return [=, ya = past, xb = past](const Sample* x, std::int64_t n, Sample* y) mutable {
        return entry(x, n, c.a.data(), ya.data(), count, c.b.data(), xb.data(), count, y);
    };
}

LinearFilter asDirectForm(const Order& order)
{
    const DirectCoefficients c = direct(order);
    return {.name = nameOf("direct form", order),
            .real = [=] { return directFormAtRest<double>(c, backend::AALFunc92); },
            .complex = [=] { return directFormAtRest<Complex>(c, backend::AALFunc354); },
            .keepsState = true,
            .twiceTheDelay = {}};
}

LinearFilter inBothDirections(const Order& order)
{
    const DirectCoefficients c = direct(order);
    const auto count = static_cast<std::int32_t>(c.a.size());
    const auto real = [=](const double* x, std::int64_t n, double* y) {
        return backend::AALFunc385(x, n, c.a.data(), count, c.b.data(), count, y);
    };
    return {.name = nameOf("zero phase", order),
            .real = [=] { return real; },
            .complex = {},
            .isCausal = false,
            .twiceTheDelay = 0};
}

} // namespace

// An odd order has sections of either kind; those of the higher one take more than one group of lanes.
std::vector<LinearFilter> iirFilters()
{
    std::vector<LinearFilter> filters;
    for (Family family : kFamilies)
        for (int type : kTypes) {
            filters.push_back(inOneCall({family, type, 3}));
            filters.push_back(inOneCall({family, type, 9}));
            filters.push_back(asCascade({family, type, 7}));
            filters.push_back(asDirectForm({family, type, 3}));
            filters.push_back(inBothDirections({family, type, 2}));
        }
    return filters;
}

} // namespace quordsp::test
