// Every export gives the same statuses and results on every system, through the library and the default backend. The
// stored results are written by this program, on Linux,
//     parity_test --write tests/data/parity/results.txt
// and say nothing about right or wrong: that is for the other tests, which have independent sources.
#include <fstream>
#include <iostream>
#include <limits>
#include <set>
#include <span>
#include <sstream>
#include <utility>

#include <gtest/gtest.h>

#include "parity/fingerprint.h"
#include "parity/results.h"
#include "support/integer_signal.h"

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

// Of the results' lengths and kinds; those of one magnitude, and those where most are small.
std::vector<std::vector<double>> someResults()
{
    std::vector<std::vector<double>> results;
    for (const std::size_t count : {1u, 2u, 7u, 8u, 9u, 129u}) {
        results.push_back(noise(count, 9));
        results.push_back(results.back());
        for (std::size_t i = 1; i < count; ++i)
            results.back()[i] *= 1e-9;
    }
    return results;
}

Fingerprint storedAndRead(const std::vector<double>& values)
{
    std::stringstream text;
    text << fingerprintOf(values);
    Fingerprint read{};
    text >> read;
    return read;
}

TEST(ParityFingerprint, ShowsAnyValueThatIsOffByTwiceTheTolerance)
{
    for (const std::vector<double>& values : someResults()) {
        const Fingerprint stored = storedAndRead(values);
        for (std::size_t i = 0; i < values.size(); ++i)
            for (const double off : {2 * kTolerance, -2 * kTolerance, 1e-6, -1.0}) {
                std::vector<double> others = values;
                others[i] += off * stored.largest;
                EXPECT_NE(difference(others, stored), "") << i;
            }
    }
}

TEST(ParityFingerprint, LetsRoundingErrorsPass)
{
    for (const std::vector<double>& values : someResults()) {
        const Fingerprint stored = storedAndRead(values);
        std::vector<double> others = values;
        const std::vector<double> errors = noise(values.size(), 10);
        for (std::size_t i = 0; i < values.size(); ++i)
            others[i] += 1e-15 * errors[i] * stored.largest;
        EXPECT_EQ(difference(others, stored), "");
    }
}

TEST(ParityFingerprint, ShowsValuesThatHaveChangedPlaces)
{
    const std::vector<double> values = noise(129, 9);
    for (std::size_t i = 1; i < values.size(); ++i) {
        std::vector<double> others = values;
        std::swap(others[i - 1], others[i]);
        EXPECT_NE(difference(others, storedAndRead(values)), "") << i;
    }
}

TEST(ParityFingerprint, ShowsWhereAndOfWhatKindValuesAreThatAreNotFinite)
{
    const double nan = std::numeric_limits<double>::quiet_NaN(), infinity = std::numeric_limits<double>::infinity();
    const std::vector<std::vector<double>> results = {
        {0, 1, 2},     {nan, 1, 2},       {0, nan, 2},          {0, infinity, 2},
        {0, nan, nan}, {0, -infinity, 2}, {infinity, nan, nan}, {nan, nan, nan}};
    for (const std::vector<double>& stored : results)
        for (const std::vector<double>& here : results)
            EXPECT_EQ(difference(here, storedAndRead(stored)) == "", &here == &stored);
}

TEST(ParityFingerprint, ShowsAnotherNumberOfValues)
{
    EXPECT_NE(difference({1, 2}, storedAndRead({1, 2, 0})), "");
    EXPECT_NE(difference({1, 2, 0}, storedAndRead({1, 2})), "");
    EXPECT_NE(difference({0}, storedAndRead({})), "");
}

TEST(ParityFingerprint, ShowsAnyValueBesideZeros)
{
    EXPECT_EQ(difference({0, 0}, storedAndRead({0, 0})), "");
    EXPECT_NE(difference({0, 1e-300}, storedAndRead({0, 0})), "");
    EXPECT_NE(difference({0, 0}, storedAndRead({0, 1e-300})), "");
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
    file << "# Calls of every export: label, status and, of each output, letter, count, what is not finite, largest\n"
            "# absolute value, and sums of eight values each. Written by parity_test --write on Linux.\n";
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
