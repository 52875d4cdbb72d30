#include "fir/reference.h"

#include <algorithm>

namespace quordsp::backend {
namespace {

// Place i of count in even distances; none at the ends.
Real evenly(Real from, Real to, std::size_t i, std::size_t count)
{
    return from + (to - from) * ((static_cast<Real>(i) + 0.5L) / static_cast<Real>(count));
}

// The model read at fractions of an index, both its ends kept.
Real interpolated(std::span<const Place> model, std::size_t i, std::size_t count)
{
    const Real position = static_cast<Real>(i * (model.size() - 1)) / static_cast<Real>(count - 1);
    const std::size_t k = std::min(static_cast<std::size_t>(position), model.size() - 2);
    return model[k].f + (model[k + 1].f - model[k].f) * (position - static_cast<Real>(k));
}

} // namespace

Reference evenReference(const Approximation& approximation, std::size_t count)
{
    const Real width = approximation.width();
    Reference reference;
    Real before = 0; // the width of the bands before this one
    std::size_t band = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const Real position = evenly(0, width, i, count);
        while (band + 1 < approximation.bands.size() && position > before + approximation.bands[band].width())
            before += approximation.bands[band++].width();
        reference.push_back({approximation.bands[band].lower + (position - before), band});
    }
    return reference;
}

Reference scaledReference(const Approximation& approximation, const Reference& model, std::size_t count)
{
    Reference reference;
    std::size_t read = 0;
    for (std::size_t band = 0; band < approximation.bands.size(); ++band) {
        const ApproximationBand& limits = approximation.bands[band];
        const auto end = std::ranges::find_if(model.begin() + static_cast<std::ptrdiff_t>(read), model.end(),
                                              [band](const Place& place) { return place.band != band; });
        const std::span part{model.begin() + static_cast<std::ptrdiff_t>(read), end};
        read += part.size();
        const std::size_t places = (read * count + model.size() / 2) / model.size() - reference.size();
        for (std::size_t i = 0; i < places; ++i) {
            const bool isAlone = part.size() < 2 || places < 2;
            const Real f = isAlone ? evenly(limits.lower, limits.upper, i, places) : interpolated(part, i, places);
            reference.push_back({f, band});
        }
    }
    return reference;
}

} // namespace quordsp::backend
