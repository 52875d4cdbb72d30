#include "iir/design.h"

#include "extended_precision.h"
#include "iir/delta_sections.h"
#include "status.h"

namespace quordsp::backend {
namespace {

void checkTolerances(const Family& family, const Tolerances& tolerances)
{
    const auto [ripple, attenuation] = tolerances;
    require(!family.hasRipple || ripple > 0, Status::RippleNotPositive);
    require(!family.hasAttenuation || attenuation > 0, Status::AttenuationNotPositive);
    require(!family.hasRipple || !family.hasAttenuation || attenuation > ripple, Status::AttenuationBelowRipple);
}

} // namespace

void check(const Design& design)
{
    require(design.order > 0, Status::OrderNotPositive);
    requireCutoffs(design.response, design.frequencies);
    checkTolerances(design.family, design.tolerances);
    require(isKnown(design.response), Status::InvalidSelection);
}

std::vector<AnalogSection> sectionsOf(const Design& design)
{
    require(design.order <= kLargestOrder, Status::OutOfMemory);
    return transform(design.family.prototype(design.order, design.tolerances), design.response, design.frequencies);
}

Coefficients cascadeOf(const Design& design, std::size_t sectionOrder)
{
    return inExtendedPrecision([&] {
        return roundedSections(sectionsOf(design), sectionOrder, axisPoints(design.response, design.frequencies));
    });
}

Coefficients deltaCascadeOf(const Design& design)
{
    return inExtendedPrecision(
        [&] { return deltaSections(sectionsOf(design), axisPoints(design.response, design.frequencies)); });
}

std::int64_t directCount(Response response, std::int32_t order)
{
    return std::int64_t{order} * (isBand(response) ? 2 : 1) + 1;
}

} // namespace quordsp::backend
