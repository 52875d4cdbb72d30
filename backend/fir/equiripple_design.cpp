#include "fir/equiripple_design.h"

#include "extended_precision.h"
#include "fir/equiripple.h"
#include "fir/filtering.h"

#include <algorithm>

namespace quordsp::backend {
namespace {

void checkTaps(std::int64_t taps)
{
    require(taps > 2, Status::TooFewTaps);
}

bool passesAtHalf(const SelectiveDesign& design)
{
    return design.firstPasses != (design.edges.size() / 2 % 2 != 0);
}

void check(const SelectiveDesign& design)
{
    checkTaps(design.taps);
    require(design.taps % 2 != 0 || !passesAtHalf(design), Status::EvenSize);
    double former = 0;
    for (const double edge : design.edges) {
        require(edge > former, Status::Band);
        former = edge;
    }
    require(std::isfinite(design.fs) && former < Real{design.fs} / 2, Status::Band);
}

Approximation approximationOf(const SelectiveDesign& design)
{
    Approximation result{{static_cast<std::size_t>(design.taps), false}, {}};
    const auto addBand = [&](Real lower, Real upper) {
        const bool passes = design.firstPasses != (result.bands.size() % 2 != 0);
        result.bands.push_back({lower, upper, passes ? 1.0L : 0.0L, 1});
    };
    Real lower = 0;
    for (const double* edge = design.edges.begin(); edge != design.edges.end(); edge += 2) {
        addBand(lower, edge[0] / Real{design.fs});
        lower = edge[1] / Real{design.fs};
    }
    addBand(lower, 0.5L);
    return result;
}

EquirippleFilter work(const SelectiveDesign& design)
{
    check(design);
    require(design.taps <= kMostTaps, Status::DesignFailed);
    return inExtendedPrecision([&] { return equiripple(approximationOf(design)); });
}

bool reachesHalf(const BandDesign& design)
{
    return design.bands[design.bands.count - 1].upperFrequency == Real{design.fs} / 2;
}

void checkBands(const BandDesign& design)
{
    require(design.fs > 0 && std::isfinite(design.fs) && design.bands.count > 0, Status::Band);
    require(design.bands.count <= kMostBands, Status::DesignFailed);
    for (std::int64_t i = 0; i < design.bands.count; ++i) {
        const Band band = design.bands[i];
        require(i == 0 ? band.lowerFrequency >= 0 : band.lowerFrequency > design.bands[i - 1].upperFrequency,
                Status::Band);
        require(band.upperFrequency > band.lowerFrequency && band.upperFrequency <= Real{design.fs} / 2, Status::Band);
        require(std::isfinite(band.amplitude) && band.weight > 0 && std::isfinite(band.weight), Status::Band);
    }
}

// The zeros that the symmetry forces.
void checkKind(const BandDesign& design)
{
    const bool isOdd = design.taps % 2 != 0;
    switch (design.kind) {
    case EquirippleKind::MultiBand:
        require(isOdd || !reachesHalf(design) || design.bands[design.bands.count - 1].amplitude == 0, Status::EvenSize);
        return;
    case EquirippleKind::Hilbert:
        require(design.bands[0].lowerFrequency > 0, Status::Band);
        [[fallthrough]];
    case EquirippleKind::Differentiator:
        require(!isOdd || !reachesHalf(design), Status::OddSize);
        return;
    }
    throw Failure{Status::InvalidSelection};
}

Approximation approximationOf(const BandDesign& design)
{
    Approximation result{{static_cast<std::size_t>(design.taps), design.kind != EquirippleKind::MultiBand}, {}};
    for (std::int64_t i = 0; i < design.bands.count; ++i) {
        const Band band = design.bands[i];
        const bool isSlope = design.kind == EquirippleKind::Differentiator && band.amplitude != 0;
        result.bands.push_back({band.lowerFrequency / Real{design.fs}, band.upperFrequency / Real{design.fs},
                                band.amplitude, band.weight, isSlope});
    }
    return result;
}

void store(const EquirippleFilter& filter, double* h, double* ripple)
{
    std::ranges::copy(filter.h, h);
    *ripple = filter.ripple;
}

} // namespace

Status designSelective(const SelectiveDesign& design, double* h, double* ripple) noexcept
{
    return guarded([&] {
        requireArrays(h, ripple);
        store(work(design), h, ripple);
    });
}

template <class Sample>
Status filterSelectively(const Sample* x, std::int64_t n, const SelectiveDesign& design, Sample* y) noexcept
{
    return guarded([&] {
        requirePositiveCount(n);
        requireArrays(x, y);
        SelectiveDesign fitting = design;
        if (passesAtHalf(design) && design.taps > 2)
            fitting.taps |= 1;
        const EquirippleFilter filter = work(fitting);
        filterFromRest(x, n, filter.h.data(), fitting.taps, y);
    });
}

template Status filterSelectively(const double*, std::int64_t, const SelectiveDesign&, double*) noexcept;
template Status filterSelectively(const Complex*, std::int64_t, const SelectiveDesign&, Complex*) noexcept;

Status designBands(const BandDesign& design, double* h, double* ripple) noexcept
{
    return guarded([&] {
        require(!design.bands.isNull(), Status::ArraySize);
        requireArrays(h, ripple);
        checkTaps(design.taps);
        checkBands(design);
        checkKind(design);
        require(design.taps <= kMostTaps, Status::DesignFailed);
        store(inExtendedPrecision([&] { return equiripple(approximationOf(design)); }), h, ripple);
    });
}

} // namespace quordsp::backend
