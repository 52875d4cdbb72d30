// The conversion as compiled for each instruction set, and the ranges of its tables.
#include <string>

#include <gtest/gtest.h>

#include "numeric/thermocouple.h"
#include "numeric/thermocouple_samples.h"
#include "reference/thermocouple.h"

namespace quordsp {
namespace {

class ThermocoupleVersion : public ::testing::TestWithParam<InstructionSet> {
protected:
    void SetUp() override
    {
        if (GetParam() > bestInstructionSet())
            GTEST_SKIP() << "not on this machine";
    }

    // Expects the bits of the plain loop.
    static void compare(const Samples& emf, int unit, int type)
    {
        const int count = static_cast<int>(emf.size());
        Samples actual(emf.size(), kUntouched);
        Samples expected(emf.size(), kUntouched);
        EXPECT_EQ(invert(GetParam(), kInverseFunctions[type], emf.data(), count, unit, 0.0f, actual.data()),
                  reference::thermocouple(emf.data(), count, unit, type, kNoColdJunction, expected.data()));
        EXPECT_EQ(bitsOf(actual), bitsOf(expected)) << count << " samples, unit " << unit << ", type " << type;
    }
};

TEST_P(ThermocoupleVersion, GivesTheBitsOfThePlainLoop)
{
    for (int type = 0; type < kTypeCount; ++type)
        for (const int unit : kUnits) {
            compare(shuffledSweep(5000, -6.4, 54.8), unit, type);
            if (type != 3)
                compare(wildSamples(5000, 11), unit, type);
        }
}

TEST_P(ThermocoupleVersion, HandlesEveryCountAroundItsBlocks)
{
    for (int count = 0; count <= 100; ++count)
        compare(shuffledSweep(count, -6.4, 54.8), 1, 3);
}

TEST_P(ThermocoupleVersion, HandlesEveryEndOfARangeInEveryPlaceOfABlock)
{
    for (int type = 0; type < kTypeCount; ++type)
        for (const double end : kEnds)
            for (const double emf : around(end))
                for (std::size_t at = 0; at < 40; ++at) {
                    Samples samples(40, 1.0);
                    samples[at] = emf;
                    compare(samples, 0, type);
                }
}

TEST_P(ThermocoupleVersion, StopsAtAVoltageOutOfRangeInEveryPlaceOfABlock)
{
    for (std::size_t at = 0; at < 70; ++at) {
        Samples samples = shuffledSweep(70, -6.4, 54.8);
        samples[at] = 55.0;
        samples[at / 2] = at < 2 ? samples[at / 2] : std::nan("");
        compare(samples, 2, 3);
    }
}

std::string nameOf(const ::testing::TestParamInfo<InstructionSet>& set)
{
    constexpr const char* kNames[] = {"Baseline", "Avx2", "Avx512"};
    return kNames[set.index];
}

INSTANTIATE_TEST_SUITE_P(Sets, ThermocoupleVersion,
                         ::testing::Values(InstructionSet::Baseline, InstructionSet::Avx2, InstructionSet::Avx512),
                         nameOf);

TEST(ThermocoupleRange, HoldsTheSinglesThatAComparisonOfDoublesFindsInside)
{
    for (const double low : kEnds)
        for (const double high : kEnds)
            for (const double end : {low, high})
                for (const double value : around(end)) {
                    const float single = static_cast<float>(value);
                    EXPECT_EQ(halfOpen(low, high).holds(single), value >= low && value < high) << value;
                    EXPECT_EQ(closed(low, high).holds(single), value >= low && value <= high) << value;
                }
}

TEST(ThermocoupleRange, HoldsNoNaNAndIsEmptyByDefault)
{
    EXPECT_FALSE(halfOpen(-kInfinity, 0.0).holds(std::nanf("")));
    EXPECT_TRUE(halfOpen(-kInfinity, 0.0).holds(-std::numeric_limits<float>::infinity()));
    EXPECT_FALSE(Range{}.holds(0.0f));
    EXPECT_FALSE(Range{}.holds(-1.0f));
}

} // namespace
} // namespace quordsp
