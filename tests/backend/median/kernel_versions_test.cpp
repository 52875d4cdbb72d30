// The kernel for short windows: the same bits with every instruction set.
#include "median/network_kernel.h"

#include "cpu/instruction_set.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace quordsp::test {
namespace {

using Array = std::vector<double>;

template <std::size_t W>
void expectTheSameBits()
{
    std::minstd_rand random{W};
    Array x(300 + W + backend::kMedianRow), wanted(300);
    for (double& value : x)
        value = static_cast<double>(random()) - 1e9;
    Versions<backend::medianNetwork<W>>::baseline(x.data(), 300, wanted.data());
    for (InstructionSet set : {InstructionSet::Avx2, InstructionSet::Avx512}) {
        if (bestInstructionSet() < set)
            continue;
        Array y(300);
        Versions<backend::medianNetwork<W>>::of(set)(x.data(), 300, y.data());
        EXPECT_EQ(y, wanted) << W;
    }
}

TEST(MedianKernel, GivesTheSameBitsWithEveryInstructionSet)
{
    expectTheSameBits<2>();
    expectTheSameBits<3>();
    expectTheSameBits<8>();
    expectTheSameBits<15>();
}

} // namespace
} // namespace quordsp::test
