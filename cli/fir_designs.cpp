#include "fir_designs.h"

#include <algorithm>
#include <numbers>

#include "by_response.h"

namespace quordsp::cli::fir {
namespace {

// Room for one coefficient is there in any case: what is wrong with the number of taps, the library tells.
double* roomFor(const FilterRequest& request, Impulse& impulse)
{
    impulse.taps.resize(static_cast<std::size_t>(std::max(request.taps, 1)));
    return impulse.taps.data();
}

AnalysisLibErrType equirippleOf(int kind, const FilterRequest& q, double gainUnit, Impulse& impulse)
{
    std::vector<double> gains;
    std::vector<double> weights;
    std::vector<double> edges;
    for (const auto& [from, to, gain, weight] : q.bands) {
        gains.push_back(gain * gainUnit);
        weights.push_back(weight);
        edges.insert(edges.end(), {from, to});
    }
    return QuorDSP_Equi_Ripple(static_cast<int>(gains.size()), gains.data(), weights.data(), q.rate, edges.data(), kind,
                               q.taps, roomFor(q, impulse), &impulse.ripple);
}

} // namespace

AnalysisLibErrType windowed(const FilterRequest& q, Impulse& impulse)
{
    return QuorDSP_WindFIR_Filter(q.type, q.rate, q.edges[0], q.edges[1], q.taps, q.window, q.parameter,
                                  roomFor(q, impulse));
}

AnalysisLibErrType kaiser(const FilterRequest& q, Impulse& impulse)
{
    using Exports = ByResponse<QuorDSP_Ksr_LPF, QuorDSP_Ksr_HPF, QuorDSP_Ksr_BPF, QuorDSP_Ksr_BSF>;
    return Exports::atCutoffs(q, [&](auto design, auto... cutoffs) {
        return design(q.rate, cutoffs..., q.taps, roomFor(q, impulse), q.beta);
    });
}

AnalysisLibErrType equiripple(const FilterRequest& q, Impulse& impulse)
{
    using Exports = ByResponse<QuorDSP_EquiRpl_LPF, QuorDSP_EquiRpl_HPF, QuorDSP_EquiRpl_BPF, QuorDSP_EquiRpl_BSF>;
    return Exports::atEnds(q, [&](auto design, auto... ends) {
        return design(q.rate, ends..., q.taps, roomFor(q, impulse), &impulse.ripple);
    });
}

AnalysisLibErrType multiband(const FilterRequest& q, Impulse& impulse)
{
    return equirippleOf(1, q, 1, impulse);
}

// The library's slope and ripple are by the share of the sampling rate.
AnalysisLibErrType differentiator(const FilterRequest& q, Impulse& impulse)
{
    const double unit = 2 * std::numbers::pi * q.rate;
    const AnalysisLibErrType status = equirippleOf(2, q, unit, impulse);
    impulse.ripple /= unit;
    return status;
}

AnalysisLibErrType hilbert(const FilterRequest& q, Impulse& impulse)
{
    return equirippleOf(3, q, 1, impulse);
}

AnalysisLibErrType convolve(std::span<const double> taps, const FilterSignal& signal)
{
    const int count = static_cast<int>(taps.size());
    if (!signal.isComplex())
        return QuorDSP_FIRFiltering(signal.in.data(), signal.count(), taps.data(), nullptr, count, signal.out);
    const std::vector<double> state(signal.in.size());
    return QuorDSP_FIRFiltering_CxInput(signal.in.data(), signal.inImaginary, signal.count(), taps.data(), state.data(),
                                        state.data(), count, signal.out, signal.outImaginary);
}

} // namespace quordsp::cli::fir
