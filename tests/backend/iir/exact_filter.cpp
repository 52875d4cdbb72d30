#include "backend/iir/exact_filter.h"

#include <cmath>
#include <numbers>

namespace quordsp::test {
namespace {

using Real = ExactFilter::Real;
using Point = ExactFilter::Point;
using backend::Response;

constexpr Real kPi = std::numbers::pi_v<Real>;

Real tanPi(Real f)
{
    return sinPi(f) / cosPi(f);
}

Real square(Real value)
{
    return value * value;
}

// The response of a prototype at frequency q.
Point prototypeResponse(const vectors::Prototype& prototype, Real q)
{
    Point product = prototype.gain;
    for (const auto& [real, imaginary, zero] : prototype.sections) {
        const Real squared = square(real) + square(imaginary);
        if (imaginary == 0)
            product *= -real / Point{-real, q};
        else
            product *= squared * (1 - square(q / zero)) / Point{squared - square(q), -2 * real * q};
    }
    return product;
}

} // namespace

Real sinPi(Real f)
{
    return std::sin(kPi * f);
}

Real cosPi(Real f)
{
    return std::sin(kPi * (0.5L - f));
}

ExactFilter::ExactFilter(const vectors::Prototype& prototype, Response response, const Cutoffs& cutoffs)
    : prototype_{prototype},
      isBand_{isBand(response)},
      isReciprocal_{response == Response::HighPass || response == Response::BandStop},
      low_{tanPi(cutoffs.fl)},
      width_{tanPi(cutoffs.fh) - low_},
      squaredCenter_{low_ * tanPi(cutoffs.fh)}
{}

Real ExactFilter::frequencyOf(Real q) const
{
    return std::atan(std::abs(analog({0, q}).front().imag())) / kPi;
}

Point ExactFilter::responseAt(Real f) const
{
    const Real w = tanPi(f);
    const Real q = isBand_ ? (w * w - squaredCenter_) / (width_ * w) : w / low_;
    return prototypeResponse(prototype_, isReciprocal_ ? -1 / q : q);
}

std::vector<Point> ExactFilter::poles() const
{
    std::vector<Point> all;
    for (const auto& [real, imaginary, zero] : prototype_.sections) {
        const std::vector<Point> some = analog({real, imaginary});
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

// What a point of the prototype becomes.
std::vector<Point> ExactFilter::analog(Point q) const
{
    if (isReciprocal_)
        q = Real{1} / q;
    if (!isBand_)
        return {q * low_};
    const Point half = q * (width_ / 2), root = std::sqrt(half * half - squaredCenter_);
    const Point larger = std::abs(half + root) > std::abs(half - root) ? half + root : half - root;
    return {larger, squaredCenter_ / larger};
}

} // namespace quordsp::test
