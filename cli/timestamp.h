// A date with a time of day, as logs write them.
#pragma once
#include <cstdint>
#include <optional>
#include <string_view>

namespace quordsp::cli {

struct Timestamp {
    std::int64_t second; // since 1970, of the same clock
    double fraction;     // 0 or more, below 1
};

// The whole text as "2026-05-26 09:04:27.367": a T may stand for the blank and a comma for the point; seconds and their
// decimals may be missing. A time zone at the end ("Z", "+02", "+02:00", "+0200") is taken off. Nothing for any other
// text and for a date or an hour that does not exist.
std::optional<Timestamp> parseTimestamp(std::string_view text);

// To the nanosecond, so that decimals come out as they went in.
double secondsBetween(const Timestamp& from, const Timestamp& to);

} // namespace quordsp::cli
