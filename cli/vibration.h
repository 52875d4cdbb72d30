// The acceleration of a whole record to velocity and displacement, in the blocks that the library works on.
#pragma once
#include <cstddef>
#include <limits>
#include <span>
#include <string_view>
#include <vector>

namespace quordsp::cli {

// What the integral may reach before its trend is taken out.
struct Bounds {
    double low = -std::numeric_limits<double>::max();
    double high = std::numeric_limits<double>::max();
};

struct VibrationSettings {
    double rate = 0;           // Hz, > 0
    double sensitivity = 1000; // mV per g for samples in V; 1000 for samples in g; not 0
    double offset = 0;         // g, added to the acceleration
    Bounds velocity = {};      // mm/s
    Bounds displacement = {};  // mm
};

struct VibrationRecord {
    std::vector<double> acceleration; // m/s^2
    std::vector<double> velocity;     // mm/s
    std::vector<double> displacement; // mm
};

inline constexpr double kLibraryG = 9.78; // m/s^2, the library's

// How many g one unit of acceleration is; 0 when the unit is another one. Without a name it is g.
double gPerUnit(std::string_view unit);

// Fewer samples leave nothing of the displacement, whose trend has 16 unknowns; of more, another line than the
// least-squares one is taken out.
inline constexpr std::size_t kFewestBlockSamples = 32;
inline constexpr std::size_t kMostBlockSamples = 46341;

// The record of raw samples, in blocks of so many, or one of all when they are fewer. Each block loses its own trends,
// so that slow motion is lost: the displacement keeps 95 % of what has 12 periods a block, and next to nothing of what
// has fewer than 5. Blocks overlap by half and give their middle, since a trend fits badly at the ends: only those of
// the record show it.
VibrationRecord integrateVibration(std::span<const double> raw, const VibrationSettings& settings, std::size_t block);

} // namespace quordsp::cli
