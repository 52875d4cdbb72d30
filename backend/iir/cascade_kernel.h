// Sections of a cascade, side by side.
//
// A section waits for its own last value, for one product and one difference or a little more, whatever else the
// processor could do meanwhile. So several sections run side by side, each some samples behind the one before it, from
// which it takes its input. Every section still sees the samples in their order and forms its sums as it does alone:
// the results have the same bits as section after section. The lag is as long as an output takes to be formed and moved
// to its neighbour, so that nobody waits for it.
#pragma once

#include "iir/section_forms.h"

#include <cstring>
#include <utility>

namespace quordsp::backend {

// Coefficients a1..aD and b0..bD of each section of order D.
struct Sections {
    std::size_t count;
    const double* reverse;
    const double* forward;
};

// Sections over samples of P parts. There is room for S of them; the last one stands in the first lanes, where the
// outputs come from.
template <class Section, std::size_t P, std::size_t S>
class SectionLanes {
public:
    static constexpr std::int64_t kLag = Section::kLag;

    [[gnu::always_inline]] SectionLanes(const Sections& sections, const double* state) noexcept
    {
        constexpr std::size_t kLanes = P * S;
        double a[D][kLanes] = {}, b[D + 1][kLanes] = {}, s[D][kLanes] = {};
        std::int64_t start[kLanes] = {}, isFirst[kLanes] = {};
        for (std::size_t lane = 0; lane < P * sections.count; ++lane) {
            const std::size_t section = sections.count - 1 - lane / P;
            for (std::size_t k = 0; k < D; ++k) {
                a[k][lane] = sections.reverse[section * D + k];
                s[k][lane] = state[(section * D + k) * P + lane % P];
            }
            for (std::size_t k = 0; k <= D; ++k)
                b[k][lane] = sections.forward[section * (D + 1) + k];
            start[lane] = kLag * static_cast<std::int64_t>(section);
            isFirst[lane] = section == 0 ? -1 : 0;
        }
        std::memcpy(a_, a, sizeof a);
        std::memcpy(b_, b, sizeof b);
        for (std::size_t k = 0; k < D; ++k)
            std::memcpy(&s_[k], s[k], sizeof s[k]);
        std::memcpy(&start_, start, sizeof start);
        std::memcpy(&isFirst_, isFirst, sizeof isFirst);
    }

    [[gnu::always_inline]] void save(const Sections& sections, double* state) const noexcept
    {
        for (std::size_t k = 0; k < D; ++k) {
            double s[P * S];
            std::memcpy(s, &s_[k], sizeof s);
            for (std::size_t lane = 0; lane < P * sections.count; ++lane)
                state[((sections.count - 1 - lane / P) * D + k) * P + lane % P] = s[lane];
        }
    }

    // Every section takes one sample, the first one this.
    [[gnu::always_inline]] void step(const double* sample) noexcept
    {
        Row input, output;
        take(sample, input, std::make_index_sequence<P * S>());
        Section::step(input, a_, b_, s_, output);
        y_.push(output);
    }

    // At the beginning and at the end of n samples some sections have none to take.
    [[gnu::always_inline]] void stepAtEnds(const double* sample, std::int64_t time, std::int64_t n) noexcept
    {
        const Mask takesOne = (start_ <= time) & (start_ > time - n);
        const DelayLine<Row, D> before = s_;
        step(sample);
        for (std::size_t k = 0; k < D; ++k)
            s_[k] = takesOne ? s_[k] : before[k];
    }

    // Of the last section.
    [[gnu::always_inline]] void store(double* sample) const noexcept
    {
        for (std::size_t part = 0; part < P; ++part)
            sample[part] = y_[0][part];
    }

private:
    static constexpr std::size_t D = Section::kOrder;
    using Row [[gnu::vector_size(P * S * sizeof(double))]] = double;
    using Mask [[gnu::vector_size(P * S * sizeof(std::int64_t))]] = std::int64_t;

    template <std::size_t... lane>
    [[gnu::always_inline]] void take(const double* sample, Row& input, std::index_sequence<lane...>) const noexcept
    {
        const Row& oldest = y_[kLag - 1];
        const Row entering = {sample[lane % P]...};
        const Row handedOn = __builtin_shufflevector(oldest, oldest, (lane + P < P * S ? lane + P : lane)...);
        input = isFirst_ ? entering : handedOn;
    }

    Row a_[D], b_[D + 1];
    DelayLine<Row, D> s_;
    DelayLine<Row, kLag> y_; // the last outputs
    Mask start_, isFirst_;
};

// At most S sections over n samples, more than it takes the first one to reach the last section. state: the D values
// of each section's form; x may be y.
template <class Section, std::size_t P, std::size_t S>
[[gnu::always_inline]] inline void filterSections(const double* x, std::int64_t n, Sections sections, double* state,
                                                  double* y) noexcept
{
    using Lanes = SectionLanes<Section, P, S>;
    constexpr auto p = static_cast<std::int64_t>(P);
    const std::int64_t delay = Lanes::kLag * static_cast<std::int64_t>(sections.count - 1);
    Lanes lanes{sections, state};
    for (std::int64_t time = 0; time < delay; ++time)
        lanes.stepAtEnds(x + time * p, time, n);
    for (std::int64_t time = delay; time < n; ++time) {
        lanes.step(x + time * p);
        lanes.store(y + (time - delay) * p);
    }
    constexpr double none[P] = {};
    for (std::int64_t time = n; time < n + delay; ++time) {
        lanes.stepAtEnds(none, time, n);
        lanes.store(y + (time - delay) * p);
    }
    lanes.save(sections, state);
}

} // namespace quordsp::backend
