// The forms in which a section runs: what it does with one sample. Rows hold a section in each lane.
#pragma once

#include "iir/delay_line.h"

#include <cstdint>

namespace quordsp::backend {

// Direct form II, of order D:
//     s[i] = x[i] - aD s[i-D] - ... - a1 s[i-1],  y[i] = b0 s[i] + (b1 s[i-1] + ... + bD s[i-D]).
template <std::size_t D>
struct DirectSection {
    static constexpr std::size_t kOrder = D;
    static constexpr std::int64_t kLag = D == 2 ? 3 : 4;

    template <class Row>
    [[gnu::always_inline]] static void step(const Row& x, const Row (&a)[D], const Row (&b)[D + 1],
                                            DelayLine<Row, D>& s, Row& y) noexcept
    {
        Row past = b[1] * s[0], newest = x;
        for (std::size_t k = 1; k < D; ++k)
            past = past + b[k + 1] * s[k];
        for (std::size_t k = D; k-- > 0;)
            newest = newest - a[k] * s[k];
        s.push(newest);
        y = b[0] * newest + past;
    }
};

// Of second order in d = z - c, where c is 1 or -1, whichever is nearer to the poles; a1 has the sign of c:
//     (b0 d^2 + b1 d + b2) / (d^2 + a1 d + a2).
// Close to z = c, where the poles of low and of high cut-offs crowd, the coefficients of a polynomial in z cancel each
// other: at the distance r the last bit of one counts against r^2. In d they have the size of the result, and a
// rounding error is one of the result's last bits times the quality of the poles. So it is with the sums that run:
// with v = x / (d^2 + a1 d + a2) and u = d v, they are
//     u[i+1] = c u[i] + d u[i],  v[i+1] = c v[i] + u[i],  d u[i] = x[i] - a2 v[i] - a1 u[i].
// As in direct form, each u waits for the one before it for a product and a difference; for the one before that, by way
// of v, for a product and four sums.
struct DeltaSection {
    static constexpr std::size_t kOrder = 2;
    static constexpr std::int64_t kLag = 3;

    template <class Row>
    [[gnu::always_inline]] static void step(const Row& x, const Row (&a)[2], const Row (&b)[3], DelayLine<Row, 2>& s,
                                            Row& y) noexcept
    {
        using Bits [[gnu::vector_size(sizeof(Row))]] = std::int64_t;
        const Row u = s[0], v = s[1], damping = a[0] * u, rest = x - a[1] * v;
        y = b[0] * (rest - damping) + (b[1] * u + b[2] * v);
        const Bits sign = __builtin_bit_cast(Bits, a[0]) & INT64_MIN;
        const Row cu = __builtin_bit_cast(Row, __builtin_bit_cast(Bits, u) ^ sign);
        const Row cv = __builtin_bit_cast(Row, __builtin_bit_cast(Bits, v) ^ sign);
        s[0] = cu + rest - damping;
        s[1] = cv + u;
    }
};

} // namespace quordsp::backend
