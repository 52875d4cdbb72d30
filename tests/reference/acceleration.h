// Vibration integration by the backend, step by step as it is defined.
#pragma once
#include <array>
#include <functional>
#include <vector>

namespace quordsp::reference {

class AccelerationStream {
public:
    using Samples = std::vector<double>;
    using Integrate = std::function<void(const Samples& in, double dt, double initial, double final, Samples& out)>;
    using RemoveTrend = std::function<void(Samples& data, int order)>;
    struct Result {
        Samples acceleration;
        Samples velocity;
        Samples displacement;
    };

    AccelerationStream(Integrate integrate, RemoveTrend removeTrend)
        : integrate_{std::move(integrate)}, removeTrend_{std::move(removeTrend)}
    {}

    // velocity and displacement as the caller left them.
    Result next(const std::array<double, 10>& params, const Samples& raw, Samples velocity, Samples displacement)
    {
        const double dt = 1.0 / sampleRate_;
        sampleRate_ = params[1];
        Samples acceleration;
        for (const double sample : raw)
            acceleration.push_back((sample * 1000.0 / params[2] + params[3]) * 9.78);
        integrate_(acceleration, dt, lastAcceleration_, acceleration.back(), velocity);
        integrate_(velocity, dt, lastVelocity_, velocity.back(), displacement);
        for (double& v : velocity)
            v += lastVelocity_;
        for (double& d : displacement)
            d += lastDisplacement_;
        removeTrend_(velocity, 5);
        removeTrend_(displacement, 9);
        lastAcceleration_ = acceleration.back();
        lastVelocity_ = velocity.back();
        lastDisplacement_ = displacement.back();
        for (double& v : velocity)
            v *= 1000.0;
        for (double& d : displacement)
            d *= 1000.0;
        return {acceleration, velocity, displacement};
    }

private:
    Integrate integrate_;
    RemoveTrend removeTrend_;
    double sampleRate_ = 51200.0;
    double lastAcceleration_ = 0.0;
    double lastVelocity_ = 0.0;
    double lastDisplacement_ = 0.0;
};

} // namespace quordsp::reference
