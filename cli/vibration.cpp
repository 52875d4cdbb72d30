#include "vibration.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "progress.h"
#include "status.h"

namespace quordsp::cli {
namespace {

constexpr double kMilli = 1e-3;

struct AccelerationUnit {
    std::string_view name;
    double g;
};

constexpr AccelerationUnit kAccelerationUnits[] = {
    {"", 1},
    {"g", 1},
    {"mg", kMilli},
    {"m/s2", 1 / kLibraryG},
    {"m/s^2", 1 / kLibraryG},
    {"mm/s2", kMilli / kLibraryG},
    {"mm/s^2", kMilli / kLibraryG},
};

using Parameters = std::array<double, 10>;

constexpr double kStart = 1;
constexpr double kContinuation = 0;

Parameters parametersOf(const VibrationSettings& settings)
{
    return {kStart,
            settings.rate,
            settings.sensitivity,
            0,
            0,
            0,
            settings.velocity.high * kMilli,
            settings.velocity.low * kMilli,
            settings.displacement.high * kMilli,
            settings.displacement.low * kMilli};
}

VibrationRecord recordOfSize(std::size_t count)
{
    const std::vector<double> none(count);
    return {none, none, none};
}

void integrate(Parameters& parameters, double* raw, VibrationRecord& out)
{
    requireSuccess(QuorDSP_Vibration_Acceleration(parameters.data(), raw, out.acceleration.data(), out.velocity.data(),
                                                  out.displacement.data(), static_cast<int>(out.velocity.size())),
                   "integration");
}

// The call that starts a stream integrates with the rate of the stream before it, and its displacement runs one sample
// ahead. A block of rest takes this part; what follows begins with everything set and from zero.
void startStream(Parameters& parameters)
{
    std::vector<double> rest(kFewestBlockSamples);
    VibrationRecord ignored = recordOfSize(rest.size());
    parameters[0] = kStart;
    integrate(parameters, rest.data(), ignored);
    parameters[0] = kContinuation;
}

// A continuation takes no offset: it goes into the samples.
std::vector<double> withOffset(std::span<const double> raw, const VibrationSettings& settings)
{
    std::vector<double> moved(raw.begin(), raw.end());
    for (double& sample : moved)
        sample += settings.offset * settings.sensitivity * kMilli;
    return moved;
}

// The samples from first to last of the record, of a part that starts there.
void copyPart(const VibrationRecord& part, std::size_t start, std::size_t first, std::size_t last,
              VibrationRecord& record)
{
    for (const auto samples :
         {&VibrationRecord::acceleration, &VibrationRecord::velocity, &VibrationRecord::displacement})
        std::copy((part.*samples).data() + (first - start), (part.*samples).data() + (last - start),
                  (record.*samples).data() + first);
}

} // namespace

double gPerUnit(std::string_view unit)
{
    const auto* found = std::ranges::find(kAccelerationUnits, unit, &AccelerationUnit::name);
    return found == std::end(kAccelerationUnits) ? 0 : found->g;
}

VibrationRecord integrateVibration(std::span<const double> raw, const VibrationSettings& settings, std::size_t block)
{
    const std::size_t count = raw.size();
    const std::size_t length = std::min(block, count);
    const std::size_t step = length < count ? length / 2 : count;
    std::vector<double> moved = withOffset(raw, settings);
    VibrationRecord record = recordOfSize(count);
    VibrationRecord part = recordOfSize(length);
    Parameters parameters = parametersOf(settings);
    Progress progress("integrating", count);
    for (std::size_t first = 0; first < count; first += step) {
        const std::size_t lead = (length - step) / 2;
        const std::size_t start = std::min(first - std::min(first, lead), count - length);
        startStream(parameters); // a block begins in the middle of the one before, not where that one ended
        integrate(parameters, moved.data() + start, part);
        copyPart(part, start, first, std::min(first + step, count), record);
        progress.reach(first);
    }
    return record;
}

} // namespace quordsp::cli
