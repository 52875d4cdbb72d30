#include "number.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace quordsp::cli {
namespace {

// The longest double in shortest form has 24 characters, with 17 digits in %g form no more.
constexpr std::size_t kLongest = 32;

std::string_view withoutPlus(std::string_view text)
{
    const bool signedOnce = text.size() > 1 && text[0] == '+' && text[1] != '-';
    return signedOnce ? text.substr(1) : text;
}

template <class T>
bool parseAll(std::string_view text, T& value)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc{} && end == text.data() + text.size();
}

} // namespace

void appendShortest(std::string& text, double value)
{
    char buffer[kLongest];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    text.append(buffer, result.ptr);
}

std::string shortest(double value)
{
    std::string text;
    appendShortest(text, value);
    return text;
}

std::string rounded(double value, int digits)
{
    char buffer[kLongest];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, digits);
    return {buffer, result.ptr};
}

std::string counted(std::size_t count, const std::string& what)
{
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::optional<double> parseNumber(std::string_view text)
{
    double value = 0;
    if (!parseAll(withoutPlus(text), value) || !std::isfinite(value))
        return std::nullopt;
    return value;
}

bool looksLikeNumber(std::string_view text)
{
    const std::string_view digits = withoutPlus(text);
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return error != std::errc::invalid_argument && end == digits.data() + digits.size();
}

std::optional<std::size_t> parseCount(std::string_view text)
{
    std::size_t value = 0;
    if (!parseAll(text, value) || value == 0)
        return std::nullopt;
    return value;
}

} // namespace quordsp::cli
