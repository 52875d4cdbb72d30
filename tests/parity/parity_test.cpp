// Every export gives the same statuses and results on every system, through the library and the default backend. The
// stored results are written by this program, on Linux,
//     parity_test --write tests/data/parity/results.txt
// and say nothing about right or wrong: that is for the other tests, which have independent sources.
#include <fstream>
#include <iostream>
#include <set>
#include <span>

#include <gtest/gtest.h>

#include "parity/results.h"

namespace quordsp::parity {
namespace {

using FamilyFunction = const Family& (*)();
constexpr FamilyFunction kFamilies[] = {iir, fir, complexSignals, transforms, statistics, ownRoutines};

TEST(Parity, OfIirFilters)
{
    EXPECT_EQ(disagreements(iir()), "");
}

TEST(Parity, OfFirFilters)
{
    EXPECT_EQ(disagreements(fir()), "");
}

TEST(Parity, OfFiltersOfComplexSignals)
{
    EXPECT_EQ(disagreements(complexSignals()), "");
}

TEST(Parity, OfTransforms)
{
    EXPECT_EQ(disagreements(transforms()), "");
}

TEST(Parity, OfStatistics)
{
    EXPECT_EQ(disagreements(statistics()), "");
}

TEST(Parity, OfTheLibrarysOwnRoutines)
{
    EXPECT_EQ(disagreements(ownRoutines()), "");
}

// The names that the library exports, without decoration; the indented lines are those of other systems.
std::set<std::string> exportedNames()
{
    std::set<std::string> names;
    std::ifstream file{QUORDSP_TEST_DATA "/../abi/library_exports.txt"};
    for (std::string line; std::getline(file, line);)
        if (line.starts_with('?'))
            names.insert(line.substr(1, line.find('@') - 1));
        else if (!line.starts_with(' '))
            names.insert(line);
    return names;
}

TEST(Parity, IsOfEveryExport)
{
    std::set<std::string> called;
    for (const FamilyFunction family : kFamilies)
        for (const Export& row : family().exports)
            EXPECT_TRUE(called.insert(row.name).second) << row.name << " has two rows";
    EXPECT_EQ(called.size(), 132u);
    EXPECT_EQ(called, exportedNames());
}

void write(const char* path)
{
    std::ofstream file{path, std::ios::binary};
    file << "# Calls of every export: label, status and, of each output, letter, count, count of what is not finite,\n"
            "# largest absolute value and two weighted sums. Written by parity_test --write on Linux.\n";
    int calls = 0;
    for (const FamilyFunction family : kFamilies)
        calls += writeResults(family(), file);
    std::cout << calls << " calls\n";
}

} // namespace
} // namespace quordsp::parity

int main(int argc, char** argv)
{
    const std::span arguments{argv, static_cast<std::size_t>(argc)};
    if (argc == 3 && std::string_view{arguments[1]} == "--write") {
        quordsp::parity::write(arguments[2]);
        return 0;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
