#include "fir/savitzky_golay.h"

#include "extended_precision.h"
#include "fir/filtering.h"
#include "fir/orthonormal_polynomials.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quordsp::backend {
namespace {

using Real = OrthonormalPolynomials::Real;

std::int64_t frameOf(const PolynomialFit& fit)
{
    return 2 * std::int64_t{fit.sidePoints} + 1;
}

// Making polynomials orthogonal takes the square of their number times the frame: what this allows takes seconds.
constexpr std::int64_t kMostWork = std::int64_t{1} << 32;

bool isWeight(double weight)
{
    return std::isfinite(weight) && weight >= 0;
}

void check(const PolynomialFit& fit)
{
    const std::int64_t frame = frameOf(fit);
    require(fit.order >= 0, Status::OrderNegative);
    require(fit.sidePoints >= 0, Status::CountNegative);
    require(frame > fit.order, Status::TooFewPointsForOrder);
    const std::int64_t count = std::int64_t{fit.order} + 1;
    require(count <= kMostWork / count / frame, Status::OutOfMemory);
    if (!fit.weights)
        return;
    require(std::all_of(fit.weights, fit.weights + frame, isWeight), Status::Singular);
    const auto fitted = std::count_if(fit.weights, fit.weights + frame, [](double weight) { return weight > 0; });
    require(fitted > fit.order, Status::Singular);
}

// The factor of point m in the fit's value at point i.
Real factor(const OrthonormalPolynomials& polynomials, std::size_t i, std::size_t m)
{
    Real sum = 0;
    for (std::size_t degree = 0; degree < polynomials.count(); ++degree)
        sum += polynomials.values(degree)[i] * polynomials.values(degree)[m];
    return sum * polynomials.weight(m);
}

// The factor of point m in the fit's coefficient of (i - sidePoints)^power.
Real diffFactor(const OrthonormalPolynomials& polynomials, std::size_t power, std::size_t m)
{
    Real sum = 0;
    for (std::size_t degree = power; degree < polynomials.count(); ++degree)
        sum += polynomials.coefficients(degree)[power] * polynomials.values(degree)[m];
    return sum * polynomials.weight(m);
}

void storeFilters(const OrthonormalPolynomials& polynomials, double* filters)
{
    for (std::size_t i = 0; i < polynomials.frame(); ++i)
        for (std::size_t m = 0; m < polynomials.frame(); ++m)
            *filters++ = static_cast<double>(factor(polynomials, i, m));
}

void storeDiffFilters(const OrthonormalPolynomials& polynomials, std::int32_t sidePoints, double* diffFilters)
{
    Real scale = 1;
    for (std::size_t power = 0; power < polynomials.count(); ++power) {
        for (std::size_t m = 0; m < polynomials.frame(); ++m)
            *diffFilters++ = static_cast<double>(scale * diffFactor(polynomials, power, m));
        scale /= sidePoints;
    }
}

// One of the parts of a frame's samples.
struct Frame {
    const double* samples;
    std::size_t stride;

    // Subnormal numbers count as 0, as everywhere in filters: to extend one takes a hundred times as long.
    double operator[](std::size_t m) const
    {
        const double sample = samples[m * stride];
        return std::abs(sample) < std::numeric_limits<double>::min() ? 0 : sample;
    }
};

// The fit's values at count points from the first one on.
void evaluate(const OrthonormalPolynomials& polynomials, Frame frame, std::size_t first, std::size_t count, double* y)
{
    const Buffer<Real> sums = makeBuffer<Real>(count);
    std::fill_n(sums.get(), count, Real{0});
    for (std::size_t degree = 0; degree < polynomials.count(); ++degree) {
        const auto values = polynomials.values(degree);
        Real share = 0;
        for (std::size_t m = 0; m < polynomials.frame(); ++m)
            share += values[m] * polynomials.weight(m) * frame[m];
        for (std::size_t i = 0; i < count; ++i)
            sums[i] += values[first + i] * share;
    }
    for (std::size_t i = 0; i < count; ++i)
        y[i * frame.stride] = static_cast<double>(sums[i]);
}

// What filtering needs of a fit: its value at the middle as coefficients, and its values at both ends of the signal.
struct Smoother {
    Buffer<> h;
    Buffer<> head, tail;
};

Smoother prepare(const double* x, std::int64_t n, std::size_t parts, const PolynomialFit& fit)
{
    const OrthonormalPolynomials polynomials(fit.order, fit.sidePoints, fit.weights);
    const auto frame = polynomials.frame(), side = frame / 2;
    Smoother smoother{makeBuffer(frame), makeBuffer(side * parts), makeBuffer(side * parts)};
    for (std::size_t m = 0; m < frame; ++m)
        smoother.h[frame - 1 - m] = static_cast<double>(factor(polynomials, side, m));
    const double* const lastFrame = x + (static_cast<std::size_t>(n) - frame) * parts;
    for (std::size_t part = 0; part < parts; ++part) {
        evaluate(polynomials, {x + part, parts}, 0, side, smoother.head.get() + part);
        evaluate(polynomials, {lastFrame + part, parts}, side + 1, side, smoother.tail.get() + part);
    }
    return smoother;
}

void smooth(const double* x, std::int64_t n, std::size_t parts, const PolynomialFit& fit, double* y)
{
    const Smoother smoother = inExtendedPrecision([&] { return prepare(x, n, parts, fit); });
    filterPartsFromRest(x, n, {smoother.h.get(), frameOf(fit)}, parts, y);
    // The middle of a frame is sidePoints behind its last point.
    const std::size_t side = static_cast<std::size_t>(fit.sidePoints) * parts,
                      count = static_cast<std::size_t>(n) * parts;
    std::copy(y + 2 * side, y + count, y + side);
    std::copy_n(smoother.head.get(), side, y);
    std::copy_n(smoother.tail.get(), side, y + count - side);
}

} // namespace

Status savitzkyGolayCoefficients(const PolynomialFit& fit, bool withDiffFilters, double* filters,
                                 double* diffFilters) noexcept
{
    return guarded([&] {
        requireArrays(filters);
        require(!withDiffFilters || diffFilters, Status::ArraySize);
        check(fit);
        inExtendedPrecision([&] {
            const OrthonormalPolynomials polynomials(fit.order, fit.sidePoints, fit.weights);
            storeFilters(polynomials, filters);
            if (withDiffFilters)
                storeDiffFilters(polynomials, fit.sidePoints, diffFilters);
        });
    });
}

template <class Sample>
Status filterSavitzkyGolay(const Sample* x, std::int64_t n, const PolynomialFit& fit, Sample* y) noexcept
{
    return guarded([&] {
        requirePositiveCount(n);
        requireArrays(x, y);
        check(fit);
        require(n >= frameOf(fit), Status::ArraySize);
        smooth(partsOf(x), n, kParts<Sample>, fit, partsOf(y));
    });
}

template Status filterSavitzkyGolay(const double*, std::int64_t, const PolynomialFit&, double*) noexcept;
template Status filterSavitzkyGolay(const Complex*, std::int64_t, const PolynomialFit&, Complex*) noexcept;

} // namespace quordsp::backend
