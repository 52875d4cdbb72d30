#include "QuorDSP_DAQ.h"
#include "reference/vibration.h"
#include "vibration_calls.h"

#include "targets.h"

namespace quordsp::fuzz {
namespace {

int call(const reference::EulerSettings& s, std::vector<double> raw, int count, std::vector<double> breakpoints,
         Records& records)
{
    return QuorDSP_Vibration_Acceleration_Euler(raw.data(), count, s.sampleRate, s.scale, s.offset, s.initialVelocity,
                                                s.initialDisplacement, s.velocityMax, s.velocityMin, s.displacementMax,
                                                s.displacementMin, records.acceleration.data(), records.velocity.data(),
                                                records.displacement.data(), breakpoints.data(), sizeOf(breakpoints));
}

} // namespace

// The bits of the plain steps; and no count below 1 touches anything.
void vibration_euler(Bytes bytes)
{
    reference::EulerSettings settings{1000, 0.1, 0.5};
    if (bytes.byte() % 2)
        for (double* const setting : {&settings.sampleRate, &settings.scale, &settings.offset,
                                      &settings.initialVelocity, &settings.initialDisplacement, &settings.velocityMax,
                                      &settings.velocityMin, &settings.displacementMax, &settings.displacementMin})
            *setting = bytes.number();
    const auto breakpoints = bytes.numbers(bytes.between(0, 4));
    const auto raw = bytes.numbers(bytes.between(1, 40));
    const Records before{raw.size()};
    Records records = before;
    require(call(settings, raw, -bytes.byte(), breakpoints, records) == 0, "status 0");
    require(areSame(records, before), "no count below 1 touches anything");
    require(call(settings, raw, sizeOf(raw), breakpoints, records) == 0, "status 0");
    const auto expected = reference::vibrationEuler(settings, raw, before.velocity, before.displacement, breakpoints);
    require(areSame(records, {expected.acceleration, expected.velocity, expected.displacement}),
            "the bits of the plain steps");
}

} // namespace quordsp::fuzz
