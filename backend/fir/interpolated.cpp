#include "fir/interpolated.h"

#include "fir/equiripple.h"

#include <algorithm>

namespace quordsp::backend {
namespace {

constexpr int kMostRaises = 20;
constexpr int kTestsPerTap = 8;
constexpr std::size_t kMostSuppressorBands = 16;
constexpr Real kLeastSteepness = 0.5L;

// Kaiser's estimate of taps - 1, times the width of the transition band.
Real steepness(const Deviations& allowed)
{
    return std::max((-10 * std::log10(allowed.pass * allowed.stop) - 13) / 14.6L, kLeastSteepness);
}

std::int64_t estimatedTaps(const Deviations& allowed, Real transition)
{
    const Real taps = std::ceil(steepness(allowed) / transition) + 1;
    require(taps <= static_cast<Real>(kMostTaps), Status::DesignFailed);
    return std::max(static_cast<std::int64_t>(taps), std::int64_t{3}) | 1;
}

ApproximationBand passing(Real upper, const Deviations& allowed)
{
    return {0, upper, 1, 1 / allowed.pass};
}

ApproximationBand stopping(Real lower, Real upper, const Deviations& allowed)
{
    return {lower, std::min(upper, 0.5L), 0, 1 / allowed.stop};
}

// Raises the taps until the largest weighted error is within 1; the bands' weights are the reciprocals of what is
// allowed. Each time by what Kaiser's estimate says about the error, and by 2 at least.
std::vector<double> fitted(const std::vector<ApproximationBand>& bands, const Deviations& allowed, Effort& effort)
{
    const Real transition = bands[1].lower - bands[0].upper;
    std::int64_t taps = estimatedTaps(allowed, transition);
    for (int raises = 0; raises <= kMostRaises && taps <= kMostTaps; ++raises) {
        EquirippleFilter filter = equiripple({{static_cast<std::size_t>(taps), false}, bands}, effort);
        if (filter.ripple <= 1)
            return std::move(filter.h);
        const Real missing = 20 * std::log10(Real{filter.ripple}) / (14.6L * transition);
        taps += 2 + 2 * static_cast<std::int64_t>(std::min(missing / 2, static_cast<Real>(kMostTaps)));
    }
    throw Failure{Status::DesignFailed};
}

bool isWithin(Real limit, const std::vector<double>& h, Real from)
{
    const LinearPhase filter{h.size(), false};
    const std::size_t tests = kTestsPerTap * h.size();
    for (std::size_t i = 0; i <= tests; ++i) {
        const Real f = from + (0.5L - from) * (static_cast<Real>(i) / static_cast<Real>(tests));
        if (!(std::abs(amplitude(filter, h.data(), f)) <= limit))
            return false;
    }
    return true;
}

// Stops the repetitions only, which takes fewer taps than to stop everything, unless they are so many that the exchange
// gropes about among them. Between them the model stops, as long as the suppressor does not amplify there more than
// where it passes.
std::vector<double> imageSuppressor(Real pass, Real stop, Real interpolation, const Deviations& allowed, Effort& effort)
{
    std::vector<ApproximationBand> bands{passing(pass, allowed)};
    for (Real image = 1; image <= interpolation / 2; ++image)
        bands.push_back(stopping(image / interpolation - stop, image / interpolation + stop, allowed));
    if (bands.size() <= kMostSuppressorBands) {
        std::vector<double> h = fitted(bands, allowed, effort);
        if (isWithin(1 + allowed.pass, h, stop))
            return h;
    }
    return fitted({bands[0], stopping(bands[1].lower, 0.5L, allowed)}, allowed, effort);
}

// The largest for which the model's stop band ends below half the sampling frequency and the suppressor has taps to
// spare.
std::int32_t interpolationFor(Real pass, Real stop, const Deviations& allowed)
{
    const Real narrowest = steepness(allowed) / (static_cast<Real>(kMostTaps) / 2);
    auto interpolation = std::floor(1 / (pass + stop + std::max(pass + stop, narrowest)));
    while (interpolation > 1 && !(interpolation * stop < 0.5L))
        --interpolation;
    return std::max(static_cast<std::int32_t>(interpolation), 1);
}

} // namespace

InterpolatedFilter interpolatedLowPass(Real pass, Real stop, const Deviations& allowed)
{
    // One factor may deviate as much as two of them may together: (1 + each)^2 = 1 + both.
    const Real each = std::sqrt(1 + allowed.pass) - 1;
    Effort effort;
    const Deviations ofFactor{each, allowed.stop / (1 + each)};
    const std::int32_t interpolation = interpolationFor(pass, stop, ofFactor);
    if (interpolation == 1)
        return {1, fitted({passing(pass, allowed), stopping(stop, 0.5L, allowed)}, allowed, effort), {1.0}};
    return {interpolation,
            fitted({passing(pass * interpolation, ofFactor), stopping(stop * interpolation, 0.5L, ofFactor)}, ofFactor,
                   effort),
            imageSuppressor(pass, stop, interpolation, ofFactor, effort)};
}

} // namespace quordsp::backend
