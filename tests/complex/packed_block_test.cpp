// Packing and unpacking with each instruction set that this machine has: every element once, at any place in memory.
// The library's question for the best set is answered by this program: the linker puts its function in the place of
// the library's own.
#include "complex/packed_block.h"

#include <functional>
#include <vector>

#include <gtest/gtest.h>

#include "cpu/instruction_set.h"
#include "support/integer_signal.h"

namespace {
auto chosen = quordsp::InstructionSet::Baseline;
} // namespace

extern "C" quordsp::InstructionSet __real__ZN7quordsp18bestInstructionSetEv();
extern "C" quordsp::InstructionSet __wrap__ZN7quordsp18bestInstructionSetEv()
{
    return chosen;
}

namespace quordsp {
namespace {

constexpr std::size_t kPlaces = 8; // in a cache line
constexpr double kUntouched = 12345.678;

void withEveryInstructionSet(const std::function<void(std::size_t n, std::size_t place)>& check)
{
    const InstructionSet best = __real__ZN7quordsp18bestInstructionSetEv();
    for (const InstructionSet set : {InstructionSet::Baseline, InstructionSet::Avx2, InstructionSet::Avx512})
        if (set <= best) {
            SCOPED_TRACE("instruction set " + std::to_string(static_cast<int>(set)));
            chosen = set;
            for (const std::size_t n : {0u, 1u, 2u, 3u, 4u, 5u, 7u, 8u, 9u, 11u, 12u, 15u, 16u, 17u, 31u, 64u, 67u})
                for (std::size_t place = 0; place < kPlaces; ++place)
                    check(n, place);
        }
}

TEST(PackedBlock, TakesEveryElementOnce)
{
    const auto signal = noise(200);
    withEveryInstructionSet([&](std::size_t n, std::size_t place) {
        const double* const re = signal.data() + place;
        const double* const im = signal.data() + 100 + (3 * place) % kPlaces;
        std::vector<ComplexSample> packed(n + 2 * kPlaces, ComplexSample{kUntouched, kUntouched});
        pack({re, im}, static_cast<Size>(n), packed.data() + place);
        for (std::size_t i = 0; i < packed.size(); ++i) {
            const bool inside = i >= place && i < place + n;
            ASSERT_EQ(packed[i].real, inside ? re[i - place] : kUntouched) << n << " at " << place;
            ASSERT_EQ(packed[i].imaginary, inside ? im[i - place] : kUntouched) << n << " at " << place;
        }
    });
}

TEST(PackedBlock, GivesEveryElementOnce)
{
    const auto signal = noise(200);
    const auto* const packed = reinterpret_cast<const ComplexSample*>(signal.data());
    withEveryInstructionSet([&](std::size_t n, std::size_t place) {
        const std::size_t other = (3 * place) % kPlaces;
        std::vector<double> re(n + 2 * kPlaces, kUntouched), im = re;
        unpack(packed + place, static_cast<Size>(n), {re.data() + place, im.data() + other});
        for (std::size_t i = 0; i < n; ++i) {
            ASSERT_EQ(re[place + i], packed[place + i].real) << n << " at " << place;
            ASSERT_EQ(im[other + i], packed[place + i].imaginary) << n << " at " << place;
        }
        EXPECT_EQ(std::ranges::count(re, kUntouched), 2 * kPlaces);
        EXPECT_EQ(std::ranges::count(im, kUntouched), 2 * kPlaces);
        EXPECT_EQ(re[place + n], kUntouched);
        EXPECT_EQ(im[other + n], kUntouched);
    });
}

// What is beyond the samples is 0, whatever the memory held.
TEST(PackedBlock, FillsItsRoomWithZeros)
{
    for (const auto set : {InstructionSet::Baseline, __real__ZN7quordsp18bestInstructionSetEv()}) {
        chosen = set;
        const auto signal = noise(5);
        const PackedBlock block{5, 40};
        ASSERT_FALSE(block.isMissing());
        std::ranges::fill(block.data(), block.data() + 40, ComplexSample{kUntouched, kUntouched});
        block.pack({signal.data(), signal.data()});
        for (std::size_t i = 0; i < 40; ++i)
            EXPECT_EQ(block.data()[i].imaginary, i < 5 ? signal[i] : 0.0);
        block.clear();
        for (std::size_t i = 0; i < 40; ++i)
            EXPECT_EQ(block.data()[i].real, 0.0);
    }
}

} // namespace
} // namespace quordsp
