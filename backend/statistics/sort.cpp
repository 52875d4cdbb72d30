// What can be told apart though it compares equal, zeros and NaN, is set aside in the order of the input. Everything
// else is sorted as unsigned integers: the bits of a double, with the sign bit flipped for positive numbers and all
// bits flipped for negative ones, order as the numbers do. Those are sorted by digits, which needs no comparison and
// does not depend on their order: by the highest one until the parts fit the cache, then from a low one up.
//
// Not from the lowest one: the upper ones, as many as tell n random numbers apart, leave nearly all keys in their
// places. Where several agree in these digits they are sorted by comparison.
#include "statistics/sort.h"

#include "buffer.h"
#include "status.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <functional>
#include <numeric>
#include <utility>

namespace quordsp::backend {

namespace {

// Keys may stand in the caller's array of doubles, which serves as scratch memory. A type of their own: templates do
// not see the attribute of another name for integers.
enum [[gnu::may_alias]] Key : std::uint64_t {};
constexpr std::uint64_t kSignBit = std::uint64_t{1} << 63;

// descending: all ones or zero.
Key keyOf(double value, std::uint64_t descending)
{
    const auto bits = std::bit_cast<std::uint64_t>(value);
    return Key{(bits & kSignBit ? ~bits : bits | kSignBit) ^ descending};
}

double valueOf(Key key, std::uint64_t descending)
{
    const std::uint64_t bits = key ^ descending;
    return std::bit_cast<double>(bits & kSignBit ? bits ^ kSignBit : ~bits);
}

constexpr std::size_t kFewKeys = 128;                   // for which the digits do not pay
constexpr std::size_t kManyKeys = std::size_t{1} << 15; // beyond the cache
constexpr int kDigitBits = 8;
constexpr std::size_t kDigitValues = std::size_t{1} << kDigitBits;
using Histogram = std::array<std::size_t, kDigitValues>;

// The digits to sort by, from bit `shift` up.
struct Digits {
    int shift;
    std::size_t count;

    std::size_t operator()(Key key, std::size_t digit) const
    {
        return key >> (static_cast<std::size_t>(shift) + digit * kDigitBits) & (kDigitValues - 1);
    }
};

Digits digitsFor(std::size_t n, int varyingBits)
{
    const int wanted = static_cast<int>(std::bit_width(n)) + 12; // signs and exponents tell few samples apart
    const int count = (std::min(wanted, varyingBits) + kDigitBits - 1) / kDigitBits;
    return {std::max(varyingBits - count * kDigitBits, 0), static_cast<std::size_t>(count)};
}

using Histograms = std::array<Histogram, 64 / kDigitBits>;

void countDigits(const Key* keys, std::size_t n, Digits digits, Histograms& counts)
{
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t digit = 0; digit < digits.count; ++digit)
            ++counts[digit][digits(keys[i], digit)];
}

void scatter(const Key* from, std::size_t n, Digits digits, std::size_t digit, const Histogram& counts, Key* to)
{
    Histogram next;
    std::exclusive_scan(counts.begin(), counts.end(), next.begin(), std::size_t{0});
    for (std::size_t i = 0; i < n; ++i)
        to[next[digits(from[i], digit)]++] = from[i];
}

// The keys are in order but for the bits below the shift.
void sortTies(Key* keys, std::size_t n, int shift)
{
    for (std::size_t begin = 0, end = 0; begin < n; begin = end) {
        do
            ++end;
        while (end < n && keys[end] >> shift == keys[begin] >> shift);
        if (end - begin > 1)
            std::sort(keys + begin, keys + end);
    }
}

void sortFromALowDigitUp(Key* keys, std::size_t n, int varyingBits, Key* scratch, Key* target)
{
    const Digits digits = digitsFor(n, varyingBits);
    Histograms counts{};
    countDigits(keys, n, digits, counts);
    for (std::size_t digit = 0; digit < digits.count; ++digit) {
        if (counts[digit][digits(keys[0], digit)] == n)
            continue; // the same in all keys
        scatter(keys, n, digits, digit, counts[digit], scratch);
        std::swap(keys, scratch);
    }
    if (digits.shift > 0)
        sortTies(keys, n, digits.shift);
    if (keys != target)
        std::copy(keys, keys + n, target);
}

void sortInto(Key* keys, std::size_t n, Key* scratch, Key* target);

void sortFromTheHighestDigitDown(Key* keys, std::size_t n, int varyingBits, Key* scratch, Key* target)
{
    const Digits highest = {std::max(varyingBits - kDigitBits, 0), 1};
    Histograms counts{};
    countDigits(keys, n, highest, counts);
    scatter(keys, n, highest, 0, counts[0], scratch);
    std::size_t begin = 0;
    for (const std::size_t count : counts[0]) {
        sortInto(scratch + begin, count, keys + begin, target + begin);
        begin += count;
    }
}

// target is one of the two others.
void sortInto(Key* keys, std::size_t n, Key* scratch, Key* target)
{
    if (n < kFewKeys) {
        std::sort(keys, keys + n);
        std::copy(keys, keys + (target == keys ? 0 : n), target);
        return;
    }
    std::uint64_t varying = 0;
    for (std::size_t i = 0; i < n; ++i)
        varying |= keys[i] ^ keys[0];
    const auto varyingBits = static_cast<int>(std::bit_width(varying));
    if (n > kManyKeys && varying != 0)
        sortFromTheHighestDigitDown(keys, n, varyingBits, scratch, target);
    else
        sortFromALowDigitUp(keys, n, varyingBits, scratch, target);
}

void sortKeys(Key* keys, std::size_t n, Key* scratch)
{
    if (std::is_sorted(keys, keys + n))
        return;
    if (std::is_sorted(keys, keys + n, std::greater<>()))
        std::reverse(keys, keys + n);
    else
        sortInto(keys, n, scratch, keys);
}

} // namespace

void sort(const double* x, std::int64_t n, std::int32_t direction, double* y)
{
    requirePositiveCount(n);
    requireArrays(x, y);
    const auto count = static_cast<std::size_t>(n);
    const std::uint64_t descending = direction == 0 ? 0 : ~std::uint64_t{0};
    const auto buffer = makeBuffer<Key>(count); // keys from the front, zeros and NaN from the back
    Key* keysEnd = buffer.get();
    Key* aside = buffer.get() + count;
    for (std::size_t i = 0; i < count; ++i) {
        if (std::abs(x[i]) > 0)
            *keysEnd++ = keyOf(x[i], descending);
        else
            *--aside = std::bit_cast<Key>(x[i]);
    }

    const auto keyCount = static_cast<std::size_t>(keysEnd - buffer.get());
    sortKeys(buffer.get(), keyCount, reinterpret_cast<Key*>(y));
    const Key* const zero = std::lower_bound(buffer.get(), keysEnd, keyOf(0, descending));
    const auto value = [&](Key key) { return valueOf(key, descending); };
    const auto putAside = [&](bool nan) {
        for (const Key* key = buffer.get() + count; key != aside;)
            if (const auto special = std::bit_cast<double>(*--key); std::isnan(special) == nan)
                *y++ = special;
    };
    y = std::transform<const Key*>(buffer.get(), zero, y, value);
    putAside(false);
    y = std::transform<const Key*>(zero, keysEnd, y, value);
    putAside(true);
}

} // namespace quordsp::backend
