#include "QuorDSP_DAQ.h"

#include <algorithm>

#include "targets.h"

namespace quordsp::fuzz {
namespace {

std::vector<std::uint64_t> sortedBits(std::span<const double> values)
{
    std::vector<std::uint64_t> bits;
    for (const double value : values)
        bits.push_back(std::bit_cast<std::uint64_t>(value));
    std::ranges::sort(bits);
    return bits;
}

bool areInOrder(double a, double b, bool descending)
{
    if (std::isnan(a) || std::isnan(b))
        return std::isnan(b);
    return descending ? a >= b : a <= b;
}

} // namespace

// The samples again, in order, NaN last; in place as well as into another array. Few bytes make a long array.
void sort(Bytes bytes)
{
    const int direction = bytes.between(-1, 2);
    const auto few = bytes.numbers(bytes.between(1, 40));
    std::vector<double> in;
    for (int copies = bytes.between(1, 12); copies > 0; --copies)
        for (const double value : few)
            in.push_back(value * bytes.niceNumber());
    std::vector<double> out(in.size());
    require(QuorDSP_Sort(in.data(), sizeOf(in), direction, out.data()) == 0, "status 0");
    require(sortedBits(in) == sortedBits(out), "the same samples");
    for (std::size_t i = 1; i < out.size(); ++i)
        require(areInOrder(out[i - 1], out[i], direction != 0), "the order");
    require(QuorDSP_Sort(in.data(), sizeOf(in), direction, in.data()) == 0, "status 0");
    require(areSame(in, out), "the same in place");
}

} // namespace quordsp::fuzz
