// What is stored of an array, instead of its values: enough to see any single one that is off by 1e-13 of the largest.
// Every eight neighbours have a sum with fixed weights between 1 and 2, of either sign.
#pragma once
#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace quordsp::parity {

// How far two systems may be apart, relative to the largest value of an array. exp, log, sin and the like differ by a
// unit in the last place from one run-time to another; the designs take them in long double, so that no result needs
// more than this.
inline constexpr double kTolerance = 1e-13;

struct Fingerprint {
    std::size_t count;              // of values
    std::string notFinite;          // kind, first and number of those that follow each other; or a dot
    double largest;                 // absolute value of the others, which count as 0 in the sums
    std::vector<std::int64_t> sums; // of parts of the largest; none if that is 0
};

Fingerprint fingerprintOf(const std::vector<double>& values);

// One blank between any two of its parts.
std::ostream& operator<<(std::ostream& text, const Fingerprint& fingerprint);
std::istream& operator>>(std::istream& text, Fingerprint& fingerprint);

// In what the values differ from those of the fingerprint by more than the tolerance; empty if in nothing.
std::string difference(const std::vector<double>& values, const Fingerprint& stored);

} // namespace quordsp::parity
