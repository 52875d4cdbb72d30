// The loop of a quick search for extrema: a polynomial in x = cos(2 pi f), given by its values at nodes, at many
// frequencies in double precision. Each is worked out by itself and in the order of the nodes, so that all instruction
// sets give the same bits.
#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <numbers>

namespace quordsp::backend {

// Frequencies are worked out, and nodes taken, in groups of so many.
inline constexpr std::size_t kFrequencyGroup = 8;
inline constexpr std::size_t kNodeGroup = 4;

// Barycentric interpolation; count a multiple of kNodeGroup, no weight above 1.
struct NodeList {
    std::size_t count;
    const double *x, *weights, *weightedValues;
};

using Frequencies [[gnu::vector_size(kFrequencyGroup * sizeof(double))]] = double;

// Of sin(pi f) / f as a series in f^2, up to f = 1/2.
inline constexpr std::array<double, 11> kSineTerms = [] {
    std::array<double, 11> terms{};
    long double term = std::numbers::pi_v<long double>;
    for (std::size_t k = 0; k < terms.size(); ++k) {
        terms[k] = static_cast<double>(term);
        const auto next = static_cast<long double>(2 * k + 2);
        term *= -std::numbers::pi_v<long double> * std::numbers::pi_v<long double> / (next * (next + 1));
    }
    return terms;
}();

[[gnu::always_inline]] inline void formSines(const Frequencies& f, Frequencies& sines) noexcept
{
    const Frequencies square = f * f;
    Frequencies sum = square * 0 + kSineTerms.back();
    for (std::size_t k = kSineTerms.size() - 1; k-- > 0;)
        sum = sum * square + kSineTerms[k];
    sines = sum * f;
}

// Four nodes share a division, which costs more than all the rest. Where a frequency is that of a node, its term
// outweighs the others as if it were a little beside it.
[[gnu::always_inline]] inline void addTerms(const Frequencies& x, const NodeList& nodes, std::size_t first,
                                            Frequencies& above, Frequencies& below) noexcept
{
    constexpr double kBeside = 0x1p-130;
    const double *const at = nodes.x + first, *const w = nodes.weights + first, *const v = nodes.weightedValues + first;
    const Frequencies a = x - at[0] + kBeside, b = x - at[1] + kBeside;
    const Frequencies c = x - at[2] + kBeside, d = x - at[3] + kBeside;
    const Frequencies ab = a * b, cd = c * d;
    const Frequencies scale = 1.0 / (ab * cd);
    above += ((v[0] * b + v[1] * a) * cd + (v[2] * d + v[3] * c) * ab) * scale;
    below += ((w[0] * b + w[1] * a) * cd + (w[2] * d + w[3] * c) * ab) * scale;
}

// sines: of pi f, cosines: of pi f, which the kinds of symmetry need. All arrays are of count values, a multiple of
// kFrequencyGroup, with frequencies in 0..1/2.
[[gnu::always_inline]] inline void interpolate(NodeList nodes, const double* frequencies, std::size_t count,
                                               double* values, double* cosines, double* sines) noexcept
{
    for (std::size_t i = 0; i < count; i += kFrequencyGroup) {
        Frequencies f, cosine, sine;
        std::memcpy(&f, frequencies + i, sizeof f);
        formSines(f, sine);
        formSines(0.5 - f, cosine);
        const Frequencies x = (cosine - sine) * (cosine + sine);
        Frequencies above = x * 0, below = above;
        for (std::size_t k = 0; k < nodes.count; k += kNodeGroup)
            addTerms(x, nodes, k, above, below);
        const Frequencies value = above / below;
        std::memcpy(values + i, &value, sizeof value);
        std::memcpy(cosines + i, &cosine, sizeof cosine);
        std::memcpy(sines + i, &sine, sizeof sine);
    }
}

} // namespace quordsp::backend
