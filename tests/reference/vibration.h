// Vibration integration with the trapezoidal rule, step by step as it is defined, with a work array of its own. Lines
// and trends are removed by the library's exports.
#pragma once
#include <array>
#include <vector>

#include "QuorDSP_DAQ.h"

namespace quordsp::reference {

struct Vibration {
    std::vector<double> acceleration;
    std::vector<double> velocity;
    std::vector<double> displacement;
};

inline double trapezoid(double p, double q, double dt)
{
    return (q + p) * dt * 0.5;
}

inline double clamped(double value, double upper, double lower)
{
    double stored = value;
    if (stored > upper)
        stored = upper;
    if (lower > stored)
        stored = lower;
    return stored;
}

class VibrationStream {
public:
    Vibration next(const std::array<double, 10>& params, const std::vector<double>& raw)
    {
        const double dt = 1.0 / sampleRate_;
        const int count = static_cast<int>(raw.size());
        const std::size_t n = raw.size();
        const bool first = params[0] >= 1.0;
        if (first) {
            sampleRate_ = params[1];
            sensitivity_ = params[2];
            lastVelocity_ = params[4];
            lastDisplacement_ = params[5];
            velocityUpper_ = params[6];
            velocityLower_ = params[7];
            displacementUpper_ = params[8];
            displacementLower_ = params[9];
        }
        std::vector<double> acceleration(n), w(n), velocity(n + 1, 0.0), displacement(n);
        for (std::size_t i = 0; i < n; ++i) {
            acceleration[i] = (raw[i] * 1000.0 / sensitivity_ + (first ? params[3] : 0.0)) * 9.78;
            w[i] = acceleration[i];
        }
        linear_regression(w.data(), count);
        if (first) {
            velocity[0] = 0.0;
            double v = lastVelocity_;
            for (std::size_t i = 1; i < n; ++i) {
                v += trapezoid(w[i - 1], w[i], dt);
                velocity[i] = clamped(v, velocityUpper_, velocityLower_);
            }
            linear_regression(velocity.data(), count);
            displacement[0] = 0.0;
            double d = lastDisplacement_;
            for (std::size_t i = 1; i < n; ++i) {
                d += trapezoid(velocity[i], velocity[i + 1], dt);
                displacement[i] = clamped(d, displacementUpper_, displacementLower_);
            }
        } else {
            velocity[0] = (lastAcceleration_ + w[0]) * dt * 0.5 + lastVelocity_;
            double v = velocity[0];
            for (std::size_t i = 1; i < n; ++i) {
                v += trapezoid(w[i - 1], w[i], dt);
                velocity[i] = clamped(v, velocityUpper_, velocityLower_);
            }
            linear_regression(velocity.data(), count);
            displacement[0] = (lastVelocity_ + velocity[0]) * dt * 0.5 + lastDisplacement_;
            double d = displacement[0];
            for (std::size_t i = 1; i < n; ++i) {
                d += trapezoid(velocity[i - 1], velocity[i], dt);
                displacement[i] = clamped(d, displacementUpper_, displacementLower_);
            }
        }
        velocity.resize(n);
        double breakpoint = 0.0;
        QuorDSP_detrend(velocity.data(), count, first ? 2 : 5, &breakpoint, 1);
        QuorDSP_detrend(displacement.data(), count, 15, &breakpoint, 1);
        lastAcceleration_ = w[n - 1];
        lastVelocity_ = velocity[n - 1];
        lastDisplacement_ = displacement[n - 1];
        for (std::size_t i = 0; i < n; ++i) {
            velocity[i] *= 1000.0;
            displacement[i] *= 1000.0;
        }
        return {acceleration, velocity, displacement};
    }

private:
    double sampleRate_ = 51200.0;
    double sensitivity_ = 17.53;
    double velocityUpper_ = 100000000.0;
    double velocityLower_ = -100000000.0;
    double displacementUpper_ = 100000000.0;
    double displacementLower_ = -100000000.0;
    double lastAcceleration_ = 0.0;
    double lastVelocity_ = 0.0;
    double lastDisplacement_ = 0.0;
};

// The arguments of QuorDSP_Vibration_Acceleration_Euler that are single numbers.
struct EulerSettings {
    double sampleRate = 1.0;
    double scale = 1.0;
    double offset = 0.0;
    double initialVelocity = 0.0;
    double initialDisplacement = 0.0;
    double velocityMax = 1e8;
    double velocityMin = -1e8;
    double displacementMax = 1e8;
    double displacementMin = -1e8;
};

// velocity and displacement as the caller left them, of which the last elements count.
inline Vibration vibrationEuler(const EulerSettings& s, const std::vector<double>& raw, std::vector<double> velocity,
                                std::vector<double> displacement, std::vector<double> breakpoints)
{
    const int count = static_cast<int>(raw.size());
    const int breakpointCount = static_cast<int>(breakpoints.size());
    const std::size_t n = raw.size();
    const double dt = 1.0 / s.sampleRate;
    std::vector<double> acceleration(n), w(n);
    for (std::size_t i = 0; i < n; ++i) {
        acceleration[i] = s.scale * raw[i] + s.offset;
        w[i] = acceleration[i] * 9.78;
    }
    linear_regression(w.data(), count);
    double v = s.initialVelocity;
    for (std::size_t i = 0; i + 1 < n; ++i) {
        v += trapezoid(w[i], w[i + 1], dt);
        velocity[i] = clamped(v, s.velocityMax, s.velocityMin);
    }
    linear_regression(velocity.data(), count);
    double d = s.initialDisplacement;
    for (std::size_t i = 0; i + 1 < n; ++i) {
        d += trapezoid(velocity[i], velocity[i + 1], dt);
        displacement[i] = clamped(d, s.displacementMax, s.displacementMin);
    }
    QuorDSP_detrend(velocity.data(), count, 3, breakpoints.data(), breakpointCount);
    QuorDSP_detrend(displacement.data(), count, 15, breakpoints.data(), breakpointCount);
    return {acceleration, velocity, displacement};
}

} // namespace quordsp::reference
