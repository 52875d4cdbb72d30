// The two-sided spectrum of a complex signal, from the lowest frequency, which is negative, to the highest.
#pragma once
#include <cstddef>
#include <span>
#include <vector>

namespace quordsp::cli {

// Two parts of the same length, one sample or more.
struct ComplexSignal {
    std::span<const double> real;
    std::span<const double> imaginary;
};

// Which bin is 0 Hz, among as many bins as samples.
constexpr std::size_t zeroBin(std::size_t count)
{
    return count / 2;
}

// The exponentials that the signal consists of, one a bin.
struct Exponentials {
    std::vector<double> amplitudes;
    std::vector<double> phases; // radians, within (-pi, pi]
};

// These two throw a Failure when the backend reports an error.
Exponentials twoSidedAmplitude(const ComplexSignal& signal);
// The squares of the amplitudes.
std::vector<double> twoSidedPower(const ComplexSignal& signal);

// Takes out whole turns, so that neighbours differ by half a turn at most. The phase of 0 Hz stays.
void unwrapFromZero(std::span<double> phases);

} // namespace quordsp::cli
