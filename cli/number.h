// Numbers to text and back, the same in every locale.
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace quordsp::cli {

// Appends the shortest decimal text that reads back as exactly this value.
void appendShortest(std::string& text, double value);
std::string shortest(double value);

// At most so many significant digits, without trailing zeros: for people to read.
std::string rounded(double value, int digits = 6);

// For the frequencies of filters, whose edges may lie close to each other.
inline constexpr int kFrequencyDigits = 8;

// "1 sample", "2 samples"
std::string counted(std::size_t count, const std::string& what);

// The whole text as one finite number with a decimal point; nothing when it is not one. A leading plus sign is
// accepted.
std::optional<double> parseNumber(std::string_view text);

// True for the whole text of any number, also of one that parseNumber() refuses: nan, inf, and what is out of range.
bool looksLikeNumber(std::string_view text);

// The whole text as a count, 1 or more.
std::optional<std::size_t> parseCount(std::string_view text);

} // namespace quordsp::cli
