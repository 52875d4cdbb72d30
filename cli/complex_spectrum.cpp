#include "complex_spectrum.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <ranges>

#include "QuorDSP_DAQ.h"
#include "progress.h"
#include "status.h"

namespace quordsp::cli {
namespace {

int countOf(const ComplexSignal& signal)
{
    return static_cast<int>(signal.real.size());
}

template <class Phases>
void unwrap(Phases phases)
{
    constexpr double kTurn = 2 * std::numbers::pi;
    double before = *phases.begin();
    for (double& phase : phases) {
        phase -= kTurn * std::floor((phase - before) / kTurn + 0.5);
        before = phase;
    }
}

} // namespace

Exponentials twoSidedAmplitude(const ComplexSignal& signal)
{
    const std::size_t count = signal.real.size();
    std::vector<double> re(count);
    std::vector<double> im(count);
    const Progress progress("transforming");
    check(QuorDSP_CxFFTEx(signal.real.data(), signal.imaginary.data(), countOf(signal), countOf(signal), nullptr, 1,
                          re.data(), im.data()),
          "two-sided spectrum");
    for (std::size_t i = 0; i < count; ++i) {
        const double modulus = std::hypot(re[i], im[i]);
        im[i] = std::atan2(im[i], re[i]);
        re[i] = modulus / static_cast<double>(count);
    }
    return {std::move(re), std::move(im)};
}

std::vector<double> twoSidedPower(const ComplexSignal& signal)
{
    std::vector<double> power(signal.real.size());
    const Progress progress("transforming");
    check(QuorDSP_CxSpectrum(signal.real.data(), signal.imaginary.data(), countOf(signal), power.data()),
          "two-sided power spectrum");
    const auto negative = static_cast<std::ptrdiff_t>(zeroBin(power.size())); // they are behind the others
    std::ranges::rotate(power, power.end() - negative);
    return power;
}

void unwrapFromZero(std::span<double> phases)
{
    const std::size_t zero = zeroBin(phases.size());
    unwrap(phases.subspan(zero));
    unwrap(phases.first(zero + 1) | std::views::reverse);
}

} // namespace quordsp::cli
