// The FIR kernel for every instruction set that this machine has: the same bits from all of them.
#include "convolution_kernel.h"

#include "cpu/instruction_set.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace quordsp::test {
namespace {

using Array = std::vector<double>;

Array noise(std::size_t n, unsigned seed)
{
    std::minstd_rand numbers{seed};
    Array x(n);
    for (double& value : x)
        value = static_cast<double>(numbers()) / 1073741824.0 - 1.0;
    return x;
}

Array convolvedBy(InstructionSet set, const Array& inputs, std::size_t count, const Array& h, std::size_t step)
{
    Array y(count);
    const double* const first = inputs.data() + (h.size() - 1) * step;
    Versions<backend::convolve>::of(set)(first, count, h.data(), h.size(), step, y.data());
    return y;
}

TEST(FirKernel, GivesTheSameBitsWithEveryInstructionSet)
{
    for (std::size_t taps : {1u, 2u, 5u, 64u, 301u})
        for (std::size_t step : {1u, 2u, 7u})
            for (std::size_t count : {1u, 8u, 47u, 48u, 500u}) {
                const Array h = noise(taps, 3);
                const Array inputs = noise((taps - 1) * step + count + backend::kTileSize, 4);
                const Array baseline = convolvedBy(InstructionSet::Baseline, inputs, count, h, step);
                if (bestInstructionSet() >= InstructionSet::Avx2) {
                    EXPECT_EQ(convolvedBy(InstructionSet::Avx2, inputs, count, h, step), baseline);
                }
                if (bestInstructionSet() >= InstructionSet::Avx512) {
                    EXPECT_EQ(convolvedBy(InstructionSet::Avx512, inputs, count, h, step), baseline);
                }
            }
}

} // namespace
} // namespace quordsp::test
