#include "QuorDSP_DAQ.h"
#include "targets.h"

namespace quordsp::fuzz {
namespace {

using Samples = std::vector<double>;

void requireDocumented(int status)
{
    for (const int known : {0, -20001, -20003, -20008, -20023, -20024, -20025, -20031, -20061})
        if (status == known)
            return;
    require(false, "a documented status");
}

// The impulse response is symmetric: that of types 4 and 5 too, since the delayed impulse stands in its middle.
void requireFilter(const QuorDSP_FIRFilter& filter)
{
    require(filter.interpolation >= 1 && filter.modelCount >= 1 && filter.imageCount >= 1, "a filter in the record");
    const std::int64_t length = (filter.modelCount - 1) * filter.interpolation + filter.imageCount;
    require(length % 2 == 1, "an odd length");
    if (length > 2000)
        return;
    Samples x(static_cast<std::size_t>(length)), y(x.size());
    x[0] = 1;
    require(QuorDSP_FIRNarrowBandFilter(x.data(), sizeOf(x), filter, y.data()) == 0, "the filter runs");
    for (std::size_t k = 0; k < y.size(); ++k)
        require(std::abs(y[k] - y[y.size() - 1 - k]) < 1e-12, "a symmetric impulse response");
    require(QuorDSP_FIRNarrowBandFilter(x.data(), sizeOf(x), filter, x.data()) == 0 && areSame(x, y),
            "in place as elsewhere");
}

// Wide enough for a design of a few hundred taps.
double width(Bytes& bytes)
{
    return 0.02 + bytes.byte() / 512.0;
}

} // namespace

// Designs of any parameters, one in place of the other in the same record.
void narrow_band(Bytes bytes)
{
    QuorDSP_FIRFilter* const filter = QuorDSP_AllocFIRFilterPtr();
    require(filter != nullptr, "a record");
    for (int designs = 0; designs < 2; ++designs) {
        const bool isOrdinary = bytes.byte() % 4 > 0;
        const int type = bytes.mostlyBetween(-1, 6);
        const double fs = isOrdinary ? 1 : bytes.number();
        const double pass = isOrdinary ? width(bytes) : bytes.number();
        const double stop = isOrdinary ? pass + width(bytes) * (type == 3 ? -1 : 1) : bytes.number();
        const double center = isOrdinary ? width(bytes) : bytes.number();
        const double ripple = isOrdinary ? bytes.between(1, 50) / 100.0 : bytes.number();
        const double attenuation = isOrdinary ? bytes.between(1, 60) : bytes.number();
        const QuorDSP_FIRFilter before = *filter;
        const int status = QuorDSP_FIRNarrowBandCoef(fs, pass, stop, center, ripple, attenuation, type, filter);
        requireDocumented(status);
        if (status == 0) {
            require(filter->type == type, "the type in the record");
            requireFilter(*filter);
        } else {
            require(filter->model == before.model && filter->image == before.image && filter->type == before.type,
                    "a refused design leaves the record");
        }
    }
    QuorDSP_FreeFIRFilterPtr(filter);
}

} // namespace quordsp::fuzz
