#include "transfer_function.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "backend_function.h"
#include "number.h"
#include "progress.h"
#include "status.h"

namespace quordsp::cli {
namespace {

struct Design {
    const FilterFamily& family;
    FilterRequest request;
    std::string call; // for messages
};

TransferFunction tapsOf(const Design& design)
{
    TransferFunction function{Form::Taps, {}};
    check(design.family.impulse(design.request, function.impulse), design.call);
    function.sections.push_back({function.impulse.taps, {1}});
    return function;
}

TransferFunction directFormOf(const Design& design)
{
    const int degree = design.request.order * (design.request.type < 2 ? 1 : 2);
    Section section{std::vector<double>(static_cast<std::size_t>(degree) + 1),
                    std::vector<double>(static_cast<std::size_t>(degree) + 1)};
    check(design.family.direct(design.request, section.reverse.data(), section.forward.data(), degree + 1),
          design.call + ", direct form");
    return {Form::Direct, {std::move(section)}};
}

using Record = std::unique_ptr<QuorDSP_IIRFilter, QuorDSP_FreeIIRFilterPtrFunction>;

Record allocateRecord(const FilterRequest& request)
{
    const auto allocate = backendFunction<QuorDSP_AllocIIRFilterPtrFunction>("AllocIIRFilterPtr");
    const auto release = backendFunction<QuorDSP_FreeIIRFilterPtrFunction>("FreeIIRFilterPtr");
    return {allocate && release ? allocate(request.type, request.order) : nullptr, release};
}

std::vector<Section> sectionsOf(const QuorDSP_IIRFilter& record)
{
    const std::ptrdiff_t degree = record.type < 2 ? 2 : 4;
    std::vector<Section> sections;
    for (std::ptrdiff_t i = 0; i < record.reverseCount / degree; ++i) {
        const double* const reverse = record.reverse + i * degree;
        const double* const forward = record.forward + i * (degree + 1);
        sections.push_back({{forward, forward + degree + 1}, {1}});
        sections.back().reverse.insert(sections.back().reverse.end(), reverse, reverse + degree);
    }
    return sections;
}

struct Cascade {
    AnalysisLibErrType status;
    std::vector<Section> sections; // none when the status is negative
};

// The record's call that allocates it is not the library's: a backend without it counts as one without the entry.
Cascade cascadeOf(const Design& design, const FilterRequest& request)
{
    const Record record = allocateRecord(request);
    if (!record)
        return {QUORDSP_ENTRY_NOT_FOUND, {}};
    const AnalysisLibErrType status = design.family.cascade(request, record.get());
    return {status, status < 0 ? std::vector<Section>{} : sectionsOf(*record)};
}

// A refused design by its low-pass; none when there is no such thing.
std::optional<TransferFunction> mapped(const Design& design, AnalysisLibErrType refusal)
{
    FilterRequest lowpass = design.request;
    const bool isBand = lowpass.type >= 2;
    const double lower = isBand ? lowpass.edges[0] / lowpass.rate : 0;
    const BandMap map(lower, lowpass.edges[isBand ? 1 : 0] / lowpass.rate, lowpass.type % 2 == 1);
    lowpass.type = 0;
    lowpass.edges[0] = lowpass.rate / 4;
    const Cascade cascade = cascadeOf(design, lowpass);
    if (cascade.status < 0)
        return std::nullopt;
    return TransferFunction{Form::Mapped, cascade.sections, {}, map, statusText(refusal)};
}

TransferFunction sectionsOrBest(const Design& design)
{
    const Cascade cascade = cascadeOf(design, design.request);
    if (cascade.status == QUORDSP_ENTRY_NOT_FOUND) {
        TransferFunction direct = directFormOf(design);
        direct.refusal = statusText(cascade.status);
        return direct;
    }
    if (cascade.status == QUORDSP_ERR_DESIGN_FAILED)
        if (auto function = mapped(design, cascade.status))
            return *std::move(function);
    check(cascade.status, design.call + ", cascade");
    return {Form::Cascade, cascade.sections};
}

// Loads the backend, and tells what is wrong with the request: the call that allocates a record cannot.
void tryDesign(const Design& design)
{
    const double in = 1;
    double out = 0;
    FilterSignal signal{{&in, 1}, &out};
    check(design.family.run(design.request, signal), design.call);
}

} // namespace

TransferFunction designFilter(const ChosenFilter& filter, double rate, bool preferDirect)
{
    const Progress progress("designing");
    Design design{filter.family, filter.request, filter.describe() + " at " + rounded(rate) + " Hz"};
    design.request.rate = rate;
    if (filter.family.impulse)
        return tapsOf(design);
    tryDesign(design);
    return preferDirect ? directFormOf(design) : sectionsOrBest(design);
}

} // namespace quordsp::cli
