// The kernels of IIR filtering: the same bits with every instruction set, and with sections side by side as with one
// section after the other.
#include "iir/cascade_kernel.h"
#include "iir/direct_kernel.h"

#include "cpu/instruction_set.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace quordsp::test {
namespace {

using Array = std::vector<double>;
using backend::filterSections;
using backend::Sections;

std::vector<InstructionSet> instructionSets()
{
    std::vector<InstructionSet> sets{InstructionSet::Baseline};
    for (InstructionSet set : {InstructionSet::Avx2, InstructionSet::Avx512})
        if (bestInstructionSet() >= set)
            sets.push_back(set);
    return sets;
}

Array noise(std::size_t n, double largest)
{
    std::minstd_rand numbers{static_cast<unsigned>(n)};
    Array x(n);
    for (double& value : x)
        value = (static_cast<double>(numbers()) / 1073741824.0 - 1.0) * largest;
    return x;
}

struct Run {
    Array y, state;

    bool operator==(const Run&) const = default;
};

// Reverse coefficients this small make stable sections.
template <std::size_t D>
struct Cascade {
    explicit Cascade(std::size_t count) : reverse(noise(count * D, 0.9 / D)), forward(noise(count * (D + 1), 1)) {}

    Sections from(std::size_t first, std::size_t count) const
    {
        return {count, reverse.data() + first * D, forward.data() + first * (D + 1)};
    }

    Array reverse, forward;
};

template <std::size_t D, std::size_t P>
Run oneAfterTheOther(const Cascade<D>& cascade, std::size_t count, std::int64_t n)
{
    Run run{noise(static_cast<std::size_t>(n) * P, 1), noise(count * D * P, 1)};
    for (std::size_t k = 0; k < count; ++k)
        Versions<filterSections<D, P, 1>>::baseline(run.y.data(), n, cascade.from(k, 1), run.state.data() + k * D * P,
                                                    run.y.data());
    return run;
}

template <std::size_t D, std::size_t P, std::size_t S>
void expectTheSameBitsSideBySide()
{
    for (std::size_t count = 1; count <= S; ++count)
        for (std::int64_t n : {32, 33, 100, 1000}) {
            const Cascade<D> cascade{count};
            const Run wanted = oneAfterTheOther<D, P>(cascade, count, n);
            for (InstructionSet set : instructionSets()) {
                Run run{noise(static_cast<std::size_t>(n) * P, 1), noise(count * D * P, 1)};
                Versions<filterSections<D, P, S>>::of(set)(run.y.data(), n, cascade.from(0, count), run.state.data(),
                                                           run.y.data());
                EXPECT_EQ(run, wanted) << D << ' ' << P << ' ' << S << ' ' << count << ' ' << n;
            }
        }
}

TEST(CascadeKernel, GivesTheSameBitsSideBySideAsOneAfterTheOther)
{
    expectTheSameBitsSideBySide<2, 1, 2>();
    expectTheSameBitsSideBySide<2, 1, 4>();
    expectTheSameBitsSideBySide<2, 1, 8>();
    expectTheSameBitsSideBySide<4, 1, 2>();
    expectTheSameBitsSideBySide<4, 1, 4>();
    expectTheSameBitsSideBySide<4, 1, 8>();
}

TEST(CascadeKernel, GivesTheSameBitsSideBySideForComplexSignals)
{
    expectTheSameBitsSideBySide<2, 2, 1>();
    expectTheSameBitsSideBySide<2, 2, 2>();
    expectTheSameBitsSideBySide<2, 2, 4>();
    expectTheSameBitsSideBySide<4, 2, 2>();
    expectTheSameBitsSideBySide<4, 2, 4>();
}

template <std::size_t P, std::size_t R>
void expectTheSameBitsOfRecursion(std::size_t degree)
{
    for (double divisor : {1.0, 0.75}) {
        Array a = noise(degree + 1, 0.5 / static_cast<double>(degree + 1));
        a[0] = divisor;
        Array wanted;
        for (InstructionSet set : instructionSets()) {
            Array y = noise((degree + 300 + backend::kGroup) * P, 1);
            Versions<backend::recur<P, R>>::of(set)(y.data() + degree * P, 300, a.data(), degree);
            if (wanted.empty())
                wanted = y;
            EXPECT_EQ(y, wanted) << P << ' ' << degree;
        }
    }
}

TEST(DirectKernel, GivesTheSameBitsWithEveryInstructionSet)
{
    expectTheSameBitsOfRecursion<1, 0>(0);
    expectTheSameBitsOfRecursion<1, 2>(2);
    expectTheSameBitsOfRecursion<1, backend::kMostRecent>(17);
    expectTheSameBitsOfRecursion<2, 1>(1);
    expectTheSameBitsOfRecursion<2, backend::kMostRecent>(9);
}

} // namespace
} // namespace quordsp::test
