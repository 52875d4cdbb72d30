#include "one_call.h"
#include "targets.h"

namespace quordsp::fuzz {
namespace {

// A record for entries and exports alike.
struct AnyRecord {
    QuorDSP_FIRFilter filter;

    operator QuorDSP_FIRFilter() const { return filter; }
    operator backend::FirFilter() const
    {
        return {filter.type, filter.interpolation, filter.modelCount, filter.model, filter.imageCount, filter.image};
    }
};

Outcome filtered(const QuorDSP_FIRFilter& by, const Signal& x)
{
    return requireOneOutcome(oneCall(backend::AALFunc410, backend::AALFunc411, QuorDSP_FIRNarrowBandFilter,
                                     QuorDSP_CxFIRNarrowBandFilter, AfterFailure::Anything, AnyRecord{by}),
                             x);
}

// The impulse response is symmetric: that of types 4 and 5 too, since the delayed impulse stands in its middle. Other
// samples are the imaginary parts.
void requireFilter(const QuorDSP_FIRFilter& filter, const Samples& others)
{
    require(filter.interpolation >= 1 && filter.modelCount >= 1 && filter.imageCount >= 1, "a filter in the record");
    const std::int64_t length = (filter.modelCount - 1) * filter.interpolation + filter.imageCount;
    require(length % 2 == 1, "an odd length");
    if (length > 2000)
        return;
    Signal x{Samples(static_cast<std::size_t>(length)), repeated(others, static_cast<std::size_t>(length))};
    x.re[0] = 1;
    const Outcome outcome = filtered(filter, x);
    require(outcome.status == 0, "the filter runs");
    const Samples& h = outcome.y.re;
    for (std::size_t k = 0; k < h.size(); ++k)
        require(std::abs(h[k] - h[h.size() - 1 - k]) < 1e-12, "a symmetric impulse response");
}

constexpr std::int64_t kHuge = std::numeric_limits<std::int64_t>::max();

// Each makes a record that holds no filter, which is answered as documented.
constexpr struct {
    void (*make)(QuorDSP_FIRFilter&);
    int status;
} kMistakes[] = {
    {[](QuorDSP_FIRFilter& filter) { filter.model = nullptr; }, QUORDSP_ERR_ARRAY_SIZE},
    {[](QuorDSP_FIRFilter& filter) { filter.image = nullptr; }, QUORDSP_ERR_ARRAY_SIZE},
    {[](QuorDSP_FIRFilter& filter) { filter.interpolation = 0; }, QUORDSP_ERR_ARRAY_SIZE},
    {[](QuorDSP_FIRFilter& filter) { filter.modelCount = -1; }, QUORDSP_ERR_ARRAY_SIZE},
    {[](QuorDSP_FIRFilter& filter) { filter.imageCount = 0; }, QUORDSP_ERR_ARRAY_SIZE},
    {[](QuorDSP_FIRFilter& filter) { filter.type = -1; }, QUORDSP_ERR_INVALID_SELECTION},
    {[](QuorDSP_FIRFilter& filter) { filter.type = 6; }, QUORDSP_ERR_INVALID_SELECTION},
    {[](QuorDSP_FIRFilter& filter) { filter.modelCount = kHuge; }, QUORDSP_ERR_OUT_OF_MEMORY},
    {[](QuorDSP_FIRFilter& filter) { filter.imageCount = kHuge; }, QUORDSP_ERR_OUT_OF_MEMORY},
};

void requireRefusal(QuorDSP_FIRFilter filter, const Samples& others, int choice)
{
    const auto& mistake = kMistakes[static_cast<std::size_t>(choice) % std::size(kMistakes)];
    mistake.make(filter);
    require(filtered(filter, {others, others}).status == mistake.status, "the documented status");
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
        const Samples others = bytes.numbers(3);
        const QuorDSP_FIRFilter before = *filter;
        const int status = QuorDSP_FIRNarrowBandCoef(fs, pass, stop, center, ripple, attenuation, type, filter);
        requireOneOf({0, -20001, -20003, -20008, -20023, -20024, -20025, -20031, -20061}, status);
        if (status == 0) {
            require(filter->type == type, "the type in the record");
            requireFilter(*filter, others);
            requireRefusal(*filter, others, bytes.byte());
        } else {
            require(filter->model == before.model && filter->image == before.image && filter->type == before.type,
                    "a refused design leaves the record");
        }
    }
    QuorDSP_FreeFIRFilterPtr(filter);
}

} // namespace quordsp::fuzz
