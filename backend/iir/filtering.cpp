#include "iir/filtering.h"

#include "iir/cascade.h"
#include "iir/direct_filter.h"
#include "iir/filter_record.h"
#include "status.h"

#include <algorithm>
#include <span>
#include <vector>

namespace quordsp::backend {
namespace {

// What a filter without coefficients does.
template <class Sample>
void copySamples(const Sample* x, std::int64_t n, Sample* y)
{
    if (x != y)
        std::copy_n(x, n, y);
}

constexpr double kOne = 1;

// A filter without reverse coefficients divides by 1.
std::span<const double> reverseOf(const double* a, std::int32_t na)
{
    return na > 0 ? std::span{a, sizeOf(na)} : std::span{&kOne, 1};
}

template <class Sample>
void checkDirect(const Sample* x, std::int64_t n, const double* a, std::int32_t na, const double* b, std::int32_t nb,
                 const Sample* y)
{
    requirePositiveCount(n);
    requireArrays(x, y);
    require((na <= 0 || a) && (nb <= 0 || b), Status::ArraySize);
    require(na <= 0 || a[0] != 0, Status::DivisionByZero);
}

template <class Sample>
void runCascade(const Sample* x, std::int64_t n, const IirFilter& filter, Sample* state, Sample* y)
{
    const auto run = isBand(Response{filter.type}) ? filterCascade<DirectSection<4>, Sample>
                                                   : filterCascade<DirectSection<2>, Sample>;
    run(x, n, {sectionCount(filter.order), filter.reverse, filter.forward}, state, y);
}

} // namespace

Status filterThroughCascade(const double* x, std::int64_t n, IirFilter* filter, double* y) noexcept
{
    return guarded([&] {
        requirePositiveCount(n);
        requireArrays(x, y);
        requireConsistent(filter);
        if (filter->reset)
            std::fill_n(filter->state, filter->stateCount, 0.0);
        filter->reset = 0;
        runCascade(x, n, *filter, filter->state, y);
    });
}

Status filterThroughCascade(const Complex* x, std::int64_t n, const IirFilter* filter, ComplexState* state,
                            Complex* y) noexcept
{
    return guarded([&] {
        requirePositiveCount(n);
        requireArrays(x, y);
        requireConsistent(filter);
        if (state && state->elements && state->count == filter->reverseCount)
            runCascade(x, n, *filter, state->elements, y);
        else
            runCascade(x, n, *filter, std::vector<Complex>(sizeOf(filter->reverseCount)).data(), y);
    });
}

template <class Sample>
Status filterThroughDirect(const Sample* x, std::int64_t n, const double* a, Sample* ya, std::int32_t na,
                           const double* b, Sample* xb, std::int32_t nb, Sample* y) noexcept
{
    return guarded([&] {
        checkDirect(x, n, a, na, b, nb, y);
        if (na <= 0 && nb <= 0) {
            copySamples(x, n, y);
            return;
        }
        DirectFilter filter{reverseOf(a, na), {b, sizeOf(nb)}, kParts<Sample>};
        filter.setPast(partsOf(ya), partsOf(xb));
        filter.run(partsOf(x), n, partsOf(y));
        filter.getPast(partsOf(ya), partsOf(xb));
    });
}

template Status filterThroughDirect(const double*, std::int64_t, const double*, double*, std::int32_t, const double*,
                                    double*, std::int32_t, double*) noexcept;
template Status filterThroughDirect(const Complex*, std::int64_t, const double*, Complex*, std::int32_t, const double*,
                                    Complex*, std::int32_t, Complex*) noexcept;

Status filterBothWays(const double* x, std::int64_t n, const double* a, std::int32_t na, const double* b,
                      std::int32_t nb, double* y) noexcept
{
    return guarded([&] {
        checkDirect(x, n, a, na, b, nb, y);
        if (na <= 0 && nb <= 0) {
            copySamples(x, n, y);
            return;
        }
        DirectFilter filter{reverseOf(a, na), {b, sizeOf(nb)}, 1};
        filter.run(x, n, y);
        std::reverse(y, y + n);
        filter.setPast(nullptr, nullptr);
        filter.run(y, n, y);
        std::reverse(y, y + n);
    });
}

} // namespace quordsp::backend
