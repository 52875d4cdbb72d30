// Slow and obvious: the difference equation as it is written, in extended precision.
#pragma once

#include <cstddef>
#include <vector>

namespace quordsp::reference {

// x and y from before the first sample: element size() - 1 is the newest.
inline std::vector<double> directForm(const std::vector<double>& a, const std::vector<double>& b,
                                      const std::vector<double>& x, const std::vector<double>& pastOutputs = {},
                                      const std::vector<double>& pastInputs = {})
{
    const auto at = [](const std::vector<long double>& past, std::ptrdiff_t i) {
        return i < 0 ? 0.0L : past[static_cast<std::size_t>(i)];
    };
    std::vector<long double> in(pastInputs.begin(), pastInputs.end());
    std::vector<long double> out(pastOutputs.begin(), pastOutputs.end());
    std::vector<double> y;
    for (double sample : x) {
        in.push_back(sample);
        long double sum = 0;
        for (std::size_t j = 0; j < b.size(); ++j)
            sum += b[j] * at(in, static_cast<std::ptrdiff_t>(in.size() - 1 - j));
        for (std::size_t k = 1; k < a.size(); ++k)
            sum -= a[k] * at(out, static_cast<std::ptrdiff_t>(out.size() - k));
        out.push_back(sum / (a.empty() ? 1.0L : a[0]));
        y.push_back(static_cast<double>(out.back()));
    }
    return y;
}

} // namespace quordsp::reference
