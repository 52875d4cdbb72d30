// All windows but one are functions of v = |k - M| / M, M = (taps - 1) / 2: the distance from the middle, 1 at the
// ends.
#include "fir/window.h"

#include "extended_precision.h"
#include "fir/dolph_chebyshev.h"
#include "fir/kaiser.h"
#include "status.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace quordsp::backend {
namespace {

using Real = long double;

constexpr Real kPi = std::numbers::pi_v<Real>;

struct Shape;

struct Place {
    const Shape& shape;
    Real parameter;
    Real taps;
    Real v;
};

struct Shape {
    std::int32_t code;
    Real (*value)(const Place&); // null: worked out as a whole
    Real terms[7] = {};          // of a sum of cosines, by ascending frequency
    bool hasParameter = false;
    double standard = 0; // what NaN stands for as the parameter
};

Real cosines(const Place& place)
{
    Real sum = 0;
    for (int j = 6; j > 0; --j)
        if (place.shape.terms[j] != 0)
            sum += place.shape.terms[j] * std::cos(static_cast<Real>(j) * kPi * place.v);
    return sum + place.shape.terms[0];
}

Real triangle(const Place& place)
{
    return 1 - place.v;
}

Real bartlettHanning(const Place& place)
{
    return 0.62L - 0.24L * place.v + 0.38L * std::cos(kPi * place.v);
}

// Taken from the end, so that it is 0 there whatever the run-time's pi.
Real bohman(const Place& place)
{
    const Real rest = 1 - place.v;
    return std::sin(kPi * rest) / kPi - rest * std::cos(kPi * rest);
}

Real parzen(const Place& place)
{
    const Real v = place.v, rest = 1 - v;
    return v <= 0.5L ? 1 - 6 * v * v * rest : 2 * rest * rest * rest;
}

Real welch(const Place& place)
{
    return (1 - place.v) * (1 + place.v);
}

Real kaiser(const Place& place)
{
    return kaiserValue(place.parameter, place.v);
}

Real gaussian(const Place& place)
{
    const Real deviations = place.v * (place.taps - 1) / (2 * place.taps) / place.parameter;
    return std::exp(-deviations * deviations / 2);
}

constexpr std::int32_t kRectangle = 0, kHanning = 1, kHamming = 2, kBlackman = 5, kTriangle = 30, kKaiser = 60;

constexpr Shape kShapes[] = {
    {kRectangle, cosines, {1}},
    {kHanning, cosines, {0.5L, 0.5L}},
    {kHamming, cosines, {0.54L, 0.46L}},
    {3, cosines, {0.42323L, 0.49755L, 0.07922L}},
    {4, cosines, {7938 / 18608.0L, 9240 / 18608.0L, 1430 / 18608.0L}},
    {kBlackman, cosines, {0.42L, 0.5L, 0.08L}},
    {6, cosines, {0.21557895L, 0.41663158L, 0.277263158L, 0.083578947L, 0.006947368L}},
    {7, cosines, {0.35875L, 0.48829L, 0.14128L, 0.01168L}},
    {8,
     cosines,
     {0.27105140069342415L, 0.43329793923448606L, 0.21812299954311062L, 0.065925446388030898L, 0.010811742098372268L,
      7.7658482522509342e-4L, 1.3887217350903198e-5L}},
    {9, cosines, {0.323215218L, 0.471492057L, 0.17553428L, 0.028497078L, 0.001261367L}},
    {11, cosines, {0.3635819L, 0.4891775L, 0.1365995L, 0.0106411L}},
    {kTriangle, triangle},
    {31, bartlettHanning},
    {32, bohman},
    {33, parzen},
    {34, welch},
    {kKaiser, kaiser, {}, true, 0},
    {61, nullptr, {}, true, 60},
    {62, gaussian, {}, true, 0.2},
};

const Shape* shapeOf(const Window& window)
{
    for (const Shape& shape : kShapes)
        if (shape.code == window.code)
            return &shape;
    return nullptr;
}

double parameterOf(const Window& window, const Shape& shape)
{
    return std::isnan(window.parameter) ? shape.standard : window.parameter;
}

} // namespace

Window classicWindow(std::int32_t code)
{
    constexpr std::int32_t kCodes[] = {kRectangle, kTriangle, kHanning, kHamming, kBlackman};
    return {code >= 1 && code <= 5 ? kCodes[code - 1] : -1};
}

Window kaiserWindow(double beta)
{
    return {kKaiser, std::isnan(beta) ? -1 : beta};
}

// Where the default is 0, 0 is allowed.
void check(const Window& window)
{
    const Shape* const shape = shapeOf(window);
    require(shape, Status::InvalidSelection);
    const double parameter = parameterOf(window, *shape);
    const bool isInRange = std::isfinite(parameter) && (parameter > 0 || parameter == shape->standard);
    require(isInRange || !shape->hasParameter, Status::InvalidSelection);
}

Buffer<> firstOfHalf(const Window& window, std::size_t taps, std::size_t count)
{
    const Shape& shape = *shapeOf(window);
    const double parameter = parameterOf(window, shape);
    if (!shape.value)
        return dolphChebyshevHalf(parameter, taps);
    Buffer<> half = makeBuffer(count);
    if (taps == 1)
        half[0] = 1;
    else
        inExtendedPrecision([&] {
            const auto last = static_cast<Real>(taps - 1);
            for (std::size_t k = 0; k < count; ++k)
                half[k] = static_cast<double>(
                    shape.value({shape, parameter, static_cast<Real>(taps), (last - 2 * static_cast<Real>(k)) / last}));
        });
    return half;
}

} // namespace quordsp::backend
