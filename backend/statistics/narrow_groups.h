// Groups so narrow that the sums of each are best formed from its samples one by one.
#pragma once

#include "statistics/groups.h"

namespace quordsp::backend {

class NarrowGroups final : public Groups {
public:
    static constexpr std::size_t kMostWidth = 1024;

    explicit NarrowGroups(std::size_t width) : width_{width} {}

    void reserve(std::size_t) override {}
    std::size_t take(const double* x, std::size_t n, double* slopes) noexcept override;
    GroupSums sums(std::size_t i) const noexcept override;

private:
    std::size_t width_;
    std::size_t end_ = 0;
    double samples_[kMostWidth + kMostAtOnce];
};

} // namespace quordsp::backend
