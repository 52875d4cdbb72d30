#include "statistics/peak_detector.h"

#include "statistics/narrow_groups.h"
#include "statistics/peak_list.h"
#include "statistics/wide_groups.h"
#include "status.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace quordsp::backend {

namespace {

std::unique_ptr<Groups> makeGroups(std::size_t width)
{
    if (width <= NarrowGroups::kMostWidth)
        return std::make_unique<NarrowGroups>(width);
    return std::make_unique<WideGroups>(width);
}

// Valleys are the peaks of the negated signal.
class PeakDetector {
public:
    PeakDetector(std::size_t width, bool valleys) : width_{width}, valleys_{valleys}, groups_{makeGroups(width)} {}

    bool isFor(std::size_t width, bool valleys) const { return width == width_ && valleys == valleys_; }
    void reserve(std::size_t n) { groups_->reserve(n); }
    void take(const double* x, std::size_t n, double threshold, PeakList& peaks) noexcept;
    void end(double threshold, PeakList& peaks) const noexcept;

private:
    void takeSome(const double* x, std::size_t n, double threshold, PeakList& peaks) noexcept;
    void judgeBoth(std::int64_t group, const GroupSums& before, const GroupSums& here, double threshold,
                   PeakList& peaks) const noexcept;
    void judgeAlone(std::int64_t group, const GroupSums& sums, double threshold, PeakList& peaks) const noexcept;
    void add(std::int64_t group, const Parabola& parabola, double threshold, PeakList& peaks) const noexcept;
    Parabola fit(const GroupSums& sums) const noexcept { return parabolaOf(sums, static_cast<double>(width_)); }

    std::size_t width_;
    bool valleys_;
    std::unique_ptr<Groups> groups_;
    std::int64_t groupCount_ = 0; // since the beginning of the signal
    GroupSums last_ = {};         // of the last one
};

void PeakDetector::take(const double* x, std::size_t n, double threshold, PeakList& peaks) noexcept
{
    for (std::size_t i = 0; i < n; i += Groups::kMostAtOnce)
        takeSome(x + i, std::min(n - i, Groups::kMostAtOnce), threshold, peaks);
}

void PeakDetector::takeSome(const double* x, std::size_t n, double threshold, PeakList& peaks) noexcept
{
    double samples[Groups::kMostAtOnce];
    double slopes[Groups::kMostAtOnce];
    std::transform(x, x + n, samples, [this](double value) { return valleys_ ? -value : value; });
    const std::size_t groups = groups_->take(samples, n, slopes);
    if (groups == 0)
        return;
    if (groupCount_ == 0 && slopes[0] <= 0)
        judgeAlone(0, groups_->sums(0), threshold, peaks);
    double slopeBefore = last_.slope;
    for (std::size_t i = 0; i < groups; ++i) {
        if (slopeBefore > 0 && slopes[i] <= 0)
            judgeBoth(groupCount_ + static_cast<std::int64_t>(i), i > 0 ? groups_->sums(i - 1) : last_,
                      groups_->sums(i), threshold, peaks);
        slopeBefore = slopes[i];
    }
    last_ = groups_->sums(groups - 1);
    groupCount_ += static_cast<std::int64_t>(groups);
}

void PeakDetector::end(double threshold, PeakList& peaks) const noexcept
{
    if (last_.slope > 0)
        judgeAlone(groupCount_ - 1, last_, threshold, peaks);
}

void PeakDetector::judgeBoth(std::int64_t group, const GroupSums& before, const GroupSums& here, double threshold,
                             PeakList& peaks) const noexcept
{
    if (!before.areFinite() || !here.areFinite())
        return;
    const bool hereIsNearer = here.curvature < 0 && std::abs(here.vertex()) < std::abs(before.vertex());
    if (before.curvature < 0 && !hereIsNearer)
        add(group - 1, fit(before), threshold, peaks);
    else if (here.curvature < 0)
        add(group, fit(here), threshold, peaks);
}

void PeakDetector::judgeAlone(std::int64_t group, const GroupSums& sums, double threshold,
                              PeakList& peaks) const noexcept
{
    if (!sums.areFinite() || !(sums.curvature < 0))
        return;
    if (const Parabola parabola = fit(sums); std::abs(parabola.vertex) <= 0.5)
        add(group, parabola, threshold, peaks);
}

// 0 minus a height, so that a valley at 0 is not at -0.
void PeakDetector::add(std::int64_t group, const Parabola& parabola, double threshold, PeakList& peaks) const noexcept
{
    const double height = parabola.heightOfVertex();
    if (!(height >= (valleys_ ? -threshold : threshold)))
        return;
    const double centre = static_cast<double>(group) + static_cast<double>(width_ - 1) / 2;
    const double bend = 2 * parabola.curvature;
    peaks.add({centre + parabola.vertex, valleys_ ? 0 - height : height, valleys_ ? -bend : bend});
}

std::unique_ptr<PeakDetector>& detectorOfThisThread()
{
    thread_local std::unique_ptr<PeakDetector> detector;
    return detector;
}

} // namespace

// What may fail comes first; then samples are taken.
void detectPeaks(const double* x, std::int64_t n, double threshold, std::int64_t width, std::int32_t polarity,
                 std::int32_t initialize, std::int32_t endOfData, std::int64_t* count, double** locations,
                 double** amplitudes, double** secondDerivatives)
{
    requirePositiveCount(n);
    requireArrays(x);
    requireArrays(count);
    requireArrays(locations, amplitudes, secondDerivatives);
    const auto samples = static_cast<std::size_t>(n);
    const auto groupWidth = static_cast<std::size_t>(std::max<std::int64_t>(width, 3));
    const bool valleys = polarity != 0;
    std::unique_ptr<PeakDetector>& present = detectorOfThisThread();
    const bool begins = initialize != 0 || !present;
    require(begins || present->isFor(groupWidth, valleys), Status::StateNotInitialized);
    std::unique_ptr<PeakDetector> beginning;
    if (begins)
        beginning = std::make_unique<PeakDetector>(groupWidth, valleys);
    PeakDetector& detector = begins ? *beginning : *present;
    PeakList peaks{samples / 2 + 1}; // of two groups, one at most has a slope that falls
    detector.reserve(samples);

    detector.take(x, samples, threshold, peaks);
    if (endOfData != 0)
        detector.end(threshold, peaks);
    if (begins)
        present = std::move(beginning);
    if (endOfData != 0)
        present.reset();
    peaks.handOver(count, locations, amplitudes, secondDerivatives);
}

} // namespace quordsp::backend
