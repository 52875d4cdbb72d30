#include "fir/approximation.h"

#include <algorithm>
#include <numeric>

namespace quordsp::backend {

Real Approximation::gain(const Place& place) const
{
    if (!bands[place.band].isSlope)
        return filter.factor(place.f);
    return place.f == 0 ? filter.slopeAtZero() : filter.factor(place.f) / place.f;
}

Real Approximation::error(const Place& place, Real value) const
{
    const ApproximationBand& band = bands[place.band];
    return band.weight * (band.desired - value);
}

Real Approximation::largestDesired() const
{
    Real largest = 0;
    for (const ApproximationBand& band : bands)
        largest = std::max(largest, std::abs(band.desired));
    return largest;
}

Real Approximation::largestWeight() const
{
    return std::ranges::max_element(bands, {}, &ApproximationBand::weight)->weight;
}

Real Approximation::smallestWeight() const
{
    return std::ranges::min_element(bands, {}, &ApproximationBand::weight)->weight;
}

Real Approximation::width() const
{
    return std::accumulate(bands.begin(), bands.end(), Real{0},
                           [](Real sum, const ApproximationBand& band) { return sum + band.width(); });
}

} // namespace quordsp::backend
