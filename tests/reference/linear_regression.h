// Removal of the least-squares line, pass by pass and index by index, as slowly and plainly as it can be written.
#pragma once
#include <cstdint>
#include <vector>

namespace quordsp::reference {

inline std::int32_t wrappedProduct(std::int32_t a, std::int32_t b)
{
    const std::int64_t low = (std::int64_t{a} * b) & 0xFFFFFFFF;
    return static_cast<std::int32_t>(low >= 0x80000000 ? low - 0x100000000 : low);
}

inline std::vector<double> withoutLine(std::vector<double> data)
{
    std::vector<std::int32_t> indices;
    for (std::size_t i = 0; i < data.size(); ++i)
        indices.push_back(static_cast<std::int32_t>(i));
    const double n = static_cast<double>(data.size());
    double sx = 0.0, sy = 0.0, sxy = 0.0, sxx = 0.0;
    for (const std::int32_t i : indices)
        sx += static_cast<double>(i);
    for (const double y : data)
        sy += y;
    for (std::size_t i = 0; i < data.size(); ++i)
        sxy += static_cast<double>(indices[i]) * data[i];
    for (const std::int32_t i : indices)
        sxx += static_cast<double>(wrappedProduct(i, i));
    const double mx = sx / n;
    const double my = sy / n;
    const double slope = (sxy / n - my * mx) / (sxx / n - mx * mx);
    const double intercept = my - slope * mx;
    for (std::size_t i = 0; i < data.size(); ++i)
        data[i] = data[i] - (static_cast<double>(indices[i]) * slope + intercept);
    return data;
}

} // namespace quordsp::reference
