#include "narrow_band.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <numbers>
#include <numeric>

namespace quordsp::cli {
namespace {

// The parameters of the library's design.
struct Bands {
    double pass;
    double stop;
    double center;
};

// Both transitions of a band filter are as broad as the narrower one of the request.
Bands bandsAround(double innerFrom, double innerTo, double outerFrom, double outerTo, bool passesInside)
{
    const double center = std::midpoint(innerFrom, innerTo);
    const double inside = innerTo - innerFrom;
    const double outside = 2 * std::min(center - outerFrom, outerTo - center);
    return passesInside ? Bands{inside, outside, center} : Bands{outside, inside, center};
}

Bands bandsOf(const FilterRequest& q, Width width)
{
    const double half = q.rate / 2;
    const double* const f = q.edges;
    if (q.type >= 2)
        return bandsAround(f[1], f[2], f[0], f[3], q.type == 2);
    // The library mirrors the high-pass of the narrow kind and the low-pass of the wide one.
    const bool isMirrored = (q.type == 1) == (width == Width::Narrow);
    return isMirrored ? Bands{half - f[1], half - f[0], 0} : Bands{f[0], f[1], 0};
}

// The deviation d for which (1 + d)/(1 - d) is the ripple.
double deviationOf(double ripple)
{
    return std::tanh(ripple * std::numbers::ln10 / 40);
}

struct Release {
    void operator()(QuorDSP_FIRFilter* record) const { QuorDSP_FreeFIRFilterPtr(record); }
};

using Record = std::unique_ptr<QuorDSP_FIRFilter, Release>;

struct Designed {
    Record record;
    AnalysisLibErrType status;
};

Designed design(const FilterRequest& q, Width width)
{
    Designed result{Record(QuorDSP_AllocFIRFilterPtr()), QUORDSP_SUCCESS};
    const auto [pass, stop, center] = bandsOf(q, width);
    const int type = q.type + (width == Width::Wide ? 4 : 0);
    result.status = QuorDSP_FIRNarrowBandCoef(q.rate, pass, stop, center, deviationOf(q.ripple), q.attenuation, type,
                                              result.record.get());
    if (!result.record && result.status == QUORDSP_ERR_ARRAY_SIZE)
        result.status = QUORDSP_ERR_OUT_OF_MEMORY;
    return result;
}

// Of the answer to an impulse.
std::int64_t lengthOf(const QuorDSP_FIRFilter& record)
{
    return (record.modelCount - 1) * record.interpolation + record.imageCount;
}

AnalysisLibErrType filter(const QuorDSP_FIRFilter& record, const FilterSignal& signal)
{
    if (!signal.isComplex())
        return QuorDSP_FIRNarrowBandFilter(signal.in.data(), signal.count(), record, signal.out);
    return QuorDSP_CxFIRNarrowBandFilter(signal.in.data(), signal.inImaginary, signal.count(), record, signal.out,
                                         signal.outImaginary);
}

} // namespace

template <Width width>
AnalysisLibErrType narrowBandFilter(const FilterRequest& q, FilterSignal& signal)
{
    const Designed designed = design(q, width);
    if (designed.status < 0)
        return designed.status;
    signal.delay = static_cast<double>(lengthOf(*designed.record) - 1) / 2;
    return filter(*designed.record, signal);
}

template <Width width>
AnalysisLibErrType narrowBandImpulse(const FilterRequest& q, Impulse& impulse)
{
    const Designed designed = design(q, width);
    if (designed.status < 0)
        return designed.status;
    const QuorDSP_FIRFilter& record = *designed.record;
    const std::int64_t size = lengthOf(record);
    if (size > std::numeric_limits<int>::max())
        return QUORDSP_ERR_OUT_OF_MEMORY;
    std::vector<double> unit(static_cast<std::size_t>(size));
    unit.front() = 1;
    impulse = {.taps = std::vector<double>(unit.size()),
               .model = static_cast<std::size_t>(record.modelCount),
               .interpolation = static_cast<std::size_t>(record.interpolation),
               .image = static_cast<std::size_t>(record.imageCount)};
    return filter(record, {unit, impulse.taps.data()});
}

template AnalysisLibErrType narrowBandFilter<Width::Narrow>(const FilterRequest&, FilterSignal&);
template AnalysisLibErrType narrowBandFilter<Width::Wide>(const FilterRequest&, FilterSignal&);
template AnalysisLibErrType narrowBandImpulse<Width::Narrow>(const FilterRequest&, Impulse&);
template AnalysisLibErrType narrowBandImpulse<Width::Wide>(const FilterRequest&, Impulse&);

} // namespace quordsp::cli
