#include "QuorDSP_DAQ.h"

#include "targets.h"

namespace quordsp::fuzz {

// Like a plain loop; in long arrays, too: the samples stand anywhere among copies of one.
void max_min(Bytes bytes)
{
    std::vector<double> in(static_cast<std::size_t>(bytes.between(1, 3) * bytes.between(1, 250)), bytes.number());
    for (int left = bytes.between(0, 40); left > 0; --left)
        in[bytes.bits<std::uint16_t>() % in.size()] = bytes.number();
    std::size_t high = 0;
    std::size_t low = 0;
    for (std::size_t i = 1; i < in.size(); ++i) {
        if (in[i] > in[high] || (std::isnan(in[high]) && !std::isnan(in[i])))
            high = i;
        if (in[i] < in[low] || (std::isnan(in[low]) && !std::isnan(in[i])))
            low = i;
    }
    double max = 0.5;
    double min = 0.5;
    std::int64_t maxIndex = 0;
    std::int64_t minIndex = 0;
    require(QuorDSP_MaxMin1D(in.data(), static_cast<std::int64_t>(in.size()), &max, &maxIndex, &min, &minIndex) == 0,
            "status 0");
    require(maxIndex == static_cast<std::int64_t>(high) && isSame(max, in[high]), "the first of the greatest");
    require(minIndex == static_cast<std::int64_t>(low) && isSame(min, in[low]), "the first of the least");
}

} // namespace quordsp::fuzz
