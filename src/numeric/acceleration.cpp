// Velocity and displacement of a stream of blocks, integrated by the backend.
#include "frame/entries.h"
#include "numeric/vibration.h"

namespace quordsp {
namespace {

// One stream in the process; callers see to it that no two calls meet.
struct Stream {
    double sampleRate = 51200.0;
    double sensitivity = 17.53;
    Motion last{};
};
constinit Stream stream;

void scale(const double* raw, double sensitivity, double offset, double* acceleration, int count) noexcept
{
    for (int i = 0; i < count; ++i)
        acceleration[i] = accelerationOf(raw[i], sensitivity, offset);
}

void shift(double* data, int count, double by) noexcept
{
    for (int i = 0; i < count; ++i)
        data[i] += by;
}

} // namespace
} // namespace quordsp

using namespace quordsp;

AnalysisLibErrType QuorDSP_Acceleration(double* params, double* raw, double* acceleration, double* velocity,
                                        double* displacement, int count) noexcept
{
    if (!params || !raw || !acceleration || !velocity || !displacement || count < 1 || !(params[1] > 0.0))
        return QUORDSP_BAD_ARGUMENT;
    // Before the new rate is stored: it holds from the next block on, as clients rely on.
    const double dt = 1.0 / stream.sampleRate;
    stream.sampleRate = params[1];
    stream.sensitivity = params[2];

    scale(raw, stream.sensitivity, params[3], acceleration, count);
    // Where the backend fails or is missing, both records are processed as they are.
    const int end = count - 1;
    entry::Integrate(acceleration, widen(count), dt, stream.last.acceleration, acceleration[end], velocity);
    entry::Integrate(velocity, widen(count), dt, stream.last.velocity, velocity[end], displacement);
    shift(velocity, count, stream.last.velocity);
    shift(displacement, count, stream.last.displacement);
    removeTrend(velocity, count, 5);
    removeTrend(displacement, count, 9);

    stream.last = {acceleration[end], velocity[end], displacement[end]};
    metresToMillimetres(velocity, count);
    metresToMillimetres(displacement, count);
    return QUORDSP_SUCCESS;
}
