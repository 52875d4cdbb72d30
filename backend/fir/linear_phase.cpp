#include "fir/linear_phase.h"

#include <algorithm>

namespace quordsp::backend {
namespace {

// The cosines, or sines, of all multiples of pi / taps: of those up to pi / 2, and of their mirror images.
std::vector<Real> waveOf(const LinearPhase& filter)
{
    const std::size_t taps = filter.taps;
    std::vector<Real> wave(2 * taps);
    const auto value = filter.isAntisymmetric ? sineOfTurns : cosineOfTurns;
    const Real acrossHalf = filter.isAntisymmetric ? 1 : -1;
    for (std::size_t k = 0; 2 * k <= taps; ++k) {
        wave[k] = value(static_cast<Real>(k) / static_cast<Real>(wave.size()));
        wave[taps - k] = acrossHalf * wave[k];
        wave[taps + k] = -wave[k];
        if (k > 0)
            wave[2 * taps - k] = -wave[taps - k];
    }
    return wave;
}

} // namespace

Real cosineOfTurns(Real f)
{
    return f <= 0.25L ? cosPi(2 * f, 1) : -cosPi(1 - 2 * f, 1);
}

Real sineOfTurns(Real f)
{
    return sinPi(std::min(2 * f, 1 - 2 * f), 1);
}

LinearPhase LinearPhase::ofSize(std::size_t size) const
{
    if (!isOdd())
        return {2 * size, isAntisymmetric};
    return {isAntisymmetric ? 2 * size + 1 : 2 * size - 1, isAntisymmetric};
}

Real LinearPhase::factor(Real f) const
{
    if (isAntisymmetric)
        return isOdd() ? sineOfTurns(f) : sinPi(f, 1);
    return isOdd() ? 1 : cosPi(f, 1);
}

Real LinearPhase::slopeAtZero() const
{
    return std::numbers::pi_v<Real> * (isOdd() ? 2 : 1);
}

Real amplitude(const LinearPhase& filter, const double* h, Real f)
{
    const Real stepCosine = cosineOfTurns(f), stepSine = sineOfTurns(f);
    const bool hasCentre = filter.isOdd();
    Real cosine = hasCentre ? 1 : cosPi(f, 1), sine = hasCentre ? 0 : sinPi(f, 1);
    Real sum = 0;
    for (std::size_t k = (filter.taps + 1) / 2; k-- > 0;) {
        const Real value = h[k] * (filter.isAntisymmetric ? sine : cosine);
        const bool isCentre = hasCentre && 2 * k + 1 == filter.taps;
        sum += isCentre ? value / 2 : value;
        const Real turned = cosine * stepCosine - sine * stepSine;
        sine = cosine * stepSine + sine * stepCosine;
        cosine = turned;
    }
    return 2 * sum;
}

std::vector<Real> samplingFrequencies(const LinearPhase& filter)
{
    std::vector<Real> frequencies(filter.size());
    for (std::size_t i = 0; i < frequencies.size(); ++i) {
        const std::size_t k = filter.isAntisymmetric ? i + 1 : i;
        frequencies[i] = static_cast<Real>(k) / static_cast<Real>(filter.taps);
    }
    return frequencies;
}

void filterOf(const LinearPhase& filter, std::span<const Real> amplitudes, double* h)
{
    const std::vector<Real> wave = waveOf(filter);
    const std::size_t taps = filter.taps;
    for (std::size_t n = 0; n < (taps + 1) / 2; ++n) {
        Real sum = 0;
        for (std::size_t i = 0; i < amplitudes.size(); ++i) {
            const std::size_t k = filter.isAntisymmetric ? i + 1 : i;
            // Zero frequency and half the sampling frequency stand for themselves alone, all others for two.
            const bool isAlone = k == 0 || 2 * k == taps;
            const Real part = amplitudes[i] * wave[k * (taps - 1 - 2 * n) % wave.size()];
            sum += isAlone ? part / 2 : part;
        }
        h[n] = static_cast<double>(2 * sum / static_cast<Real>(taps));
        h[taps - 1 - n] = filter.isAntisymmetric ? -h[n] : h[n];
    }
    if (filter.isAntisymmetric && filter.isOdd())
        h[taps / 2] = 0;
}

} // namespace quordsp::backend
