#include "statistics/parabola.h"

#include <cmath>

namespace quordsp::backend {

bool GroupSums::areFinite() const noexcept
{
    return std::isfinite(slope) && std::isfinite(curvature) && std::isfinite(level);
}

// The polynomials behind the sums are orthogonal over the group, so each coefficient is its sum over the sum of the
// polynomial's squares: those of u are w (w^2 - 1) / 12, those of u^2 less its mean w (w^2 - 1) (w^2 - 4) / 180. The
// vertex -slope / (2 curvature) comes from the sums, which do not underflow.
Parabola parabolaOf(const GroupSums& sums, double width) noexcept
{
    const double squares = width * width;
    const double cube = width * (squares - 1);
    const double curvature = sums.curvature * 15 / (cube * (squares - 4));
    const double level = sums.reference + (sums.level - curvature * (cube / 12)) / width;
    return {level, sums.slope / (cube / 6), curvature, -sums.vertex() * ((squares - 4) / 5)};
}

} // namespace quordsp::backend
