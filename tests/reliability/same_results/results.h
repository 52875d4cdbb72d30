// What every routine gives for deterministic data, and the comparison with the stored results.
#pragma once
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace quordsp::same_results {

struct Result {
    std::string name;
    std::vector<double> values;
    // Largest difference in units in the last place. Above 0 only where a function of the C run-time enters.
    std::uint64_t tolerance = 0;
};
using Results = std::vector<Result>;

// One unit in the last place of a single-precision value, in those of a double.
inline constexpr std::uint64_t kSingleUnit = std::uint64_t{1} << 29;

Results lineResults();
Results trendResults();
Results vibrationResults();
Results thermocoupleResults();
Results ratioResults();
Results fileResults(const std::filesystem::path& folder);

// A line of the stored results: the name, and either a hash of all values or, with a tolerance, the values' bits. All
// NaNs are one, since their sign and payload mean nothing.
std::string lineOf(const Result& result);

// Empty, or what disagrees with the stored results.
std::string disagreements(const Results& results);

} // namespace quordsp::same_results
