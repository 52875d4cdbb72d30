// The inverse functions, on blocks of voltages.
//
// Each result is fixed to the last bit: Horner's rule in single precision, rounded after every multiplication and every
// addition. So speed comes from treating a block of samples at once. Neighbouring samples mostly lie in the same range:
// only polynomials that some sample of the block needs are evaluated, each for the whole block and in its own degree,
// and every sample keeps the one that its range asks for. A polynomial of degree 0 never sees the voltage, which may be
// infinite or NaN there.
#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

#include "numeric/thermocouple.h"

namespace quordsp {
namespace {

// A block, wider than any register, so that several chains of operations run side by side. Never passed by value: how
// that is done depends on the instruction set.
constexpr int kBlock = 32;
using Singles [[gnu::vector_size(kBlock * sizeof(float))]] = float;
using Doubles [[gnu::vector_size(kBlock * sizeof(double))]] = double;
using Mask [[gnu::vector_size(kBlock * sizeof(float))]] = std::int32_t; // all bits of an element, or none

// Bit i is element i.
[[gnu::always_inline]] inline std::uint32_t bitsOf(const Mask& mask) noexcept
{
    using Bits = bool __attribute__((ext_vector_type(kBlock)));
    return std::bit_cast<std::uint32_t>(__builtin_convertvector(mask, Bits));
}

[[gnu::always_inline]] inline void evaluate(const Polynomial& polynomial, const Singles& x, Singles& y) noexcept
{
    y = Singles{} + polynomial.coefficients[polynomial.degree];
    for (int i = polynomial.degree - 1; i >= 0; --i)
        y = y * x + polynomial.coefficients[i];
}

// Returns the samples that end the conversion; their temperatures mean nothing.
[[gnu::always_inline]] inline std::uint32_t invertBlock(const InverseFunction& function, const Singles& voltages,
                                                        Singles& temperatures) noexcept
{
    Mask left = Mask{} - 1;
    temperatures = Singles{};
    for (const auto& rule : function.rules) {
        const Mask inside = left & (voltages >= rule.voltages.first) & (voltages <= rule.voltages.last);
        if (!bitsOf(inside))
            continue;
        Singles candidates;
        evaluate(rule.temperature, voltages, candidates);
        temperatures = inside ? candidates : temperatures;
        left &= ~inside;
        if (!bitsOf(left))
            return 0;
    }
    Singles candidates;
    evaluate(function.elsewhere, voltages, candidates);
    temperatures = left ? candidates : temperatures;
    constexpr float kLargest = std::numeric_limits<float>::infinity(); // of all but NaN
    return function.limited ? bitsOf(left & (voltages <= kLargest)) : 0;
}

[[gnu::always_inline]] inline void convertUnit(int unit, Doubles& temperatures) noexcept
{
    if (unit == 1)
        temperatures = temperatures * 1.8 + 32.0;
    else if (unit == 2)
        temperatures = temperatures + 273.15;
    else if (unit == 3)
        temperatures = (temperatures + 273.15) * 1.8;
    else
        return;
    temperatures = __builtin_convertvector(__builtin_convertvector(temperatures, Singles), Doubles);
}

// A full block is moved by vector instructions.
[[gnu::always_inline]] inline void load(const double* from, int count, Doubles& block) noexcept
{
    if (count == kBlock) {
        std::memcpy(&block, from, sizeof(block));
        return;
    }
    Doubles padded = {};
    std::memcpy(&padded, from, static_cast<std::size_t>(count) * sizeof(double));
    block = padded;
}

[[gnu::always_inline]] inline void store(const Doubles& block, int count, double* to) noexcept
{
    if (count == kBlock) {
        std::memcpy(to, &block, sizeof(block));
        return;
    }
    const Doubles padded = block;
    std::memcpy(to, &padded, static_cast<std::size_t>(count) * sizeof(double));
}

// The processor fetches ahead by itself, but no further than a page; what lies behind its end comes in time this way.
[[gnu::always_inline]] inline void fetch(const double* data, std::ptrdiff_t at, std::ptrdiff_t count) noexcept
{
    constexpr std::ptrdiff_t kAhead = 16 * kBlock;
    constexpr std::ptrdiff_t kCacheLine = 8;
    if (count - at >= kAhead + kBlock)
        for (std::ptrdiff_t i = kAhead; i < kAhead + kBlock; i += kCacheLine)
            __builtin_prefetch(data + at + i);
}

[[gnu::always_inline]] inline AnalysisLibErrType kernel(const InverseFunction* function, const double* emf, int count,
                                                        int unit, float coldJunctionVoltage,
                                                        double* temperature) noexcept
{
    for (std::ptrdiff_t at = 0; at < count; at += kBlock) {
        const int samples = static_cast<int>(std::min<std::ptrdiff_t>(kBlock, count - at));
        fetch(emf, at, count);
        fetch(temperature, at, count);
        Doubles measured;
        load(emf + at, samples, measured);
        const Singles voltages = __builtin_convertvector(double{coldJunctionVoltage} + measured, Singles);
        Singles celsius;
        const std::uint32_t refused = invertBlock(*function, voltages, celsius);
        Doubles results = __builtin_convertvector(celsius, Doubles);
        convertUnit(unit, results);
        const int accepted = std::min(samples, std::countr_zero(refused));
        store(results, accepted, temperature + at);
        if (accepted < samples)
            return QUORDSP_THERMOCOUPLE_OUT_OF_RANGE;
    }
    return QUORDSP_SUCCESS;
}

} // namespace

AnalysisLibErrType invert(InstructionSet set, const InverseFunction& function, const double* emf, int count, int unit,
                          float coldJunctionVoltage, double* temperature) noexcept
{
    return Versions<kernel>::of(set)(&function, emf, count, unit, coldJunctionVoltage, temperature);
}

} // namespace quordsp
