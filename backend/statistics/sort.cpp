// What can be told apart though it compares equal, zeros and NaN, is set aside in the order of the input. Everything
// else is sorted as unsigned integers: the bits of a double, with the sign bit flipped for positive numbers and all
// bits flipped for negative ones, order as the numbers do. Those are sorted digit by digit from the lowest up, which
// needs no comparison.
#include "statistics/sort.h"

#include "buffer.h"
#include "status.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <numeric>
#include <utility>

namespace quordsp::backend {

namespace {

using Key = std::uint64_t;
constexpr Key kSignBit = Key{1} << 63;

// descending: all ones or zero.
Key keyOf(double value, Key descending)
{
    const auto bits = std::bit_cast<Key>(value);
    return (bits & kSignBit ? ~bits : bits | kSignBit) ^ descending;
}

double valueOf(Key key, Key descending)
{
    key ^= descending;
    return std::bit_cast<double>(key & kSignBit ? key ^ kSignBit : ~key);
}

constexpr int kDigitBits = 11;
constexpr std::size_t kDigits = (64 + kDigitBits - 1) / kDigitBits;
constexpr std::size_t kDigitValues = std::size_t{1} << kDigitBits;
using Histogram = std::array<std::size_t, kDigitValues>;

std::size_t digitOf(Key key, std::size_t digit)
{
    return key >> (digit * kDigitBits) & (kDigitValues - 1);
}

void countDigits(const Key* keys, std::size_t n, std::array<Histogram, kDigits>& histograms)
{
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t digit = 0; digit < kDigits; ++digit)
            ++histograms[digit][digitOf(keys[i], digit)];
}

void scatter(const Key* from, std::size_t n, std::size_t digit, const Histogram& counts, Key* to)
{
    Histogram next;
    std::exclusive_scan(counts.begin(), counts.end(), next.begin(), std::size_t{0});
    for (std::size_t i = 0; i < n; ++i)
        to[next[digitOf(from[i], digit)]++] = from[i];
}

// Returns which of the two arrays holds the sorted keys. Below some thousand keys the histograms do not pay.
const Key* sorted(Key* keys, std::size_t n, Key* scratch)
{
    if (n < kDigitValues) {
        std::sort(keys, keys + n);
        return keys;
    }
    const auto histograms = std::make_unique<std::array<Histogram, kDigits>>();
    countDigits(keys, n, *histograms);
    for (std::size_t digit = 0; digit < kDigits; ++digit) {
        const Histogram& counts = (*histograms)[digit];
        if (counts[digitOf(keys[0], digit)] == n)
            continue; // the same in all keys
        scatter(keys, n, digit, counts, scratch);
        std::swap(keys, scratch);
    }
    return keys;
}

} // namespace

void sort(const double* x, std::int64_t n, std::int32_t direction, double* y)
{
    requirePositiveCount(n);
    requireArrays(x, y);
    const auto count = static_cast<std::size_t>(n);
    const Key descending = direction == 0 ? 0 : ~Key{0};
    const auto aside = makeBuffer(count); // zeros from the front, NaN from the back
    const auto keys = makeBuffer<Key>(2 * count);
    double* zerosEnd = aside.get();
    double* nansBegin = aside.get() + count;
    Key* keysEnd = keys.get();
    for (std::size_t i = 0; i < count; ++i) {
        if (x[i] == 0)
            *zerosEnd++ = x[i];
        else if (std::isnan(x[i]))
            *--nansBegin = x[i];
        else
            *keysEnd++ = keyOf(x[i], descending);
    }

    const auto keyCount = static_cast<std::size_t>(keysEnd - keys.get());
    const Key* const begin = sorted(keys.get(), keyCount, keys.get() + count);
    const Key* const end = begin + keyCount;
    const Key* const zero = std::lower_bound(begin, end, keyOf(0, descending));
    const auto value = [&](Key key) { return valueOf(key, descending); };
    y = std::transform(begin, zero, y, value);
    y = std::copy(aside.get(), zerosEnd, y);
    y = std::transform(zero, end, y, value);
    std::reverse_copy(nansBegin, aside.get() + count, y);
}

} // namespace quordsp::backend
