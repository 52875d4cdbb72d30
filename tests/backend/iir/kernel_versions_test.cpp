// The kernels of IIR filtering: the same bits with every instruction set, and with sections side by side as with one
// section after the other.
#include "iir/cascade_kernel.h"
#include "iir/direct_kernel.h"

#include "cpu/instruction_set.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

namespace quordsp::test {
namespace {

using Array = std::vector<double>;
using backend::DeltaSection;
using backend::DirectSection;
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
template <class Section>
Array reverseCoefficients(std::size_t count)
{
    return noise(count * Section::kOrder, 0.9 / Section::kOrder);
}

// Poles on either side, inside the unit circle: abs(a1) > a2 > 0.
template <>
Array reverseCoefficients<DeltaSection>(std::size_t count)
{
    Array reverse = noise(2 * count, 0.4);
    for (std::size_t k = 0; k < count; ++k) {
        reverse[2 * k] += std::copysign(0.5, reverse[2 * k]);
        reverse[2 * k + 1] = 0.01 + std::abs(reverse[2 * k + 1]);
    }
    return reverse;
}

template <class Section>
struct Cascade {
    static constexpr std::size_t D = Section::kOrder;

    explicit Cascade(std::size_t count)
        : reverse(reverseCoefficients<Section>(count)), forward(noise(count * (D + 1), 1))
    {}

    Sections from(std::size_t first, std::size_t count) const
    {
        return {count, reverse.data() + first * D, forward.data() + first * (D + 1)};
    }

    Array reverse, forward;
};

template <class Section, std::size_t P>
Run before(std::size_t count, std::int64_t n)
{
    return {noise(static_cast<std::size_t>(n) * P, 1), noise(count * Section::kOrder * P, 1)};
}

template <class Section, std::size_t P>
Run oneAfterTheOther(const Cascade<Section>& cascade, std::size_t count, std::int64_t n)
{
    Run run = before<Section, P>(count, n);
    for (std::size_t k = 0; k < count; ++k)
        Versions<filterSections<Section, P, 1>>::baseline(run.y.data(), n, cascade.from(k, 1),
                                                          run.state.data() + k * Section::kOrder * P, run.y.data());
    return run;
}

template <class Section, std::size_t P, std::size_t S>
void expectTheSameBitsSideBySide()
{
    for (std::size_t count = 1; count <= S; ++count)
        for (std::int64_t n : {32, 33, 100, 1000}) {
            const Cascade<Section> cascade{count};
            const Run wanted = oneAfterTheOther<Section, P>(cascade, count, n);
            for (InstructionSet set : instructionSets()) {
                Run run = before<Section, P>(count, n);
                Versions<filterSections<Section, P, S>>::of(set)(run.y.data(), n, cascade.from(0, count),
                                                                 run.state.data(), run.y.data());
                EXPECT_EQ(run, wanted) << P << ' ' << S << ' ' << count << ' ' << n;
            }
        }
}

template <class Section>
void expectTheSameBitsOfRealSignals()
{
    expectTheSameBitsSideBySide<Section, 1, 2>();
    expectTheSameBitsSideBySide<Section, 1, 4>();
    expectTheSameBitsSideBySide<Section, 1, 8>();
}

template <class Section>
void expectTheSameBitsOfComplexSignals()
{
    expectTheSameBitsSideBySide<Section, 2, 1>();
    expectTheSameBitsSideBySide<Section, 2, 2>();
    expectTheSameBitsSideBySide<Section, 2, 4>();
}

TEST(CascadeKernel, GivesTheSameBitsSideBySideAsOneAfterTheOther)
{
    expectTheSameBitsOfRealSignals<DirectSection<2>>();
    expectTheSameBitsOfRealSignals<DirectSection<4>>();
    expectTheSameBitsOfRealSignals<DeltaSection>();
}

TEST(CascadeKernel, GivesTheSameBitsSideBySideForComplexSignals)
{
    expectTheSameBitsOfComplexSignals<DirectSection<2>>();
    expectTheSameBitsOfComplexSignals<DirectSection<4>>();
    expectTheSameBitsOfComplexSignals<DeltaSection>();
}

TEST(CascadeKernel, RunsADeltaSectionAsItsDifferenceEquation)
{
    for (double c : {1.0, -1.0}) {
        const double a[] = {c * 0.75, 0.25}, b[] = {2, 3, 5};
        // In powers of z: z^2 - 2 c z + 1 + a1 (z - c) + a2, and the numerator likewise.
        const double z1 = a[0] - 2 * c, z0 = 1 - c * a[0] + a[1];
        const double n1 = b[1] - 2 * c * b[0], n0 = b[0] - c * b[1] + b[2];
        double x[40] = {1, -2, 0.5}, y[40], state[2] = {};
        for (std::size_t i = 3; i < std::size(x); ++i)
            x[i] = x[i - 3] / 2;
        Versions<filterSections<DeltaSection, 1, 2>>::baseline(x, std::ssize(x), {1, a, b}, state, y);
        for (std::size_t i = 2; i < std::size(x); ++i)
            EXPECT_NEAR(y[i] + z1 * y[i - 1] + z0 * y[i - 2], b[0] * x[i] + n1 * x[i - 1] + n0 * x[i - 2], 1e-14);
    }
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
