#include "QuorDSP_DAQ.h"
#include "targets.h"

// The bits of the formula, also in place of either input; and no count below 1 touches anything.
void quordsp::fuzz::snr(Bytes bytes)
{
    const int count = bytes.between(0, 64);
    const auto signal = bytes.numbers(count), noise = bytes.numbers(count);
    std::vector<double> expected(signal.size()), ratios(signal.size(), -7.0);
    for (std::size_t i = 0; i < signal.size(); ++i)
        expected[i] = 10.0 * std::log10(signal[i] / noise[i]);

    require(QuorDSP_getSNR(signal.data(), -bytes.byte(), noise.data(), ratios.data()) == 0, "status 0");
    require(ratios == std::vector<double>(signal.size(), -7.0), "no count below 1 touches anything");
    require(QuorDSP_getSNR(signal.data(), count, noise.data(), ratios.data()) == 0, "status 0");
    require(areSame(ratios, expected), "the formula");
    auto overSignal = signal, overNoise = noise;
    QuorDSP_getSNR(overSignal.data(), count, noise.data(), overSignal.data());
    QuorDSP_getSNR(signal.data(), count, overNoise.data(), overNoise.data());
    require(areSame(overSignal, expected) && areSame(overNoise, expected), "in place as elsewhere");
}
