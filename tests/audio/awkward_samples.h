// Samples at and around every edge of the encodings, and many between.
#pragma once
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

namespace quordsp {

inline std::vector<float> edges()
{
    using Limits = std::numeric_limits<float>;
    const float positive[] = {
        0.0f,
        Limits::denorm_min(),
        Limits::min() / 2,
        Limits::min(),
        1.0f / 32767,
        1.0f / 8388607,
        0x1p-31f,
        0.5f,
        std::nextafter(0.5f, 0.0f),
        std::nextafter(1.0f, 0.0f),
        1.0f,
        std::nextafter(1.0f, 2.0f),
        1.5f,
        2.0f,
        65538.0f, // the first that leaves 32 bits when it is scaled to 16, and the last that does not
        std::nextafter(65538.0f, 0.0f),
        1e10f,
        Limits::max(),
        Limits::infinity(),
        Limits::quiet_NaN()};
    std::vector<float> samples;
    for (const float sample : positive) {
        samples.push_back(sample);
        samples.push_back(-sample);
    }
    return samples;
}

// The edges again and again, each time followed by a few values of -1..1 and one of any bits, so that an edge comes to
// stand in every place of a vector.
inline std::vector<float> awkwardSamples(std::size_t count)
{
    const std::vector<float> edge = edges();
    std::vector<float> samples;
    std::uint32_t state = 1;
    const auto next = [&state] { return state = state * 1664525u + 1013904223u; };
    for (std::size_t i = 0; samples.size() < count; ++i) {
        samples.push_back(edge[i % edge.size()]);
        for (std::uint32_t k = next() >> 30; k > 0; --k)
            samples.push_back(static_cast<float>(next() >> 8) * 0x1p-23f - 1.0f);
        samples.push_back(std::bit_cast<float>(next()));
    }
    samples.resize(count);
    return samples;
}

} // namespace quordsp
