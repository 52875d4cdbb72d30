#include "parity/fingerprint.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <istream>
#include <ostream>
#include <sstream>

#include "support/integer_signal.h"

namespace quordsp::parity {
namespace {

constexpr std::size_t kBlock = 8;
constexpr std::int64_t kUnits = 16; // of the sums, in the tolerance
constexpr int kBase = 36;           // of the sums in text

// n for NaN, a sign for an infinity, or 0.
char kindOf(double value)
{
    return std::isnan(value) ? 'n' : std::isfinite(value) ? '\0' : value > 0 ? '+' : '-';
}

std::string notFiniteOf(const std::vector<double>& values)
{
    std::string text;
    for (std::size_t i = 0, end = 0; i < values.size(); i = end) {
        const char kind = kindOf(values[i]);
        for (end = i + 1; end < values.size() && kindOf(values[end]) == kind;)
            ++end;
        if (kind)
            text.append({kind}).append(std::to_string(i)).append("x").append(std::to_string(end - i));
    }
    return text.empty() ? "." : text;
}

double largestOf(const std::vector<double>& values)
{
    double largest = 0;
    for (const double value : values)
        largest = std::isfinite(value) ? std::max(largest, std::abs(value)) : largest;
    return largest;
}

std::vector<std::int64_t> sumsOf(const std::vector<double>& values, double largest)
{
    std::vector<std::int64_t> sums;
    const std::vector<double> weights = noise(values.size(), 101);
    for (std::size_t first = 0; first < values.size() && largest > 0; first += kBlock) {
        double sum = 0;
        for (std::size_t i = first; i < std::min(first + kBlock, values.size()); ++i)
            if (std::isfinite(values[i]))
                sum += (weights[i] + std::copysign(1, weights[i])) * (values[i] / largest);
        sums.push_back(std::llround(sum * (static_cast<double>(kUnits) / kTolerance)));
    }
    return sums;
}

} // namespace

Fingerprint fingerprintOf(const std::vector<double>& values)
{
    const double largest = largestOf(values);
    return {values.size(), notFiniteOf(values), largest, sumsOf(values, largest)};
}

std::ostream& operator<<(std::ostream& text, const Fingerprint& fingerprint)
{
    const auto precision = text.precision(17);
    text << fingerprint.count << ' ' << fingerprint.notFinite << ' ' << fingerprint.largest;
    text.precision(precision);
    for (const std::int64_t sum : fingerprint.sums) {
        char digits[16];
        const auto [end, error] = std::to_chars(std::begin(digits), std::end(digits), sum, kBase);
        text << ' ' << std::string_view(digits, end);
    }
    return text;
}

std::istream& operator>>(std::istream& text, Fingerprint& fingerprint)
{
    text >> fingerprint.count >> fingerprint.notFinite >> fingerprint.largest;
    fingerprint.sums.clear();
    const std::size_t blocks = fingerprint.largest > 0 ? (fingerprint.count + kBlock - 1) / kBlock : 0;
    for (std::string digits; fingerprint.sums.size() < blocks && text >> digits;) {
        fingerprint.sums.push_back(0);
        std::from_chars(digits.data(), digits.data() + digits.size(), fingerprint.sums.back(), kBase);
    }
    return text;
}

std::string difference(const std::vector<double>& values, const Fingerprint& stored)
{
    std::ostringstream text;
    const double largest = largestOf(values);
    if (values.size() != stored.count)
        text << values.size() << " values instead of " << stored.count;
    else if (const std::string notFinite = notFiniteOf(values); notFinite != stored.notFinite)
        text << "not finite: " << notFinite << " instead of " << stored.notFinite;
    else if (!(std::abs(largest - stored.largest) <= kTolerance * stored.largest))
        text << "largest: " << largest << ", off by " << largest - stored.largest;
    else {
        const std::vector<std::int64_t> sums = sumsOf(values, stored.largest);
        for (std::size_t i = 0; i < sums.size() && text.str().empty(); ++i)
            if (const std::int64_t off = sums[i] - stored.sums.at(i); std::abs(off) > kUnits)
                text << "values from " << i * kBlock << " on: off by "
                     << kTolerance * static_cast<double>(off) / static_cast<double>(kUnits) << " of the largest";
    }
    return text.str();
}

} // namespace quordsp::parity
