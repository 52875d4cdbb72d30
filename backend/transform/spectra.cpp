#include "transform/spectra.h"

#include "status.h"
#include "transform/interleaved.h"
#include "transform/prepared.h"
#include "transform/split_buffer.h"
#include "transform/unwrap.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quordsp::backend {

namespace {

// Bins 0..n/2 of a signal's transform over n. Scaling comes first, so that squares do not overflow where the result
// would not. The transform itself comes before: sums beyond 1.8e308 become infinite, also where their n-th part would
// not be.
class RealSpectrum {
public:
    RealSpectrum(const double* x, std::size_t n) : n_(static_cast<double>(n)), bins_(n / 2 + 1)
    {
        Prepared<RealPlan>(n).forward(x, bins_.get());
    }
    Point<double> operator[](std::size_t k) const { return bins_.get()[k] / n_; }

private:
    double n_;
    SplitBuffer bins_;
};

double squared(Point<double> a)
{
    return a.re * a.re + a.im * a.im;
}

// Adding 0 makes +0 of -0: a negative zero would turn pi into -pi, and the 0 of an empty bin into either.
double phaseOf(Point<double> a)
{
    return std::atan2(a.im + 0.0, a.re + 0.0);
}

// Bins of a one-sided spectrum; the one at half the sampling rate is not among them.
std::size_t oneSidedBins(std::int64_t n)
{
    return static_cast<std::size_t>(std::max<std::int64_t>(n / 2, 1));
}

double binWidth(std::int64_t n, double dt)
{
    return 1 / (static_cast<double>(n) * dt);
}

} // namespace

void powerSpectrum(double* x, std::int64_t n)
{
    requirePositiveCount(n);
    requireArrays(x);
    const auto count = static_cast<std::size_t>(n);
    const RealSpectrum spectrum(x, count);
    x[0] = squared(spectrum[0]);
    for (std::size_t k = 1; k <= count / 2; ++k)
        x[k] = x[count - k] = squared(spectrum[k]);
}

void powerSpectrum(const Complex* x, std::int64_t n, double* s)
{
    requirePositiveCount(n);
    requireArrays(x, s);
    const auto count = static_cast<std::size_t>(n);
    const SplitBuffer bins(count);
    const Prepared<ComplexPlan> transform(count);
    transform.forward(splitOf(x), bins.get());
    for (std::size_t k = 0; k < count; ++k)
        s[k] = squared(bins.get()[k] / static_cast<double>(count));
}

void autoPowerSpectrum(const double* x, std::int64_t n, double dt, double* s, double* df)
{
    requirePositiveCount(n);
    requireArrays(x, s, df);
    require(dt > 0, Status::IntervalNotPositive);
    const RealSpectrum spectrum(x, static_cast<std::size_t>(n));
    s[0] = squared(spectrum[0]);
    for (std::size_t k = 1; k < oneSidedBins(n); ++k)
        s[k] = 2 * squared(spectrum[k]);
    *df = binWidth(n, dt);
}

void amplitudePhaseSpectrum(const double* x, std::int64_t n, bool unwrapped, double dt, double* amplitude,
                            double* phase, double* df)
{
    requirePositiveCount(n);
    requireArrays(x, amplitude, phase, df);
    require(dt > 0, Status::IntervalNotPositive);
    const RealSpectrum spectrum(x, static_cast<std::size_t>(n));
    for (std::size_t k = 0; k < oneSidedBins(n); ++k) {
        const auto [re, im] = spectrum[k];
        amplitude[k] = (k > 0 ? std::numbers::sqrt2 : 1) * std::hypot(re, im);
        phase[k] = phaseOf({re, im});
    }
    if (unwrapped)
        unwrap(phase, oneSidedBins(n));
    *df = binWidth(n, dt);
}

} // namespace quordsp::backend
