// An exchange settles fast, and at all, from a reference that is about right already: the design of a single
// coefficient is doubled until it has the wanted size.
#include "fir/equiripple.h"

#include "fir/exchange.h"
#include "fir/newton_form.h"
#include "fir/reference.h"

#include <algorithm>

namespace quordsp::backend {
namespace {

// Errors about this size, in units of the largest amplitude, are still well above those of rounded coefficients.
constexpr Real kFloor = 2e-14L;
constexpr Real kNearFloor = 4 * kFloor;
constexpr Real kSettled = 1e4L * kFloor;
constexpr std::size_t kNearSize = 64;
constexpr Real kWidestWeights = 1e8L;
// By how much a rounded filter's error may exceed that of its design: in proportion, or in units of the amplitude.
constexpr Real kExcess = 0.01L;
constexpr Real kRounding = 0x1p-52L;
// Where Q vanishes at the edge of a band, the band ends this part of the extrema's mean distance before the edge.
constexpr Real kClearance = 0.04L;
// In proportion to the largest error.
constexpr Real kTolerance = 1e-8L;
constexpr Real kOnTheWay = 0.1L;
constexpr std::size_t kFirstStride = 64;
// A slope at 0 is measured here.
constexpr Real kNearZero = 1e-10L;

Real scaleOf(const Approximation& approximation)
{
    return approximation.largestDesired() * approximation.largestWeight();
}

// At a frequency where Q is 0 the amplitude is 0 whatever P is; the error there, which is 0, is nothing to learn from.
void clearZeros(Approximation& approximation)
{
    const Real clearance = kClearance / (2 * static_cast<Real>(approximation.filter.size()));
    for (ApproximationBand& band : approximation.bands) {
        const Real step = std::min(clearance, band.width() / 2);
        const auto isZero = [&](Real f) { return !band.isSlope && approximation.filter.factor(f) == 0; };
        if (isZero(band.lower))
            band.lower += step;
        if (isZero(band.upper))
            band.upper -= step;
    }
}

std::vector<double> coefficientsOf(const LinearPhase& filter, const Solution& solution)
{
    const NewtonForm polynomial{solution.nodes};
    std::vector<Real> amplitudes;
    for (const Real f : samplingFrequencies(filter))
        amplitudes.push_back(filter.factor(f) * polynomial.valueAt(cosineOfTurns(f)));
    std::vector<double> h(filter.taps);
    filterOf(filter, amplitudes, h.data());
    return h;
}

Real measuredError(const Approximation& approximation, const double* h, const Place& place)
{
    if (!approximation.bands[place.band].isSlope)
        return std::abs(approximation.error(place, amplitude(approximation.filter, h, place.f)));
    const Real f = std::max(place.f, kNearZero);
    return std::abs(approximation.error(place, amplitude(approximation.filter, h, f) / f));
}

// NaN where one of them is.
Real measuredError(const Approximation& approximation, const double* h, const Reference& places)
{
    Real largest = 0;
    for (const Place& place : places) {
        const Real error = measuredError(approximation, h, place);
        if (!(error <= largest))
            largest = error;
    }
    return largest;
}

// The filter of one size.
struct Level {
    LinearPhase filter;
    Solution solution;
    std::vector<double> h;
    Real ripple;
};

class Climb {
public:
    Climb(const Approximation& wanted, Effort& effort)
        : approximation_{wanted}, size_{wanted.filter.size()}, scale_{scaleOf(wanted)}, effort_{effort}
    {}

    // The largest size, up to the wanted one, that double can hold.
    Level run()
    {
        if (std::optional<Level> all = stride())
            return *std::move(all);
        Level best = climb();
        const bool isCut = sizeOf(best) < size_ || !isAboveFloor(best);
        require(!isCut || approximation_.largestWeight() <= kWidestWeights * approximation_.smallestWeight(),
                Status::DesignFailed);
        return best;
    }

private:
    // The usual design: the sizes on the way are only where the next one starts, and no more exact than that takes.
    // Nothing where one of them does not settle, or has an error that double may be too coarse for.
    std::optional<Level> stride()
    {
        std::size_t size = size_;
        while (size > kFirstStride)
            size = (size + 1) / 2;
        setSize(size);
        std::optional<Solution> solution =
            solve(size < size_ ? kOnTheWay : kTolerance, evenReference(approximation_, size + 1));
        while (solution && solution->largestError > kSettled * scale_) {
            if (size == size_) {
                Level all = levelOf(*std::move(solution));
                return isTrue(all) ? std::optional{std::move(all)} : std::nullopt;
            }
            reached_ = Level{approximation_.filter, *std::move(solution), {}, 0};
            size = std::min(2 * size, size_);
            setSize(size);
            solution = solve(size < size_ ? kOnTheWay : kTolerance,
                             scaledReference(approximation_, reached_->solution.extrema, size + 1));
        }
        return std::nullopt;
    }

    Level climb()
    {
        std::size_t start = size_;
        while (start > 1)
            start = (start + 1) / 2;
        std::optional<Level> first;
        if (reached_)
            first = level(sizeOf(*reached_), &*reached_);
        if (!isHeld(first))
            first = level(start, nullptr);
        require(first && isTrue(*first), Status::DesignFailed);
        Level best = *std::move(first);
        while (sizeOf(best) < size_ && isAboveFloor(best)) {
            const std::size_t size = std::min(2 * sizeOf(best), size_);
            std::optional<Level> next = level(size, &best);
            if (!isHeld(next))
                return between(std::move(best), size, next.has_value());
            best = *std::move(next);
        }
        return best;
    }

    static std::size_t sizeOf(const Level& level) { return level.filter.size(); }
    bool isBelow(Real error, const Level& level) const { return level.solution.largestError <= error * scale_; }
    bool isAboveFloor(const Level& level) const { return !isBelow(kFloor, level); }
    bool isTrue(const Level& level) const
    {
        return level.ripple <= level.solution.largestError * (1 + kExcess) + kRounding * scale_;
    }
    bool isHeld(const std::optional<Level>& level) const { return level && isAboveFloor(*level) && isTrue(*level); }

    void setSize(std::size_t size) { approximation_.filter = approximation_.filter.ofSize(size); }

    std::optional<Solution> solve(Real tolerance, const Reference& start)
    {
        return exchange(approximation_, start, {tolerance, kFloor * scale_}, effort_);
    }

    std::optional<Level> level(std::size_t size, const Level* model)
    {
        setSize(size);
        std::optional<Solution> solution;
        if (model)
            solution = solve(kTolerance, scaledReference(approximation_, model->solution.extrema, size + 1));
        if (!solution)
            solution = solve(kTolerance, evenReference(approximation_, size + 1));
        if (!solution)
            return std::nullopt;
        return levelOf(*std::move(solution));
    }

    Level levelOf(Solution solution) const
    {
        std::vector<double> h = coefficientsOf(approximation_.filter, solution);
        const Real ripple = measuredError(approximation_, h.data(), solution.extrema);
        return {approximation_.filter, std::move(solution), std::move(h), ripple};
    }

    // best is held, many is too much. Exchanges that do not settle for want of digits are part of the search, but not
    // the reason to give up far from what double can hold.
    Level between(Level best, std::size_t many, bool hasSettled)
    {
        bool haveSettled = hasSettled;
        while (!isBelow(kNearFloor, best) && many - sizeOf(best) > 1 + sizeOf(best) / kNearSize) {
            const std::size_t size = (sizeOf(best) + many) / 2;
            std::optional<Level> middle = level(size, &best);
            haveSettled = haveSettled && middle;
            if (isHeld(middle))
                best = *std::move(middle);
            else
                many = size;
        }
        require(haveSettled || isBelow(kSettled, best), Status::DesignFailed);
        return best;
    }

    Approximation approximation_;
    std::size_t size_;
    Real scale_;
    std::optional<Level> reached_; // by strides, the last size whose error double holds easily
    Effort& effort_;
};

} // namespace

EquirippleFilter equiripple(Approximation wanted, Effort& effort)
{
    clearZeros(wanted);
    const int before = effort.exchanges();
    Level level = Climb{wanted, effort}.run();
    require(std::isfinite(static_cast<double>(level.ripple)), Status::DesignFailed);
    const std::size_t zeros = (wanted.filter.taps - level.h.size()) / 2;
    level.h.insert(level.h.begin(), zeros, 0.0);
    level.h.resize(wanted.filter.taps);
    return {std::move(level.h), static_cast<double>(level.ripple), effort.exchanges() - before};
}

} // namespace quordsp::backend
