#include "fir/error_scan.h"

#include "fir/quick_errors.h"

#include <algorithm>
#include <array>

namespace quordsp::backend {
namespace {

constexpr int kStepsPerExtremum = 16;
constexpr int kRefinements = 3;

template <class Number>
struct Point {
    Number f;
    Number error;

    bool isNegative() const { return error < 0; }
    bool isLargerThan(const Point& other) const { return std::abs(error) > std::abs(other.error); }
};

// An extremum with three points of its band around it or, when it is at the edge, beside it.
template <class Number>
struct Peak {
    std::size_t band;
    Point<Number> best;
    std::array<Point<Number>, 3> near;

    // Of the parabola through the three; the middle one when they lie on a line or too close to each other.
    Number vertex() const
    {
        const Number left = near[1].f - near[0].f, right = near[1].f - near[2].f;
        const Number leftRise = left * (near[1].error - near[2].error);
        const Number rightRise = right * (near[1].error - near[0].error);
        const Number f = near[1].f - (left * leftRise - right * rightRise) / (2 * (leftRise - rightRise));
        return f > near[0].f && f < near[2].f ? f : near[1].f;
    }

    // Keeps those three of the four that are closer.
    void closeIn(const Point<Number>& vertex)
    {
        if (vertex.f == near[1].f)
            return;
        if (vertex.isLargerThan(best) && vertex.isNegative() == best.isNegative())
            best = vertex;
        const bool isLeft = vertex.f < near[1].f;
        if (vertex.isLargerThan(near[1])) {
            near[isLeft ? 2 : 0] = near[1];
            near[1] = vertex;
        } else {
            near[isLeft ? 0 : 2] = vertex;
        }
    }
};

// Works with any way to form errors, in the type that its frequencies and errors have.
template <class Errors>
class Scan {
public:
    using Number = typename Errors::Number;

    Scan(const Errors& errors, const Approximation& approximation)
        : errors_{errors},
          longestStep_{static_cast<Number>(1) /
                       static_cast<Number>(2 * kStepsPerExtremum * approximation.filter.size())}
    {}

    std::vector<Sample> extrema(const Approximation& approximation, const Reference& reference, Number noise)
    {
        formGrid(approximation, reference);
        const auto wrong = std::ranges::find_if(values_, [](Number error) { return std::isnan(error); });
        if (wrong != values_.end())
            return {Sample{{}, *wrong}};
        formPeaks(noise);
        for (int k = 0; k < kRefinements; ++k)
            closeIn();
        std::vector<Sample> result;
        result.reserve(peaks_.size());
        for (const Peak<Number>& peak : peaks_)
            result.push_back({{peak.best.f, peak.band}, peak.best.error});
        return result;
    }

private:
    // The edges of the bands, the reference, and 16 steps or more between each two of these: the steps are small where
    // extrema crowd.
    void formGrid(const Approximation& approximation, const Reference& reference)
    {
        auto place = reference.begin();
        for (std::size_t band = 0; band < approximation.bands.size(); ++band) {
            f_.push_back(static_cast<Number>(approximation.bands[band].lower));
            for (; place != reference.end() && place->band == band; ++place)
                addUpTo(static_cast<Number>(place->f));
            addUpTo(static_cast<Number>(approximation.bands[band].upper));
            ends_.push_back(f_.size());
        }
        values_.resize(f_.size());
        for (std::size_t band = 0; band < ends_.size(); ++band)
            errors_.evaluate(band, std::span{f_}.subspan(beginOf(band), ends_[band] - beginOf(band)),
                             values_.data() + beginOf(band));
    }

    void addUpTo(Number end)
    {
        const Number from = f_.back();
        const Number length = end - from;
        if (!(length > 0))
            return;
        const int steps = std::max(kStepsPerExtremum, 1 + static_cast<int>(length / longestStep_));
        const Number step = length / static_cast<Number>(steps);
        for (int i = 1; i < steps; ++i)
            f_.push_back(from + step * static_cast<Number>(i));
        f_.push_back(end);
    }

    std::size_t beginOf(std::size_t band) const { return band == 0 ? 0 : ends_[band - 1]; }
    Point<Number> pointAt(std::size_t i) const { return {f_[i], values_[i]}; }

    void formPeaks(Number noise)
    {
        for (std::size_t band = 0; band < ends_.size(); ++band)
            for (std::size_t i = beginOf(band); i < ends_[band]; ++i) {
                const Point<Number> point = pointAt(i);
                if (std::abs(point.error) <= noise)
                    continue;
                const bool isNew = peaks_.empty() || point.isNegative() != peaks_.back().best.isNegative();
                if (isNew)
                    peaks_.push_back({band, point, around(band, i)});
                else if (point.isLargerThan(peaks_.back().best))
                    peaks_.back() = {band, point, around(band, i)};
            }
    }

    // Every band has at least three points.
    std::array<Point<Number>, 3> around(std::size_t band, std::size_t i) const
    {
        const std::size_t first = std::clamp(i, beginOf(band) + 1, ends_[band] - 2) - 1;
        return {pointAt(first), pointAt(first + 1), pointAt(first + 2)};
    }

    // All peaks of a band at once, each by the vertex of its parabola.
    void closeIn()
    {
        f_.resize(peaks_.size());
        std::ranges::transform(peaks_, f_.begin(), &Peak<Number>::vertex);
        for (std::size_t begin = 0; begin < peaks_.size();) {
            const std::size_t band = peaks_[begin].band;
            std::size_t end = begin;
            while (end < peaks_.size() && peaks_[end].band == band)
                ++end;
            errors_.evaluate(band, std::span{f_}.subspan(begin, end - begin), values_.data() + begin);
            begin = end;
        }
        for (std::size_t i = 0; i < peaks_.size(); ++i)
            peaks_[i].closeIn(pointAt(i));
    }

    const Errors& errors_;
    Number longestStep_;
    std::vector<Number> f_, values_;
    std::vector<std::size_t> ends_; // of the bands
    std::vector<Peak<Number>> peaks_;
};

} // namespace

std::vector<Sample> extremaOf(const Interpolant& interpolant, const Approximation& approximation,
                              const Reference& reference, Real noise)
{
    return Scan{interpolant, approximation}.extrema(approximation, reference, noise);
}

std::vector<Sample> quickExtremaOf(const Interpolant& interpolant, const Approximation& approximation,
                                   const Reference& reference)
{
    const QuickErrors errors{interpolant, approximation};
    if (!errors.areInRange())
        return {};
    return Scan{errors, approximation}.extrema(approximation, reference, 0);
}

} // namespace quordsp::backend
