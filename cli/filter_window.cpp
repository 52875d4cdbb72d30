#include "filter_window.h"

#include <algorithm>

namespace quordsp::cli {
namespace {

constexpr FilterWindow kWindows[] = {
    {"rectangle", 0, false},
    {"hanning", 1, false},
    {"hamming", 2, false},
    {"blackman-harris", 3, false},
    {"exact-blackman", 4, false},
    {"blackman", 5, false},
    {"flat-top", 6, false},
    {"blackman-harris-4", 7, false},
    {"blackman-harris-7", 8, false},
    {"low-side-lobe", 9, false},
    {"blackman-nuttall", 11, false},
    {"triangle", 30, false},
    {"bartlett-hanning", 31, false},
    {"bohman", 32, false},
    {"parzen", 33, false},
    {"welch", 34, false},
    {"kaiser", 60, true},
    {"dolph-chebyshev", 61, true},
    {"gaussian", 62, true},
};

} // namespace

std::span<const FilterWindow> filterWindows()
{
    return kWindows;
}

const FilterWindow& filterWindow(std::string_view name)
{
    return *std::ranges::find(kWindows, name, &FilterWindow::name);
}

} // namespace quordsp::cli
