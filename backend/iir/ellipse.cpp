#include "iir/ellipse.h"

#include "iir/elementary.h"
#include "status.h"

namespace quordsp::backend {

Real powerExcess(Real decibels)
{
    const Real excess = expMinusOne(decibels * (std::numbers::ln10_v<Real> / 10));
    require(excess <= std::numeric_limits<double>::max(), Status::DesignFailed);
    return excess;
}

PoleEllipse::PoleEllipse(std::int32_t order, Real sinhOfAll) : whole_{Real{2} * order}
{
    const Real excess = expMinusOne(arsinh(sinhOfAll) / order);
    sinh_ = (excess + excess / (1 + excess)) / 2;
    cosh_ = std::sqrt(1 + sinh_ * sinh_);
}

std::complex<Real> PoleEllipse::pole(std::int32_t k) const
{
    return {-sinh_ * sinPi(k, whole_), cosh_ * cosPi(k, whole_)};
}

Real gainAtZero(std::int32_t order, Real rippleExcess)
{
    return order % 2 ? 1 : 1 / std::sqrt(1 + rippleExcess);
}

} // namespace quordsp::backend
