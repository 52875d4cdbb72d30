// Every routine gives the same bits on every system and machine. The stored results are written by this program,
//     same_results_test --write tests/data/numeric/same_results.txt
// and say nothing about right or wrong: that is for the other tests, which have independent sources.
#include <fstream>
#include <iostream>
#include <span>

#include <gtest/gtest.h>

#include "reliability/same_results/results.h"
#include "support/folders.h"

namespace quordsp::same_results {
namespace {

TEST(SameResults, OfLinearRegression)
{
    EXPECT_EQ(disagreements(lineResults()), "");
}

TEST(SameResults, OfDetrend)
{
    EXPECT_EQ(disagreements(trendResults()), "");
}

TEST(SameResults, OfTheVibrationExports)
{
    EXPECT_EQ(disagreements(vibrationResults()), "");
}

TEST(SameResults, OfThermocouple)
{
    EXPECT_EQ(disagreements(thermocoupleResults()), "");
}

TEST(SameResults, OfGetSNR)
{
    EXPECT_EQ(disagreements(ratioResults()), "");
}

TEST(SameResults, OfTheFileWriters)
{
    EXPECT_EQ(disagreements(fileResults(support::ownFolder())), "");
}

void write(const char* path)
{
    std::ofstream file{path, std::ios::binary};
    file << "# Results of every routine for deterministic data: a hash of the bits of all values or, where a function "
            "of\n"
            "# the C run-time enters, the bits themselves. Written by same_results_test --write; they hold every "
            "system\n"
            "# and instruction set to the same bits. That the values are right is what the other tests say.\n";
    for (const auto& results : {lineResults(), trendResults(), vibrationResults(), thermocoupleResults(),
                                ratioResults(), fileResults(std::filesystem::temp_directory_path())})
        for (const Result& result : results)
            file << lineOf(result) << '\n';
}

} // namespace
} // namespace quordsp::same_results

int main(int argc, char** argv)
{
    const std::span arguments{argv, static_cast<std::size_t>(argc)};
    if (argc == 3 && std::string_view{arguments[1]} == "--write") {
        quordsp::same_results::write(arguments[2]);
        return 0;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
