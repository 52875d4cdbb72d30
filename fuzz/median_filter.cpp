#include "QuorDSP_DAQ.h"
#include "targets.h"

#include <algorithm>
#include <numeric>

namespace quordsp::fuzz {
namespace {

double medianOf(std::vector<double> window)
{
    if (std::any_of(window.begin(), window.end(), [](double v) { return std::isnan(v); }))
        return std::numeric_limits<double>::quiet_NaN();
    std::sort(window.begin(), window.end());
    const std::size_t half = window.size() / 2;
    return window.size() % 2 > 0 ? window[half] : std::midpoint(window[half - 1], window[half]);
}

// No rank is larger than some hundred.
double medianAt(const std::vector<double>& x, int i, int left, int right)
{
    std::vector<double> window;
    for (int k = i - left; k <= i + right; ++k)
        window.push_back(k >= 0 && k < sizeOf(x) ? x[static_cast<std::size_t>(k)] : 0.0);
    return medianOf(window);
}

} // namespace

// The definition, with samples and windows few enough for it; the documented statuses; the same in place.
void median_filter(Bytes bytes)
{
    const int n = bytes.between(0, 120);
    const std::vector<double> x = bytes.numbers(n);
    const int left = bytes.mostlyBetween(-1, 200), right = bytes.mostlyBetween(-1, 130);
    std::vector<double> y(x.size(), -7.0), inPlace = x;
    const int status = QuorDSP_MedianFilter(x.data(), n, left, right, y.data());
    require(QuorDSP_MedianFilter(inPlace.data(), n, left, right, inPlace.data()) == status, "the same status in place");
    const int usedRight = right < 0 ? left : right;
    if (n == 0 || left < 0 || usedRight >= n) {
        require(status == (n == 0 ? -20003 : -20032), "the documented status");
        require(areSame(inPlace, x) && y == std::vector<double>(x.size(), -7.0), "nothing is written");
        return;
    }
    require(status == 0, "status 0");
    require(areSame(inPlace, y), "the same in place");
    for (int i = 0; i < n; ++i) {
        const double wanted = medianAt(x, i, std::min(left, 1000), usedRight), found = y[static_cast<std::size_t>(i)];
        require(found == wanted || (std::isnan(found) && std::isnan(wanted)), "the median");
    }
}

} // namespace quordsp::fuzz
