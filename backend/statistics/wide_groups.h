// Groups so wide that their sums are put together from parts, at a cost that does not depend on the width.
#pragma once

#include "statistics/groups.h"
#include "statistics/twofold.h"

#include <vector>

namespace quordsp::backend {

// Sums of the samples on one side of a boundary, which grows away from it: of y, of p y and of p (p + 1) / 2 y, where p
// is 1 for the newest sample, 2 for the one before it and so on.
struct Moments {
    Twofold sum;
    Twofold first;
    Twofold second;

    void extend(double y) noexcept;
};

// As much memory as one group of samples, and a quarter more.
class WideGroups final : public Groups {
public:
    explicit WideGroups(std::size_t width) : width_{width} {}

    void reserve(std::size_t n) override;
    std::size_t take(const double* x, std::size_t n, double* slopes) noexcept override;
    GroupSums sums(std::size_t i) const noexcept override { return sums_[i]; }

private:
    static constexpr std::size_t kSegment = 64;

    void enter(double y) noexcept;
    void beginBlock() noexcept;
    void beginSegment() noexcept;
    GroupSums join() const noexcept;

    std::size_t width_;
    std::vector<double> samples_; // before position_ of this block, from there on of the block before
    std::size_t position_ = 0;    // of the next sample in its block
    Moments before_;              // of the samples of this block
    std::vector<Moments> after_;  // of the block before, from the end of each segment on
    Moments fromHere_[kSegment];  // of the block before, from each position of this segment on
    GroupSums sums_[kMostAtOnce];
};

} // namespace quordsp::backend
