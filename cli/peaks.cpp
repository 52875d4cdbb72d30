#include "peaks.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "QuorDSP_DAQ.h"
#include "backend_function.h"
#include "progress.h"
#include "status.h"

namespace quordsp::cli {
namespace {

// An array that the backend has allocated. One of a backend without the function lasts as long as the program.
class BackendArray {
public:
    BackendArray() = default;
    ~BackendArray()
    {
        if (const auto release = backendFunction<QuorDSP_FreeAnalysisMemFunction>("AALFunc238"))
            release(values_);
    }
    BackendArray(const BackendArray&) = delete;
    BackendArray& operator=(const BackendArray&) = delete;

    double** target() { return &values_; }
    double operator[](std::size_t index) const { return values_[index]; }

private:
    double* values_ = nullptr;
};

// Without a threshold every peak counts.
double thresholdOf(const PeakSearch& search)
{
    constexpr double kMost = std::numeric_limits<double>::max();
    return search.threshold.value_or(search.valleys ? kMost : -kMost);
}

} // namespace

std::vector<Peak> findPeaks(std::span<const double> samples, const PeakSearch& search)
{
    std::int64_t count = 0;
    BackendArray places;
    BackendArray amplitudes;
    BackendArray secondDerivatives;
    const Progress progress("looking for peaks");
    check(QuorDSP_PeakDetector(samples.data(), static_cast<int>(samples.size()), thresholdOf(search), search.width,
                               search.valleys ? 1 : 0, 1, 1, &count, places.target(), amplitudes.target(),
                               secondDerivatives.target()),
          search.valleys ? "search for valleys" : "search for peaks");
    std::vector<Peak> peaks(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < peaks.size(); ++i)
        peaks[i] = {places[i], amplitudes[i], secondDerivatives[i]};
    return withoutStrays(peaks, samples.size());
}

// Of the rows of each length the one that ends at the lowest place can be continued best: lastOf[n] is the end of one
// with n + 1 peaks, and before[i] the peak in front of peak i.
std::vector<Peak> withoutStrays(std::span<const Peak> peaks, std::size_t samples)
{
    const auto placeOf = [&](std::size_t peak) { return peaks[peak].place; };
    std::vector<std::size_t> lastOf;
    std::vector<std::size_t> before(peaks.size());
    for (std::size_t i = 0; i < peaks.size(); ++i) {
        const bool isInside = placeOf(i) > -1 && placeOf(i) < static_cast<double>(samples);
        if (!isInside)
            continue;
        const auto longer = std::ranges::lower_bound(lastOf, placeOf(i), {}, placeOf);
        before[i] = longer == lastOf.begin() ? i : *(longer - 1);
        if (longer == lastOf.end())
            lastOf.push_back(i);
        else
            *longer = i;
    }
    std::vector<Peak> row(lastOf.size());
    std::size_t at = lastOf.empty() ? 0 : lastOf.back();
    for (auto peak = row.rbegin(); peak != row.rend(); ++peak, at = before[at])
        *peak = peaks[at];
    return row;
}

std::optional<Intervals> intervalsOf(std::span<const Peak> peaks)
{
    if (peaks.size() < 2)
        return std::nullopt;
    Intervals intervals{(peaks.back().place - peaks.front().place) / static_cast<double>(peaks.size() - 1),
                        std::numeric_limits<double>::infinity(), 0};
    for (std::size_t i = 1; i < peaks.size(); ++i) {
        const double interval = peaks[i].place - peaks[i - 1].place;
        intervals.shortest = std::min(intervals.shortest, interval);
        intervals.longest = std::max(intervals.longest, interval);
    }
    return intervals;
}

} // namespace quordsp::cli
