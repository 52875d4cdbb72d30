#include "fir/narrow_band.h"

#include "buffer.h"
#include "extended_precision.h"
#include "fir/filtering.h"
#include "fir/interpolated.h"
#include "fir/linear_phase.h"
#include "no_subnormals.h"
#include "status.h"

#include <algorithm>

namespace quordsp::backend {
namespace {

enum Type : std::int32_t { LowPass, HighPass, BandPass, BandStop, WideLowPass, WideHighPass };

// Longer band-pass and band-stop filters, which are stored as one, are a failed design.
constexpr std::size_t kMostCombined = std::size_t{1} << 20;

bool isKnown(std::int32_t type)
{
    return type >= LowPass && type <= WideHighPass;
}

// Made of two copies of a low-pass filter, shifted to either side.
bool isShifted(std::int32_t type)
{
    return type == BandPass || type == BandStop;
}

// The delayed signal without what a filter passes.
bool isComplement(std::int32_t type)
{
    return type >= BandStop;
}

bool isAlternating(std::int32_t type)
{
    return type == HighPass || type == WideLowPass;
}

// An unknown type is reported after all the rest.
void checkFrequencies(const NarrowBandDesign& design)
{
    const auto [fs, pass, stop, centre, ripple, attenuation, type] = design;
    require(fs > 0 && std::isfinite(fs) && pass > 0 && stop > 0, Status::Band);
    const Real nyquist = Real{fs} / 2;
    require(centre >= 0 && centre <= nyquist, Status::Band);
    if (isShifted(type)) {
        const Real half = Real{std::max(pass, stop)} / 2;
        require(type == BandPass ? stop > pass : pass > stop, Status::Band);
        require(centre - half > 0 && centre + half < nyquist, Status::Band);
    } else if (isKnown(type)) {
        require(stop > pass && stop < nyquist, Status::Band);
    }
}

void check(const NarrowBandDesign& design)
{
    checkFrequencies(design);
    require(design.ripple > 0 && std::isfinite(design.ripple), Status::RippleNotPositive);
    require(design.attenuation > 0 && std::isfinite(design.attenuation), Status::AttenuationNotPositive);
    require(isKnown(design.type), Status::InvalidSelection);
}

// What the low-pass filter may deviate by. A complement stops where its low-pass filter passes; of two shifted copies,
// each adds the deviation of its stop band to the other.
Deviations allowedOf(const NarrowBandDesign& design)
{
    Deviations allowed{design.ripple, std::pow(10.0L, -Real{design.attenuation} / 20)};
    if (isComplement(design.type))
        std::swap(allowed.pass, allowed.stop);
    if (isShifted(design.type))
        allowed = {allowed.pass / 2, std::min(allowed.pass, allowed.stop) / 2};
    return allowed;
}

InterpolatedFilter lowPassOf(const NarrowBandDesign& design)
{
    const Real fs = isShifted(design.type) ? 2 * Real{design.fs} : Real{design.fs};
    const auto [narrow, wide] = std::minmax(design.passBand, design.stopBand);
    return interpolatedLowPass(narrow / fs, wide / fs, allowedOf(design));
}

// Shifts the response by half the sampling frequency, as far as taps that are so many samples apart can.
void alternate(std::vector<double>& h, std::int32_t spacing)
{
    const std::size_t centre = h.size() / 2;
    for (std::size_t i = 0; i < h.size(); ++i)
        if (spacing % 2 != 0 && i % 2 != centre % 2)
            h[i] = -h[i];
}

std::vector<Real> combined(const InterpolatedFilter& filter)
{
    const auto spacing = static_cast<std::size_t>(filter.interpolation);
    const std::size_t size = (filter.model.size() - 1) * spacing + filter.image.size();
    require(size <= kMostCombined, Status::DesignFailed);
    std::vector<Real> h(size);
    for (std::size_t m = 0; m < filter.model.size(); ++m)
        for (std::size_t q = 0; q < filter.image.size(); ++q)
            h[m * spacing + q] += Real{filter.model[m]} * filter.image[q];
    return h;
}

// Two copies of the response, shifted by the frequency up and down; or the rest that these leave.
std::vector<double> shifted(const std::vector<Real>& lowPass, Real frequency, bool isRest)
{
    const std::size_t centre = lowPass.size() / 2;
    std::vector<double> h(lowPass.size());
    for (std::size_t i = 0; i <= centre; ++i) {
        const Real turns = frequency * static_cast<Real>(centre - i);
        const Real value = 2 * lowPass[i] * cosineOfTurns(std::abs(turns - std::round(turns)));
        const Real rest = static_cast<Real>(i == centre) - value;
        h[i] = h[h.size() - 1 - i] = static_cast<double>(isRest ? rest : value);
    }
    return h;
}

InterpolatedFilter filterOf(const NarrowBandDesign& design)
{
    InterpolatedFilter filter = lowPassOf(design);
    if (isShifted(design.type)) {
        const Real frequency = design.centerFrequency / Real{design.fs};
        return {1, shifted(combined(filter), frequency, isComplement(design.type)), {1.0}};
    }
    if (isAlternating(design.type)) {
        alternate(filter.model, filter.interpolation);
        alternate(filter.image, 1);
    }
    return filter;
}

Buffer<> copyOf(const std::vector<double>& values)
{
    Buffer<> copy = makeBuffer(values.size());
    std::ranges::copy(values, copy.get());
    return copy;
}

void release(const FirFilter& filter)
{
    delete[] filter.model;
    delete[] filter.image;
}

void checkRecord(const FirFilter& filter)
{
    requireArrays(filter.model, filter.image);
    require(filter.interpolation > 0 && filter.modelCount > 0 && filter.imageCount > 0, Status::ArraySize);
    require(isKnown(filter.type), Status::InvalidSelection);
    constexpr auto most = static_cast<std::int64_t>(kMostElements);
    require(filter.modelCount <= most / filter.interpolation && filter.imageCount <= most, Status::OutOfMemory);
}

// y[i] = x[i - delay] - y[i], zeros before x; x may be y with what was in y in rest.
void subtractFromDelayed(const double* x, std::size_t count, std::size_t delay, const double* rest, double* y)
{
    const NoSubnormals noSubnormals;
    for (std::size_t i = count; i-- > 0;)
        y[i] = (i < delay ? 0.0 : x[i - delay]) - rest[i];
}

} // namespace

FirFilter* newFirFilter() noexcept
{
    return new (std::nothrow) FirFilter{};
}

void freeFirFilter(FirFilter* filter) noexcept
{
    if (filter)
        release(*filter);
    delete filter;
}

Status designNarrowBand(const NarrowBandDesign& design, FirFilter* filter) noexcept
{
    return guarded([&] {
        requireArrays(filter);
        check(design);
        const InterpolatedFilter result = inExtendedPrecision([&] { return filterOf(design); });
        Buffer<> model = copyOf(result.model), image = copyOf(result.image);
        release(*filter);
        *filter = {design.type,
                   result.interpolation,
                   static_cast<std::int64_t>(result.model.size()),
                   model.release(),
                   static_cast<std::int64_t>(result.image.size()),
                   image.release()};
    });
}

template <class Sample>
Status filterNarrowBand(const Sample* x, std::int64_t n, const FirFilter& filter, Sample* y) noexcept
{
    return guarded([&] {
        requirePositiveCount(n);
        requireArrays(x, y);
        checkRecord(filter);
        const auto count = static_cast<std::size_t>(n);
        const Buffer<Sample> between = makeBuffer<Sample>(count);
        filterFromRest(x, n, Fir{filter.model, filter.modelCount, filter.interpolation}, between.get());
        const bool isRest = filter.type == WideLowPass || filter.type == WideHighPass;
        filterFromRest(between.get(), n, filter.image, filter.imageCount, isRest ? between.get() : y);
        if (!isRest)
            return;
        const std::int64_t delay = ((filter.modelCount - 1) * filter.interpolation + filter.imageCount - 1) / 2;
        subtractFromDelayed(partsOf(x), count * kParts<Sample>, static_cast<std::size_t>(delay) * kParts<Sample>,
                            partsOf(between.get()), partsOf(y));
    });
}

template Status filterNarrowBand(const double*, std::int64_t, const FirFilter&, double*) noexcept;
template Status filterNarrowBand(const Complex*, std::int64_t, const FirFilter&, Complex*) noexcept;

} // namespace quordsp::backend
