#include "transfer_function.h"

#include <algorithm>
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
    std::vector<double> taps(static_cast<std::size_t>(std::max(design.request.taps, 1)));
    check(design.family.coefficients(design.request, taps.data()), design.call);
    return {Form::Taps, {{std::move(taps), {1}}}};
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

// None when the backend has no records or no design for them.
std::optional<TransferFunction> cascadeOf(const Design& design)
{
    const Record record = allocateRecord(design.request);
    if (!record)
        return std::nullopt;
    const AnalysisLibErrType status = design.family.cascade(design.request, record.get());
    if (status == QUORDSP_ENTRY_NOT_FOUND)
        return std::nullopt;
    check(status, design.call);
    return TransferFunction{Form::Cascade, sectionsOf(*record)};
}

// Loads the backend, and tells what is wrong with the request: the call that allocates a record cannot.
void tryDesign(const Design& design)
{
    const double in = 1;
    double out = 0;
    check(design.family.run(design.request, {&in, 1}, &out), design.call);
}

} // namespace

TransferFunction designFilter(const ChosenFilter& filter, double rate, bool preferDirect)
{
    const Progress progress("designing");
    Design design{filter.family, filter.request, filter.describe() + " at " + rounded(rate) + " Hz"};
    design.request.rate = rate;
    if (filter.family.coefficients)
        return tapsOf(design);
    tryDesign(design);
    std::optional<TransferFunction> cascade;
    if (!preferDirect)
        cascade = cascadeOf(design);
    return cascade ? *std::move(cascade) : directFormOf(design);
}

} // namespace quordsp::cli
