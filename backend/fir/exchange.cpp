#include "fir/exchange.h"

#include "fir/error_scan.h"

#include <algorithm>
#include <iterator>

namespace quordsp::backend {
namespace {

constexpr int kMostExchanges = 100;
// In exact arithmetic delta grows with every exchange.
constexpr int kMostWithoutGain = 10;
constexpr Real kTolerance = 1e-8L;
// What rounding adds to an error, in units of the largest amplitude.
constexpr Real kNoise = 0x1p-57L;

bool isSmaller(const Sample& a, const Sample& b)
{
    return std::abs(a.error) < std::abs(b.error);
}

// Drops the smallest errors, each from between its neighbours together with the smaller of these: the signs stay in
// turn, the largest error stays, and none stays that is below delta.
void thinOut(std::vector<Sample>& extrema, std::size_t count)
{
    while (extrema.size() > count) {
        const auto last = extrema.end() - 1;
        auto smallest = std::ranges::min_element(extrema, isSmaller);
        if (extrema.size() == count + 1)
            smallest = isSmaller(extrema.front(), *last) ? extrema.begin() : last;
        if (smallest == extrema.begin() || smallest == last) {
            extrema.erase(smallest);
        } else {
            const auto pair = isSmaller(*(smallest - 1), *(smallest + 1)) ? smallest - 1 : smallest;
            extrema.erase(pair, pair + 2);
        }
    }
}

bool isBefore(const Place& a, const Place& b)
{
    return a.f < b.f;
}

// A delta of 0 leaves no error at the reference, and perhaps too few extrema beside it: some of its places stay.
void fillUp(Reference& places, const Reference& former)
{
    Reference others;
    std::ranges::set_difference(former, places, std::back_inserter(others), isBefore);
    const std::size_t missing = std::min(former.size() - places.size(), others.size());
    for (std::size_t k = 0; k < missing; ++k)
        places.push_back(others[k * others.size() / missing]);
    std::ranges::sort(places, isBefore);
}

// What the least possible error cannot exceed: the largest one of P = 0.
Real errorOfNothing(const Approximation& approximation)
{
    Real largest = 0;
    for (const ApproximationBand& band : approximation.bands)
        largest = std::max(largest, band.weight * std::abs(band.desired));
    return largest;
}

} // namespace

std::optional<Solution> exchange(const Approximation& approximation, Reference reference, Real sufficient)
{
    const Real noise = kNoise * approximation.largestDesired() * approximation.largestWeight();
    const Real bound = errorOfNothing(approximation) * (1 + kTolerance);
    Real largestDelta = noise;
    for (int exchanges = 1, withoutGain = 0; exchanges <= kMostExchanges && withoutGain < kMostWithoutGain;
         ++exchanges) {
        const std::optional<Interpolant> interpolant = Interpolant::through(approximation, reference);
        if (!interpolant)
            break;
        std::vector<Sample> extrema = extremaOf(*interpolant, approximation, reference, noise);
        const Real largestError = extrema.empty() ? 0 : std::abs(std::ranges::max(extrema, isSmaller).error);
        const Real delta = std::abs(interpolant->delta());
        // Digits are lost when it is not so.
        if (!(delta <= bound) || !std::isfinite(largestError))
            break;
        thinOut(extrema, reference.size());
        Reference places(extrema.size());
        std::ranges::transform(extrema, places.begin(), &Sample::place);
        if (largestError <= sufficient || largestError - delta <= kTolerance * largestError + noise)
            return Solution{interpolant->nodes(), std::move(places), largestError, exchanges};
        fillUp(places, reference);
        reference = std::move(places);
        withoutGain = delta > largestDelta ? 0 : withoutGain + 1;
        largestDelta = std::max(largestDelta, delta);
    }
    return std::nullopt;
}

} // namespace quordsp::backend
