// The input of a fuzz target, read as arguments; and what a target demands of the results.
#pragma once
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <limits>
#include <source_location>
#include <span>
#include <vector>

namespace quordsp::fuzz {

class Bytes {
public:
    explicit Bytes(std::span<const std::uint8_t> bytes) : bytes_{bytes} {}

    bool isEmpty() const { return bytes_.empty(); }

    // Zeros follow the last byte.
    std::uint8_t byte()
    {
        if (bytes_.empty())
            return 0;
        const std::uint8_t first = bytes_.front();
        bytes_ = bytes_.subspan(1);
        return first;
    }

    template <class T>
    T bits()
    {
        T value = 0;
        for (std::size_t i = 0; i < sizeof value; ++i)
            value = static_cast<T>(value << 8 | byte());
        return value;
    }

    // Any int, but mostly one of this range; a narrow range takes one byte.
    int mostlyBetween(int low, int high)
    {
        const int first = byte();
        return first == 0xff ? bits<std::int32_t>() : low + first % (high - low + 1);
    }

    int between(int low, int high) { return low + byte() % (high - low + 1); }

    // A multiple of 1/8 between -12 and 12.
    double niceNumber() { return between(-96, 96) / 8.0; }

    // Mostly nice; or any bits at all, or a number that is special to floating point.
    double number()
    {
        const int kind = byte();
        if (kind < 200)
            return (kind - 100) / 8.0;
        if (kind < 240)
            return std::bit_cast<double>(bits<std::uint64_t>());
        constexpr double infinity = std::numeric_limits<double>::infinity();
        constexpr double special[] = {std::numeric_limits<double>::quiet_NaN(),
                                      infinity,
                                      -infinity,
                                      -0.0,
                                      std::numeric_limits<double>::denorm_min(),
                                      std::numeric_limits<double>::min(),
                                      std::numeric_limits<double>::max(),
                                      1e-160};
        return special[kind % 8];
    }

    std::vector<double> numbers(int count)
    {
        std::vector<double> values;
        for (int i = 0; i < count; ++i)
            values.push_back(number());
        return values;
    }

    std::vector<double> niceNumbers(int count)
    {
        std::vector<double> values;
        for (int i = 0; i < count; ++i)
            values.push_back(niceNumber());
        return values;
    }

    std::vector<float> samples(int count)
    {
        std::vector<float> values;
        for (int i = 0; i < count; ++i)
            values.push_back(byte() % 4 > 0 ? static_cast<float>(bits<std::int16_t>()) / 16384.0F
                                            : std::bit_cast<float>(bits<std::uint32_t>()));
        return values;
    }

private:
    std::span<const std::uint8_t> bytes_;
};

// What stands in results before a call.
inline constexpr double kBefore = -7;

// Stops the program where a result is not what it must be.
inline void require(bool condition, const char* what, std::source_location where = std::source_location::current())
{
    if (condition)
        return;
    std::fprintf(stderr, "%s:%u: not so: %s\n", where.file_name(), static_cast<unsigned>(where.line()), what);
    std::abort();
}

inline void requireOneOf(std::initializer_list<int> documented, int status,
                         std::source_location where = std::source_location::current())
{
    require(std::ranges::find(documented, status) != documented.end(), "a documented status", where);
}

// The same bits, or both NaN.
inline bool isSame(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) || std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

inline bool areSame(std::span<const double> a, std::span<const double> b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (!isSame(a[i], b[i]))
            return false;
    return true;
}

inline int sizeOf(const auto& array)
{
    return static_cast<int>(array.size());
}

} // namespace quordsp::fuzz
