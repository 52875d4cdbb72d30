#include "iir/entries.h"

#include "extended_precision.h"
#include "iir/cascade.h"
#include "iir/filter_record.h"
#include "status.h"

#include <algorithm>
#include <ranges>
#include <span>
#include <vector>

namespace quordsp::backend {
namespace {

void requireLengths(std::int32_t na, std::int32_t nb, Response response, std::int32_t order)
{
    const std::int64_t wanted = directCount(response, order);
    require(na == wanted && nb == wanted, Status::ArraySize);
}

// The largest degree of a direct form. Butterworth filters overflow before they reach it; of others it bounds the time,
// which grows with the square.
constexpr std::size_t kLargestDegree = 1 << 14;

// The product of sections. DesignFailed as soon as double cannot hold the denominator.
class DirectForm {
public:
    void multiply(std::span<const Real> denominator, std::span<const Real> numerator)
    {
        multiplyBy(denominator_, denominator);
        multiplyBy(numerator_, numerator);
        require(std::max(denominator_.size(), numerator_.size()) <= kLargestDegree + 1, Status::DesignFailed);
        requireFinite(denominator_);
    }

    // a and b have room for more than is stored; the rest becomes 0.
    void store(std::span<double> a, std::span<double> b) const
    {
        requireFinite(numerator_);
        roundTo(a, denominator_);
        roundTo(b, numerator_);
    }

private:
    static void roundTo(std::span<double> out, const Polynomial& polynomial)
    {
        const auto toDouble = [](Real value) { return static_cast<double>(value); };
        std::fill(std::transform(polynomial.begin(), polynomial.end(), out.begin(), toDouble), out.end(), 0.0);
    }

    Polynomial denominator_{1}, numerator_{1};
};

// Section k of a filter as polynomials.
Polynomial denominatorOf(const IirFilter& filter, std::size_t k)
{
    const std::size_t order = sectionOrder(Response{filter.type});
    Polynomial polynomial{1};
    polynomial.insert(polynomial.end(), filter.reverse + k * order, filter.reverse + (k + 1) * order);
    return polynomial;
}

Polynomial numeratorOf(const IirFilter& filter, std::size_t k)
{
    const std::size_t count = sectionOrder(Response{filter.type}) + 1;
    return {filter.forward + k * count, filter.forward + (k + 1) * count};
}

} // namespace

template <class Sample>
Status designAndFilter(const Sample* x, std::int64_t n, const Design& design, Sample* y) noexcept
{
    return guarded([&] {
        requirePositiveCount(n);
        requireArrays(x, y);
        check(design);
        const Coefficients filter = deltaCascadeOf(design);
        std::vector<Sample> state(filter.reverse.size());
        const Sections sections{state.size() / DeltaSection::kOrder, filter.reverse.data(), filter.forward.data()};
        filterCascade<DeltaSection>(x, n, sections, state.data(), y);
    });
}

template Status designAndFilter(const double*, std::int64_t, const Design&, double*) noexcept;
template Status designAndFilter(const Complex*, std::int64_t, const Design&, Complex*) noexcept;

Status designDirect(const Design& design, double* a, std::int32_t na, double* b, std::int32_t nb) noexcept
{
    return guarded([&] {
        requireArrays(a, b);
        check(design);
        requireLengths(na, nb, design.response, design.order);
        inExtendedPrecision([&] {
            DirectForm form;
            // Sharp sections first: where an order is too high for this form, they show it soonest.
            for (const AnalogSection& section : sectionsOf(design) | std::views::reverse) {
                const Biquad biquad = bilinear(section);
                form.multiply(biquad.a, biquad.b);
            }
            form.store({a, sizeOf(na)}, {b, sizeOf(nb)});
        });
    });
}

Status cascadeToDirect(const IirFilter* filter, double* a, std::int32_t na, double* b, std::int32_t nb) noexcept
{
    return guarded([&] {
        requireArrays(a, b);
        requireConsistent(filter);
        requireLengths(na, nb, Response{filter->type}, filter->order);
        inExtendedPrecision([&] {
            DirectForm form;
            for (std::size_t k = 0; k < sectionCount(filter->order); ++k)
                form.multiply(denominatorOf(*filter, k), numeratorOf(*filter, k));
            form.store({a, sizeOf(na)}, {b, sizeOf(nb)});
        });
    });
}

Status designCascade(const Family& family, const Frequencies& frequencies, const Tolerances& tolerances,
                     IirFilter* filter) noexcept
{
    return guarded([&] {
        requireConsistent(filter);
        const Design design{family, Response{filter->type}, filter->order, frequencies, tolerances};
        check(design);
        const Coefficients cascade = cascadeOf(design, sectionOrder(design.response));
        std::copy(cascade.reverse.begin(), cascade.reverse.end(), filter->reverse);
        std::copy(cascade.forward.begin(), cascade.forward.end(), filter->forward);
        filter->reset = 1;
    });
}

} // namespace quordsp::backend
