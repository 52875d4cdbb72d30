#include "filter_designs.h"

#include <algorithm>

namespace quordsp::cli {
namespace {

int count(const FilterRequest& request)
{
    return static_cast<int>(request.in.size());
}

template <auto filter>
AnalysisLibErrType oneEdge(const FilterRequest& q, double* out)
{
    return filter(q.in.data(), count(q), q.rate, q.edges[0], q.order, out);
}

template <auto filter>
AnalysisLibErrType twoEdges(const FilterRequest& q, double* out)
{
    return filter(q.in.data(), count(q), q.rate, q.edges[0], q.edges[1], q.order, out);
}

constexpr FilterDesign kDesigns[] = {
    {"butterworth", "lowpass", 1, oneEdge<QuorDSP_Bw_LPF>},
    {"butterworth", "highpass", 1, oneEdge<QuorDSP_Bw_HPF>},
    {"butterworth", "bandpass", 2, twoEdges<QuorDSP_Bw_BPF>},
    {"butterworth", "bandstop", 2, twoEdges<QuorDSP_Bw_BSF>},
};

} // namespace

std::span<const FilterDesign> filterDesigns()
{
    return kDesigns;
}

const FilterDesign* findDesign(std::string_view family, std::string_view response)
{
    const auto fits = [&](const FilterDesign& row) { return row.family == family && row.response == response; };
    const auto* found = std::ranges::find_if(kDesigns, fits);
    return found == std::end(kDesigns) ? nullptr : found;
}

} // namespace quordsp::cli
