// Cascade filtering: section after section in direct form II,
//     s[i] = x[i] - a1 s[i-1] - ... - aD s[i-D],  y[i] = b0 s[i] + b1 s[i-1] + ... + bD s[i-D].
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace quordsp::backend {

// state: s[i-1] ... s[i-D]; x may be y.
template <std::size_t D, class Sample>
void filterSection(const Sample* x, std::int64_t n, const double* reverse, const double* forward, Sample* state,
                   Sample* y)
{
    std::array<double, D> a;
    std::array<double, D + 1> b;
    std::array<Sample, D> s;
    std::copy_n(reverse, D, a.begin());
    std::copy_n(forward, D + 1, b.begin());
    std::copy_n(state, D, s.begin());
    for (std::int64_t i = 0; i < n; ++i) {
        // The newest value comes last: one product and one difference, not D, separate it from the next sample's.
        Sample newest = x[i];
        for (std::size_t k = D; k-- > 0;)
            newest = newest - a[k] * s[k];
        Sample sum = b[0] * newest;
        for (std::size_t k = 0; k < D; ++k)
            sum = sum + b[k + 1] * s[k];
        std::copy_backward(s.begin(), s.end() - 1, s.end());
        s[0] = newest;
        y[i] = sum;
    }
    std::copy_n(s.begin(), D, state);
}

// sections >= 1; x may be y. Block by block, so that a block stays in the cache from section to section.
template <std::size_t D, class Sample>
void filterCascade(const Sample* x, std::int64_t n, std::size_t sections, const double* reverse, const double* forward,
                   Sample* state, Sample* y)
{
    constexpr std::int64_t kBlock = 1024;
    for (std::int64_t done = 0; done < n; done += kBlock) {
        const Sample* source = x + done;
        for (std::size_t k = 0; k < sections; ++k) {
            filterSection<D>(source, std::min(kBlock, n - done), reverse + k * D, forward + k * (D + 1), state + k * D,
                             y + done);
            source = y + done;
        }
    }
}

} // namespace quordsp::backend
