// Sums that slide with the group, by adding a sample in front and taking one away behind, would keep what rounding left
// of every sample that ever was among them, and NaN for good. Here nothing is ever taken away: the signal is cut into
// blocks of one width, so that a group is the end of one block and the beginning of the next, and the sums of both
// parts grow sample by sample, those of beginnings forwards, those of ends backwards. Of the ends only every 64th is
// kept from that walk; those between are formed again as the group reaches their segment.
//
// The weights of a group come from sums of sums: the sum of all sums so far counts the newest sample once, the one
// before it twice and so on. With n = w + 1 the sample counted p times lies v = n - 2 p from the centre in a beginning,
// and v = 2 p - n in an end. Three times v^2 less w^2 - 1 is 2 n (w + 2) - 12 (w + 2) p + 24 p (p + 1) / 2.
//
// These weights do not cancel a constant by themselves: sums of twice the precision do.
#include "statistics/wide_groups.h"

#include <algorithm>

namespace quordsp::backend {

void Moments::extend(double y) noexcept
{
    sum = sum + y;
    first = first + sum;
    second = second + first;
}

void WideGroups::reserve(std::size_t n)
{
    const std::size_t free = width_ - samples_.size();
    if (samples_.capacity() < samples_.size() + std::min(n, free))
        samples_.reserve(samples_.size() + std::min(std::max(n, samples_.size()), free));
    if (n >= free)
        after_.resize((width_ - 1) / kSegment + 1);
}

std::size_t WideGroups::take(const double* x, std::size_t n, double* slopes) noexcept
{
    std::size_t groups = 0;
    for (std::size_t i = 0; i < n; ++i) {
        enter(x[i]);
        if (samples_.size() < width_)
            continue;
        sums_[groups] = join();
        slopes[groups] = sums_[groups].slope;
        ++groups;
    }
    return groups;
}

void WideGroups::enter(double y) noexcept
{
    if (samples_.size() < width_) {
        samples_.push_back(y);
    } else {
        samples_[position_] = y;
        before_.extend(y);
    }
    ++position_;
    if (position_ == width_)
        beginBlock();
    else if (position_ % kSegment == 0 && samples_.size() == width_)
        beginSegment();
}

void WideGroups::beginBlock() noexcept
{
    position_ = 0;
    before_ = {};
    Moments moments;
    for (std::size_t i = width_; i-- > 0;) {
        if (i % kSegment == kSegment - 1 || i == width_ - 1)
            after_[i / kSegment] = moments;
        moments.extend(samples_[i]);
    }
    beginSegment();
}

void WideGroups::beginSegment() noexcept
{
    Moments moments = after_[position_ / kSegment];
    for (std::size_t i = std::min(position_ + kSegment, width_); i-- > position_;) {
        moments.extend(samples_[i]);
        fromHere_[i - position_] = moments;
    }
}

GroupSums WideGroups::join() const noexcept
{
    const Moments& end = fromHere_[position_ % kSegment];
    const auto w = static_cast<double>(width_);
    const double n = w + 1;
    const Twofold slope = n * (before_.sum - end.sum) - 2 * (before_.first - end.first);
    const Twofold sum = before_.sum + end.sum;
    const Twofold first = before_.first + end.first;
    const Twofold second = before_.second + end.second;
    const Twofold curvature = (w + 2) * (n * sum - 6 * first) + 12 * second;
    return {slope.high, 2 * curvature.high, sum.high, 0};
}

} // namespace quordsp::backend
