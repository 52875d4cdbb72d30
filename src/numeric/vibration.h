// What the vibration exports have in common: scaling, the trapezoidal rule, limits and units.
#pragma once

#include "numeric/detrend.h"

namespace quordsp {

// m/s^2 per g. Not the standard 9.80665: clients compare records that were scaled with this value.
inline constexpr double kGravity = 9.78;

// m/s^2, from a raw sample in V, the sensitivity in mV per g and the offset in g.
inline double accelerationOf(double raw, double sensitivity, double offset) noexcept
{
    return (raw * 1000.0 / sensitivity + offset) * kGravity;
}

// The running integral of samples that come in one after another.
class TrapezoidalSum {
public:
    TrapezoidalSum(double start, double sampleBefore, double dt) noexcept : sum_{start}, before_{sampleBefore}, dt_{dt}
    {}

    double add(double sample) noexcept
    {
        sum_ += (sample + before_) * dt_ * 0.5;
        before_ = sample;
        return sum_;
    }

private:
    double sum_;
    double before_;
    double dt_;
};

// The upper bound comes first, so that of crossed bounds the lower one holds. NaN passes.
struct Bounds {
    double upper;
    double lower;

    double clip(double value) const noexcept
    {
        const double capped = value > upper ? upper : value;
        return lower > capped ? lower : capped;
    }
};

// Where a stream of blocks has got to, in m/s^2, m/s and m.
struct Motion {
    double acceleration;
    double velocity;
    double displacement;
};

inline void removeTrend(double* data, int count, int order) noexcept
{
    detrend(data, count, order, nullptr, 0);
}

inline void metresToMillimetres(double* data, int count) noexcept
{
    for (int i = 0; i < count; ++i)
        data[i] *= 1000.0;
}

} // namespace quordsp
