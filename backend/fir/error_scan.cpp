#include "fir/error_scan.h"

#include <algorithm>
#include <array>

namespace quordsp::backend {
namespace {

constexpr Real kStepsPerExtremum = 16;
constexpr int kRefinements = 3;

bool isLarger(const Sample& a, const Sample& b)
{
    return std::abs(a.error) > std::abs(b.error);
}

// Three samples of a band around an extremum or, when it is at the edge, beside it.
using Near = std::array<Sample, 3>;

// NaN when the three lie on a line.
Real vertexOf(const Near& near)
{
    const Real left = near[1].place.f - near[0].place.f, right = near[1].place.f - near[2].place.f;
    const Real leftRise = left * (near[1].error - near[2].error), rightRise = right * (near[1].error - near[0].error);
    return near[1].place.f - (left * leftRise - right * rightRise) / (2 * (leftRise - rightRise));
}

class Scan {
public:
    Scan(const Interpolant& interpolant, const Approximation& approximation)
        : interpolant_{interpolant},
          bands_{approximation.bands},
          longestStep_{1 / (2 * kStepsPerExtremum * static_cast<Real>(approximation.filter.size()))}
    {}

    // The error at the edges of the bands, at the reference, and at 16 steps or more between each two of these: the
    // steps are small where extrema crowd.
    void run(const Reference& reference)
    {
        auto place = reference.begin();
        for (std::size_t band = 0; band < bands_.size(); ++band) {
            samples_.push_back(at({bands_[band].lower, band}));
            for (; place != reference.end() && place->band == band; ++place)
                addUpTo(*place);
            addUpTo({bands_[band].upper, band});
        }
    }

    std::vector<Sample> extrema(Real noise) const
    {
        std::vector<std::size_t> largest;
        for (std::size_t i = 0; i < samples_.size(); ++i) {
            if (std::isnan(samples_[i].error))
                return {samples_[i]};
            if (std::abs(samples_[i].error) <= noise)
                continue;
            if (largest.empty() || isNegative(i) != isNegative(largest.back()))
                largest.push_back(i);
            else if (isLarger(samples_[i], samples_[largest.back()]))
                largest.back() = i;
        }
        std::vector<Sample> result;
        for (const std::size_t i : largest)
            result.push_back(refined(i));
        return result;
    }

private:
    Sample at(const Place& place) const { return {place, interpolant_.error(place)}; }
    bool isNegative(std::size_t i) const { return samples_[i].error < 0; }

    void addUpTo(const Place& end)
    {
        const Real from = samples_.back().place.f;
        const Real length = end.f - from;
        if (!(length > 0))
            return;
        const Real steps = std::max(kStepsPerExtremum, std::ceil(length / longestStep_));
        for (Real step = 1; step < steps; ++step)
            samples_.push_back(at({from + length * (step / steps), end.band}));
        samples_.push_back(at(end));
    }

    // Every band has at least three samples.
    Near around(std::size_t i) const
    {
        const std::size_t band = samples_[i].place.band;
        const bool isFirst = i == 0 || samples_[i - 1].place.band != band;
        const bool isLast = i + 1 == samples_.size() || samples_[i + 1].place.band != band;
        const std::size_t first = isFirst ? i : isLast ? i - 2 : i - 1;
        return {samples_[first], samples_[first + 1], samples_[first + 2]};
    }

    // The vertex of the parabola through the three samples, and through three closer ones in turn.
    Sample refined(std::size_t i) const
    {
        Sample best = samples_[i];
        Near near = around(i);
        for (int k = 0; k < kRefinements; ++k) {
            const Real f = vertexOf(near);
            if (!(f > near[0].place.f && f < near[2].place.f) || f == near[1].place.f)
                break;
            const Sample vertex = at({f, best.place.band});
            if (isLarger(vertex, best) && (vertex.error < 0) == (best.error < 0))
                best = vertex;
            const bool isLeft = f < near[1].place.f;
            if (isLarger(vertex, near[1]))
                near = isLeft ? Near{near[0], vertex, near[1]} : Near{near[1], vertex, near[2]};
            else
                near[isLeft ? 0 : 2] = vertex;
        }
        return best;
    }

    const Interpolant& interpolant_;
    const std::vector<ApproximationBand>& bands_;
    Real longestStep_;
    std::vector<Sample> samples_;
};

} // namespace

std::vector<Sample> extremaOf(const Interpolant& interpolant, const Approximation& approximation,
                              const Reference& reference, Real noise)
{
    Scan scan{interpolant, approximation};
    scan.run(reference);
    return scan.extrema(noise);
}

} // namespace quordsp::backend
