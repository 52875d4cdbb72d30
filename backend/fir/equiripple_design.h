// What the numbered equiripple entries do.
#pragma once

#include "nianlys.h"

#include <initializer_list>

namespace quordsp::backend {

// Bands that stop and pass in turn, from 0 to fs / 2, each two of them between two edges.
struct SelectiveDesign {
    bool firstPasses;
    std::int64_t taps;
    double fs;
    std::initializer_list<double> edges;
};

Status designSelective(const SelectiveDesign& design, double* h, double* ripple) noexcept;

// Design, then filter n samples from zero state; an even number of taps becomes the next odd one where fs / 2 passes.
// Sample is double or Complex.
template <class Sample>
Status filterSelectively(const Sample* x, std::int64_t n, const SelectiveDesign& design, Sample* y) noexcept;

enum class EquirippleKind : std::int32_t { MultiBand, Differentiator, Hilbert };

// As records or, when there are none, as arrays of their fields; two edges a band.
struct BandList {
    std::int64_t count;
    const Band* records = nullptr;
    const double* amplitudes = nullptr;
    const double* weights = nullptr;
    const double* edges = nullptr;

    bool isNull() const { return !records && !(amplitudes && weights && edges); }
    Band operator[](std::int64_t i) const
    {
        return records ? records[i] : Band{amplitudes[i], edges[2 * i], edges[2 * i + 1], weights[i]};
    }
};

struct BandDesign {
    EquirippleKind kind;
    std::int64_t taps;
    double fs;
    BandList bands;
};

Status designBands(const BandDesign& design, double* h, double* ripple) noexcept;

} // namespace quordsp::backend
