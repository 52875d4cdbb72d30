#include "signals.h"

#include <algorithm>

namespace quordsp::fuzz {

Samples interleaved(const Signal& signal)
{
    Samples pairs;
    for (std::size_t i = 0; i < signal.re.size(); ++i)
        pairs.insert(pairs.end(), {signal.re[i], signal.im[i]});
    return pairs;
}

Signal separated(const Samples& pairs)
{
    Signal signal;
    for (std::size_t i = 0; i < pairs.size(); i += 2) {
        signal.re.push_back(pairs[i]);
        signal.im.push_back(pairs[i + 1]);
    }
    return signal;
}

bool areFinite(const Samples& values)
{
    return std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(value); });
}

Samples repeated(const Samples& few, std::size_t count)
{
    Samples all;
    for (std::size_t i = 0; i < count; ++i)
        all.push_back(few[i % few.size()]);
    return all;
}

void requireNear(const Samples& a, const Samples& b, double scale, const char* what)
{
    require(a.size() == b.size(), what);
    for (std::size_t i = 0; i < b.size(); ++i)
        require(std::abs(a[i] - b[i]) <= 1e-13 * scale, what);
}

} // namespace quordsp::fuzz
