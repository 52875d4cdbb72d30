// What the rounding of a filter's sections does to its gain.
#pragma once

#include "iir/axis.h"
#include "status.h"

#include <algorithm>

namespace quordsp::backend {

class GainAccount {
public:
    explicit GainAccount(std::span<const AxisPoint> points) : points_{points}, errors_(points.size(), 1) {}

    // Of one more section: errorAt gives the squared gain at a point over the exact one.
    template <class Error>
    void add(const Error& errorAt)
    {
        std::transform(points_.begin(), points_.end(), errors_.begin(), errors_.begin(),
                       [&](const AxisPoint& point, Real error) { return error * errorAt(point); });
    }

    // DesignFailed if the product of the sections is off.
    void requireSmall() const
    {
        for (Real squared : errors_)
            require(std::abs(std::sqrt(squared) - 1) <= kLargestGainError, Status::DesignFailed);
    }

private:
    static constexpr Real kLargestGainError = 1e-3L;

    std::span<const AxisPoint> points_;
    std::vector<Real> errors_; // squared
};

} // namespace quordsp::backend
