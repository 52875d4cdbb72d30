#include "median/sliding_median.h"

#include <array>
#include <limits>
#include <numeric>
#include <utility>

namespace quordsp::backend {
namespace {

constexpr std::uint64_t kSignBit = std::uint64_t{1} << 63;

// Orders as the numbers do.
std::uint64_t keyOf(double value)
{
    const auto bits = std::bit_cast<std::uint64_t>(value);
    return bits & kSignBit ? ~bits : bits | kSignBit;
}

std::uint32_t indexOf(std::uint64_t item)
{
    return static_cast<std::uint32_t>(item);
}

constexpr int kFirstDigit = 32, kDigitBits = 8;
using Histogram = std::array<std::uint32_t, 1 << kDigitBits>;
using Histograms = std::array<Histogram, kFirstDigit / kDigitBits>;

std::size_t digitOf(std::uint64_t item, std::size_t digit)
{
    return item >> (kFirstDigit + kDigitBits * digit) & ((1 << kDigitBits) - 1);
}

void countDigits(const std::uint64_t* items, std::size_t size, Histograms& histograms)
{
    for (std::size_t i = 0; i < size; ++i)
        for (std::size_t digit = 0; digit < histograms.size(); ++digit)
            ++histograms[digit][digitOf(items[i], digit)];
}

std::size_t withinRange(std::size_t size)
{
    if (size > std::numeric_limits<RankSet::Rank>::max() - 2)
        throw std::bad_alloc();
    return size;
}

} // namespace

SlidingMedian::SlidingMedian(std::size_t window, std::size_t longest)
    : window_{window},
      order_{makeBuffer<std::uint64_t>(withinRange(longest))},
      scratch_{makeBuffer<std::uint64_t>(longest)},
      ranks_{makeBuffer<Rank>(longest)},
      values_{makeBuffer(longest + 2)},
      members_{longest + 2}
{}

// By the 32 bits in which the numbers first differ, and then those that are alike so far.
void SlidingMedian::sort(const double* x, std::size_t size)
{
    std::uint64_t least = ~std::uint64_t{0}, greatest = 0;
    for (std::size_t i = 0; i < size; ++i) {
        least = std::min(least, keyOf(x[i]));
        greatest = std::max(greatest, keyOf(x[i]));
    }
    const auto width = static_cast<int>(std::bit_width(greatest - least));
    const int dropped = std::max(width, 32) - 32;
    for (std::size_t i = 0; i < size; ++i)
        order_[i] = (keyOf(x[i]) - least) >> dropped << 32 | i;
    sortByDigits(size);
    if (dropped > 0)
        sortAlike(x, size);
    for (std::size_t i = 0; i < size; ++i) {
        const std::size_t index = indexOf(order_[i]);
        ranks_[index] = static_cast<Rank>(i + 1);
        values_[i + 1] = x[index];
    }
}

// From the lowest digit up; one that all have in common is passed over.
void SlidingMedian::sortByDigits(std::size_t size)
{
    Histograms histograms{};
    countDigits(order_.get(), size, histograms);
    for (std::size_t digit = 0; digit < histograms.size(); ++digit) {
        Histogram& next = histograms[digit];
        if (next[digitOf(order_[0], digit)] == size)
            continue;
        std::exclusive_scan(next.begin(), next.end(), next.begin(), 0U);
        for (std::size_t i = 0; i < size; ++i)
            scratch_[next[digitOf(order_[i], digit)]++] = order_[i];
        std::swap(order_, scratch_);
    }
}

void SlidingMedian::sortAlike(const double* x, std::size_t size)
{
    const auto less = [x](std::uint64_t a, std::uint64_t b) { return keyOf(x[indexOf(a)]) < keyOf(x[indexOf(b)]); };
    std::uint64_t* const end = order_.get() + size;
    for (std::uint64_t *first = order_.get(), *last = first; first != end; first = last) {
        while (last != end && *last >> 32 == *first >> 32)
            ++last;
        if (!std::is_sorted(first, last, less))
            std::sort(first, last, less);
    }
}

// Returns the rank of the median, for an even length that of the lower of the two.
SlidingMedian::Rank SlidingMedian::enterFirst()
{
    Rank lower = 0;
    for (std::size_t i = 0; i < window_; ++i)
        members_.insert(ranks_[i]);
    for (std::size_t i = 0; i < (window_ + 1) / 2; ++i)
        lower = members_.next(lower);
    return lower;
}

double SlidingMedian::middle(Rank lower) const
{
    return window_ % 2 > 0 ? values_[lower] : std::midpoint(values_[lower], values_[members_.next(lower)]);
}

void SlidingMedian::run(const double* x, std::size_t count, double* out)
{
    const std::size_t size = window_ - 1 + count;
    sort(x, size);
    members_.clear();
    members_.insert(0);
    members_.insert(static_cast<Rank>(size + 1));
    Rank lower = enterFirst();
    out[0] = middle(lower);
    for (std::size_t i = 1; i < count; ++i) {
        const Rank leaving = ranks_[i - 1], entering = ranks_[i - 1 + window_];
        members_.insert(entering);
        // Selected, not branched to: nobody foretells on which side of the median a sample lies.
        const Rank below = members_.previous(lower), above = members_.next(lower);
        const Rank ifLower = leaving <= below ? lower : below;
        const Rank ifHigher = leaving <= lower ? above : lower;
        lower = entering < lower ? ifLower : ifHigher;
        members_.erase(leaving);
        out[i] = middle(lower);
    }
}

} // namespace quordsp::backend
