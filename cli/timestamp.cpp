#include "timestamp.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <string>

#include "number.h"

namespace quordsp::cli {
namespace {

// Takes the text apart from its front. Once something does not fit, nothing does any more.
class Parser {
public:
    explicit Parser(std::string_view text) : rest_(text) {}

    // A number of exactly so many digits, from 0 to the most.
    int number(std::size_t digits, int most)
    {
        int value = 0;
        const std::string_view part = rest_.substr(0, digits);
        const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), value);
        const bool fits = part.size() == digits && part[0] != '-' && error == std::errc{} &&
                          end == part.data() + part.size() && value <= most;
        valid_ = valid_ && fits;
        rest_.remove_prefix(part.size());
        return value;
    }

    bool takeAny(std::string_view characters)
    {
        const bool found = !rest_.empty() && characters.find(rest_[0]) != std::string_view::npos;
        if (found)
            rest_.remove_prefix(1);
        return found;
    }

    void need(std::string_view characters) { valid_ = takeAny(characters) && valid_; }

    // The decimals of a second, behind the point.
    double decimals()
    {
        std::size_t length = rest_.find_first_not_of("0123456789");
        length = std::min(length, rest_.size());
        valid_ = valid_ && length > 0;
        const std::string text = "0." + std::string(rest_.substr(0, length));
        rest_.remove_prefix(length);
        return parseNumber(text).value_or(0);
    }

    [[nodiscard]] bool isDone() const { return rest_.empty(); }
    [[nodiscard]] bool isValid() const { return valid_; }

private:
    std::string_view rest_;
    bool valid_ = true;
};

std::chrono::year_month_day takeDate(Parser& parser)
{
    const int year = parser.number(4, 9999);
    parser.need("-/");
    const int month = parser.number(2, 12);
    parser.need("-/");
    const int day = parser.number(2, 31);
    return {std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
            std::chrono::day(static_cast<unsigned>(day))};
}

Timestamp takeTimeOfDay(Parser& parser)
{
    const int hour = parser.number(2, 23);
    parser.need(":");
    const int minute = parser.number(2, 59);
    const int second = parser.takeAny(":") ? parser.number(2, 60) : 0; // 60 is a leap second
    const double fraction = parser.takeAny(".,") ? parser.decimals() : 0;
    return {(hour * 60 + minute) * 60 + second, fraction};
}

// Seconds that the clock is ahead of universal time.
int takeZone(Parser& parser)
{
    if (parser.takeAny("Z"))
        return 0;
    const bool ahead = parser.takeAny("+");
    if (!ahead && !parser.takeAny("-"))
        return 0;
    const int hours = parser.number(2, 23);
    const bool colon = parser.takeAny(":");
    const int minutes = colon || !parser.isDone() ? parser.number(2, 59) : 0;
    return (ahead ? 60 : -60) * (hours * 60 + minutes);
}

} // namespace

std::optional<Timestamp> parseTimestamp(std::string_view text)
{
    Parser parser(text);
    const auto date = takeDate(parser);
    parser.need(" T");
    const Timestamp time = takeTimeOfDay(parser);
    const int ahead = takeZone(parser);
    if (!parser.isValid() || !parser.isDone() || !date.ok())
        return std::nullopt;
    const std::int64_t days = std::chrono::sys_days(date).time_since_epoch().count();
    return Timestamp{days * 86400 + time.second - ahead, time.fraction};
}

double secondsBetween(const Timestamp& from, const Timestamp& to)
{
    const double whole = static_cast<double>(to.second - from.second);
    return std::round((whole + to.fraction - from.fraction) * 1e9) / 1e9;
}

} // namespace quordsp::cli
