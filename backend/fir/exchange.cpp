#include "fir/exchange.h"

#include "fir/error_scan.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace quordsp::backend {
namespace {

constexpr int kMostExchanges = 100;
// In exact arithmetic delta grows with every exchange.
constexpr int kMostWithoutGain = 10;
constexpr Real kRounding = 1e-8L;
// What rounding adds to an error, in units of the largest amplitude.
constexpr Real kNoise = 0x1p-57L;
constexpr Real kQuickNoise = 0x1p-43L;
// Errors that are found in double precision show the way as long as delta is so many times their noise, and are what
// they seem to be, within 1e-9 or so, when it is so many times.
constexpr Real kShowingTheWay = 1e4L;
constexpr Real kSharp = 1e7L;
// In proportion to the largest error: from here on the digits of double are not enough.
constexpr Real kNear = 1e-4L;
// When delta falls after a search in double precision, noise has been taken for extrema.
constexpr Real kMisled = 10;
// What an exchange costs beside one in double precision.
constexpr Real kCost = 16;

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

class Exchange {
public:
    Exchange(const Approximation& approximation, const Aim& aim, Effort& effort)
        : approximation_{approximation},
          aim_{aim},
          effort_{effort},
          scale_{approximation.largestDesired() * approximation.largestWeight()},
          bound_{errorOfNothing(approximation)}
    {}

    std::optional<Solution> run(const Reference& start)
    {
        quickFrom_ = kShowingTheWay * kQuickNoise * scale_;
        std::optional<Solution> solution = runFrom(start);
        if (solution || exchanges_ > kMostExchanges)
            return solution;
        quickFrom_ = std::numeric_limits<Real>::infinity();
        return runFrom(start);
    }

private:
    std::optional<Solution> runFrom(Reference reference)
    {
        Reference former;
        Real formerDelta = 0, largestDelta = kNoise * scale_;
        int withoutGain = 0;
        for (exchanges_ = 1; exchanges_ <= kMostExchanges && withoutGain < kMostWithoutGain; ++exchanges_) {
            const std::optional<Interpolant> interpolant = Interpolant::through(approximation_, reference);
            if (!interpolant)
                break;
            const Real delta = std::abs(interpolant->delta());
            // Digits are lost when it is not so.
            if (!(delta <= bound_ * (1 + kRounding)))
                break;
            if (delta < formerDelta / 2 && formerDelta > quickFrom_) {
                quickFrom_ = kMisled * formerDelta;
                reference = std::move(former);
                continue;
            }
            std::vector<Sample> extrema = extremaOf(*interpolant, reference);
            const Real largestError = largestOf(extrema);
            if (!std::isfinite(largestError))
                break;
            thinOut(extrema, reference.size());
            Reference places(extrema.size());
            std::ranges::transform(extrema, places.begin(), &Sample::place);
            if (largestError <= aim_.sufficient || isSettled(largestError, delta))
                return Solution{interpolant->nodes(), std::move(places), largestError};
            fillUp(places, reference);
            former = std::exchange(reference, std::move(places));
            formerDelta = delta;
            withoutGain = delta > largestDelta ? 0 : withoutGain + 1;
            largestDelta = std::max(largestDelta, delta);
        }
        return std::nullopt;
    }

    static Real largestOf(const std::vector<Sample>& extrema)
    {
        return extrema.empty() ? 0 : std::abs(std::ranges::max(extrema, isSmaller).error);
    }

    bool isSettled(Real largestError, Real delta) const
    {
        return largestError - delta <= aim_.tolerance * largestError + kNoise * scale_;
    }

    void spend(Real cost, const Reference& reference)
    {
        const std::size_t places = reference.size() + 2 * approximation_.bands.size();
        effort_.spend(cost * static_cast<Real>(places) * static_cast<Real>(reference.size()));
    }

    // In extended precision, unless double does.
    std::vector<Sample> extremaOf(const Interpolant& interpolant, const Reference& reference)
    {
        const Real delta = std::abs(interpolant.delta());
        if (delta > quickFrom_) {
            spend(1, reference);
            std::vector<Sample> extrema = quickExtremaOf(interpolant, approximation_, reference);
            const Real largest = largestOf(extrema);
            const bool isNear = !(largest - delta > std::max(kNear, aim_.tolerance) * largest);
            const bool isSharp = delta > kSharp * kQuickNoise * scale_;
            if (isNear && isSharp)
                for (Sample& extremum : extrema)
                    extremum.error = interpolant.error(extremum.place);
            if (extrema.size() >= reference.size() && (isSharp || !isNear))
                return extrema;
        }
        spend(kCost, reference);
        return backend::extremaOf(interpolant, approximation_, reference, kNoise * scale_);
    }

    const Approximation& approximation_;
    Aim aim_;
    Effort& effort_;
    Real scale_, bound_;
    Real quickFrom_ = 0; // the least delta for a search in double precision
    int exchanges_ = 0;
};

} // namespace

std::optional<Solution> exchange(const Approximation& approximation, const Reference& reference, const Aim& aim,
                                 Effort& effort)
{
    return Exchange{approximation, aim, effort}.run(reference);
}

} // namespace quordsp::backend
