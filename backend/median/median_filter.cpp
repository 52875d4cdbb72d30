#include "median/median_filter.h"

#include "buffer.h"
#include "cpu/instruction_set.h"
#include "median/network_kernel.h"
#include "median/sliding_median.h"
#include "status.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

namespace quordsp::backend {
namespace {

constexpr std::size_t kShortestBlock = 512;

struct Window {
    std::size_t left, right;

    std::size_t length() const { return left + 1 + right; }
};

using Network = void (*)(const double* x, std::size_t count, double* out) noexcept;

template <std::size_t... W>
Network networkOf(std::size_t window, std::index_sequence<W...>)
{
    constexpr decltype(&Versions<medianNetwork<1>>::of) kVersions[] = {Versions<medianNetwork<W + 1>>::of...};
    return kVersions[window - 1](bestInstructionSet());
}

// Null for a window that is too long for one.
Network networkFor(std::size_t window)
{
    return window > kLongestNetwork ? nullptr : networkOf(window, std::make_index_sequence<kLongestNetwork>());
}

bool hasNaN(const double* x, std::size_t count)
{
    bool has = false;
    for (std::size_t i = 0; i < count; ++i)
        has |= x[i] != x[i];
    return has;
}

// Windows of a stretch of samples: the first window and then count - 1 samples more.
class MedianOfStretch {
public:
    MedianOfStretch(std::size_t window, std::size_t mostCount) : window_{window}, network_{networkFor(window)}
    {
        if (!network_)
            sliding_.emplace(window, window - 1 + mostCount);
    }

    void run(const double* x, std::size_t count, double* y)
    {
        if (sliding_)
            sliding_->run(x, count, y);
        else
            network_(x, count, y);
        if (hasNaN(x, window_ - 1 + count))
            spreadNaNs(x, count, y);
    }

private:
    // A window with a NaN has no median.
    void spreadNaNs(const double* x, std::size_t count, double* y) const
    {
        std::size_t done = 0;
        for (std::size_t i = 0; i < window_ - 1 + count; ++i) {
            if (x[i] == x[i])
                continue;
            const std::size_t first = i < window_ ? 0 : i - (window_ - 1), last = std::min(i + 1, count);
            for (done = std::max(done, first); done < last; ++done)
                y[done] = std::numeric_limits<double>::quiet_NaN();
        }
    }

    std::size_t window_;
    Network network_;
    std::optional<SlidingMedian> sliding_;
};

// The stretches overlap by a window less one sample, which are kept: the outputs may take the place of the inputs.
void filter(const double* x, std::size_t n, const Window& window, double* y)
{
    const std::size_t kept = window.length() - 1;
    const std::size_t block = std::min(n, std::max(kShortestBlock, 3 * window.length()));
    MedianOfStretch median{window.length(), block};
    const Buffer<> stretch = makeBuffer(kept + block + kMedianRow);
    std::fill_n(stretch.get(), kept + block + kMedianRow, 0.0);
    std::copy_n(x, window.right, stretch.get() + window.left);
    for (std::size_t done = 0; done < n; done += block) {
        const std::size_t count = std::min(block, n - done);
        const std::size_t begin = std::min(n, done + window.right), end = std::min(n, begin + count);
        double* const next = std::copy(x + begin, x + end, stretch.get() + kept);
        std::fill(next, stretch.get() + kept + count, 0.0);
        median.run(stretch.get(), count, y + done);
        std::copy_n(stretch.get() + count, kept, stretch.get());
    }
}

// For windows of more than twice the signal: more than half of each is zeros, and it reaches back to the first sample.
void filterAmongZeros(const double* x, std::size_t n, const Window& window, double* y)
{
    const double* const firstNaN = std::find_if(x, x + n, [](double value) { return value != value; });
    const auto place = static_cast<std::size_t>(firstNaN - x);
    const std::size_t medians = place == n ? n : place - std::min(place, window.right);
    std::fill_n(y, medians, 0.0);
    std::fill(y + medians, y + n, std::numeric_limits<double>::quiet_NaN());
}

} // namespace

void medianFilter(const double* x, std::int64_t n, std::int64_t leftRank, std::int64_t rightRank, double* y)
{
    requirePositiveCount(n);
    requireArrays(x, y);
    const std::int64_t right = rightRank < 0 ? leftRank : rightRank;
    require(leftRank >= 0 && right < n, Status::Rank);
    const auto count = static_cast<std::size_t>(n);
    const Window window{static_cast<std::size_t>(leftRank), static_cast<std::size_t>(right)};
    (window.length() > 2 * count ? filterAmongZeros : filter)(x, count, window, y);
}

} // namespace quordsp::backend
