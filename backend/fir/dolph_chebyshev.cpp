// Its transform is W[m] = C(t0 cos(pi m / N)), C the Chebyshev polynomial of degree n = N - 1 and C(t0) = r the ratio
// of main to side lobes. With t0 = cosh(a), n a = acosh(r), that is cosh(n acosh x) or cos(n acos x) of x = t0 cos(pi m
// / N), where the digits that matter are those of x - 1: this is what is formed. W is divided by r, which may be beyond
// any number; the inverse transform only needs to be right but for a factor.
#include "fir/dolph_chebyshev.h"

#include "extended_precision.h"
#include "status.h"
#include "transform/real_plan.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quordsp::backend {
namespace {

using Real = long double;

// Longer ones would take many seconds, also where a filter needs a few of their taps only.
constexpr std::size_t kMostTaps = std::size_t{1} << 23;
constexpr Real kPi = std::numbers::pi_v<Real>;

// acosh(10^(attenuation / 20))
Real inverseCosh(Real attenuation)
{
    const Real logarithm = attenuation / 20 * std::numbers::ln10_v<Real>;
    return logarithm + std::log1p(std::sqrt(-std::expm1(-2 * logarithm)));
}

Real square(Real x)
{
    return x * x;
}

class LobeSpectrum {
public:
    LobeSpectrum(Real attenuation, std::size_t taps)
        : degree_{static_cast<Real>(taps - 1)}, a_{std::min(inverseCosh(attenuation) / degree_, kLargest)}
    {}

    // W[m] / r at theta = pi m / N in 0..pi/2.
    Real operator()(Real theta) const
    {
        const Real beyond = 2 * square(std::sinh(a_ / 2)) * std::cos(theta) - 2 * square(std::sin(theta / 2)); // x - 1
        if (beyond < 0)
            return std::cos(2 * degree_ * std::asin(std::sqrt(-beyond / 2))) * overR(0);
        return overR(degree_ * std::log1p(beyond + std::sqrt(beyond * (2 + beyond))));
    }

private:
    // From here on the window stays the same in double precision.
    static constexpr Real kLargest = 25;

    // cosh(y) / r
    Real overR(Real y) const
    {
        const Real top = degree_ * a_;
        return std::exp(y - top) * (1 + std::exp(-2 * y)) / (1 + std::exp(-2 * top));
    }

    Real degree_;
    Real a_;
};

} // namespace

// The spectrum gets the phase of a signal that is symmetric about (N - 1) / 2: (-1)^m exp(j pi m / N).
Buffer<> dolphChebyshevHalf(double attenuation, std::size_t taps)
{
    require(taps <= kMostTaps, Status::OutOfMemory);
    Buffer<> values = makeBuffer(taps);
    if (taps == 1) {
        values[0] = 1;
        return values;
    }
    const RealPlan plan(taps);
    const AlignedBuffer work(plan.workSize());
    const SplitBuffer spectrum(plan.bins());
    inExtendedPrecision([&] {
        const LobeSpectrum lobes(attenuation, taps);
        for (std::size_t m = 0; m < plan.bins(); ++m) {
            const Real theta = kPi * static_cast<Real>(m) / static_cast<Real>(taps);
            const Real size = m % 2 == 0 ? lobes(theta) : -lobes(theta);
            spectrum.get().set(
                m, {static_cast<double>(size * std::cos(theta)), static_cast<double>(size * std::sin(theta))});
        }
    });
    plan.inverse(spectrum, values.get(), work.get());
    const double most = *std::max_element(values.get(), values.get() + taps);
    for (std::size_t k = 0; k < (taps + 1) / 2; ++k)
        values[k] /= most;
    return values;
}

} // namespace quordsp::backend
