// Velocity and displacement of a stream of blocks, by the trapezoidal rule.
//
// There is no work array: the velocity's array holds the acceleration without its line until the integral, which only
// looks one sample back, takes its place.
#include "QuorDSP_DAQ.h"
#include "numeric/linear_regression.h"
#include "numeric/vibration.h"

namespace quordsp {
namespace {

// One stream in the process; callers see to it that no two calls meet.
struct Stream {
    double sampleRate = 51200.0;
    double sensitivity = 17.53;
    Bounds velocityBounds{1e8, -1e8};
    Bounds displacementBounds{1e8, -1e8};
    Motion last{};
};
constinit Stream stream;

// A mode that no int holds is that of a continuation, like any below 1.
bool startsStream(double mode) noexcept
{
    return mode >= 1.0 && mode < 0x1p31;
}

void loadSettings(const double* params) noexcept
{
    stream.sampleRate = params[1];
    stream.sensitivity = params[2];
    stream.last.velocity = params[4];
    stream.last.displacement = params[5];
    stream.velocityBounds = {params[6], params[7]};
    stream.displacementBounds = {params[8], params[9]};
}

// Both from the raw samples: what the caller gets, and what is integrated.
void scale(const double* raw, double offset, double* acceleration, double* velocity, int count) noexcept
{
    const double sensitivity = stream.sensitivity;
    for (int i = 0; i < count; ++i) {
        const double a = accelerationOf(raw[i], sensitivity, offset);
        acceleration[i] = a;
        velocity[i] = a;
    }
}

// In the first block both records begin with 0, and the displacement integrates the velocity one sample ahead: clients
// rely on it. Beyond the last sample the velocity is taken for 0.
void integrateFirst(double* velocity, double* displacement, int count, double dt) noexcept
{
    const Bounds velocityBounds = stream.velocityBounds;
    TrapezoidalSum v{stream.last.velocity, velocity[0], dt};
    velocity[0] = 0.0;
    for (int i = 1; i < count; ++i)
        velocity[i] = velocityBounds.clip(v.add(velocity[i]));
    removeLine(velocity, count);

    const Bounds displacementBounds = stream.displacementBounds;
    const auto ahead = [=](int i) { return i + 1 < count ? velocity[i + 1] : 0.0; };
    TrapezoidalSum d{stream.last.displacement, ahead(0), dt};
    displacement[0] = 0.0;
    for (int i = 1; i < count; ++i)
        displacement[i] = displacementBounds.clip(d.add(ahead(i)));
}

// The first elements, which go on from the block before, are not clipped.
void integrateNext(double* velocity, double* displacement, int count, double dt) noexcept
{
    const Bounds velocityBounds = stream.velocityBounds;
    TrapezoidalSum v{stream.last.velocity, stream.last.acceleration, dt};
    velocity[0] = v.add(velocity[0]);
    for (int i = 1; i < count; ++i)
        velocity[i] = velocityBounds.clip(v.add(velocity[i]));
    removeLine(velocity, count);

    const Bounds displacementBounds = stream.displacementBounds;
    TrapezoidalSum d{stream.last.displacement, stream.last.velocity, dt};
    displacement[0] = d.add(velocity[0]);
    for (int i = 1; i < count; ++i)
        displacement[i] = displacementBounds.clip(d.add(velocity[i]));
}

} // namespace
} // namespace quordsp

using namespace quordsp;

AnalysisLibErrType QuorDSP_Vibration_Acceleration(double* params, double* raw, double* acceleration, double* velocity,
                                                  double* displacement, int count) noexcept
{
    if (!params || !raw || !acceleration || !velocity || !displacement || count < 1)
        return QUORDSP_BAD_ARGUMENT;
    // Before a new rate is stored: it holds from the second block on, as clients rely on.
    const double dt = 1.0 / stream.sampleRate;
    const bool first = startsStream(params[0]);
    if (first)
        loadSettings(params);

    // A continuation adds 0 all the same, which makes -0 a +0.
    scale(raw, first ? params[3] : 0.0, acceleration, velocity, count);
    removeLine(velocity, count);
    const double lastAcceleration = velocity[count - 1];
    (first ? integrateFirst : integrateNext)(velocity, displacement, count, dt);
    removeTrend(velocity, count, first ? 2 : 5);
    removeTrend(displacement, count, 15);

    stream.last = {lastAcceleration, velocity[count - 1], displacement[count - 1]};
    metresToMillimetres(velocity, count);
    metresToMillimetres(displacement, count);
    return QUORDSP_SUCCESS;
}
