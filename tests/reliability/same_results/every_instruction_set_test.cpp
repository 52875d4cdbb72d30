// The stored results hold for each instruction set that this machine has, too. The library's question for the best one
// is answered by this program: the linker puts its function in the place of the library's own.
#include <gtest/gtest.h>

#include "cpu/instruction_set.h"
#include "reliability/same_results/results.h"
#include "support/folders.h"

namespace {
auto chosen = quordsp::InstructionSet::Baseline;
} // namespace

extern "C" quordsp::InstructionSet __real__ZN7quordsp18bestInstructionSetEv();
extern "C" quordsp::InstructionSet __wrap__ZN7quordsp18bestInstructionSetEv()
{
    return chosen;
}

namespace quordsp::same_results {
namespace {

TEST(SameResults, OfEveryInstructionSet)
{
    const InstructionSet best = __real__ZN7quordsp18bestInstructionSetEv();
    for (const InstructionSet set : {InstructionSet::Baseline, InstructionSet::Avx2, InstructionSet::Avx512})
        if (set <= best) {
            chosen = set;
            for (auto* const results : {lineResults, trendResults, vibrationResults, thermocoupleResults, ratioResults})
                EXPECT_EQ(disagreements(results()), "") << "instruction set " << static_cast<int>(set);
            EXPECT_EQ(disagreements(fileResults(support::ownFolder())), "")
                << "instruction set " << static_cast<int>(set);
        }
}

} // namespace
} // namespace quordsp::same_results
