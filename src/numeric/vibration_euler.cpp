// Velocity and displacement of one block, by the trapezoidal rule, without any state.
//
// There is no work array: the velocity's array holds the acceleration without its line until the integral, which only
// looks one sample ahead, takes its place.
#include "QuorDSP_DAQ.h"
#include "numeric/linear_regression.h"
#include "numeric/vibration.h"

namespace quordsp {
namespace {

// Both from the raw samples: what the caller gets, in g, and what is integrated.
void toAcceleration(const double* raw, double scale, double offset, double* acceleration, double* velocity,
                    int count) noexcept
{
    for (int i = 0; i < count; ++i) {
        const double g = scale * raw[i] + offset;
        acceleration[i] = g;
        velocity[i] = g * kGravity;
    }
}

// Writes all elements but the last, which stays as it is. out may be in.
void integrate(const double* in, int count, double dt, double start, Bounds bounds, double* out) noexcept
{
    TrapezoidalSum sum{start, in[0], dt};
    for (int i = 0; i + 1 < count; ++i)
        out[i] = bounds.clip(sum.add(in[i + 1]));
}

} // namespace
} // namespace quordsp

using namespace quordsp;

AnalysisLibErrType QuorDSP_Vibration_Acceleration_Euler(double* const raw, int count, double sampleRate, double scale,
                                                        double offset, double initialVelocity,
                                                        double initialDisplacement, double velocityMax,
                                                        double velocityMin, double displacementMax,
                                                        double displacementMin, double* const acceleration,
                                                        double* const velocity, double* const displacement,
                                                        double* const breakpoints, int breakpointCount) noexcept
{
    if (!raw || !acceleration || !velocity || !displacement || count < 1)
        return QUORDSP_SUCCESS;
    const double dt = 1.0 / sampleRate;
    // The caller's last velocity takes part in the removal of trends, as clients rely on.
    const double lastVelocity = velocity[count - 1];
    toAcceleration(raw, scale, offset, acceleration, velocity, count);
    removeLine(velocity, count);
    integrate(velocity, count, dt, initialVelocity, {velocityMax, velocityMin}, velocity);
    velocity[count - 1] = lastVelocity;
    removeLine(velocity, count);
    integrate(velocity, count, dt, initialDisplacement, {displacementMax, displacementMin}, displacement);
    detrend(velocity, count, 3, breakpoints, breakpointCount);
    detrend(displacement, count, 15, breakpoints, breakpointCount);
    return QUORDSP_SUCCESS;
}
