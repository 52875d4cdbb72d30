// The four exports of a design, one a response.
#pragma once
#include "filter_request.h"

namespace quordsp::cli {

template <auto low, auto high, auto pass, auto stop>
struct ByResponse {
    // with(export, frequencies...): a band has two cut-offs.
    static auto atCutoffs(const FilterRequest& q, auto with)
    {
        const double* const f = q.edges;
        switch (q.type) {
        case 0:
            return with(low, f[0]);
        case 1:
            return with(high, f[0]);
        case 2:
            return with(pass, f[0], f[1]);
        default:
            return with(stop, f[0], f[1]);
        }
    }

    // The same where each transition has two ends.
    static auto atEnds(const FilterRequest& q, auto with)
    {
        const double* const f = q.edges;
        switch (q.type) {
        case 0:
            return with(low, f[0], f[1]);
        case 1:
            return with(high, f[0], f[1]);
        case 2:
            return with(pass, f[0], f[1], f[2], f[3]);
        default:
            return with(stop, f[0], f[1], f[2], f[3]);
        }
    }
};

} // namespace quordsp::cli
