// How far designs rounded to double are from those of a 50-digit computation. docs/accuracy.md holds what this program
// measures:
//     backend_design_accuracy_test --write docs/accuracy.md
#include "backend/iir/design_errors.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "support/document_table.h"

namespace quordsp::test {
namespace {

using backend::Response;

constexpr Response kSingle[] = {Response::LowPass, Response::HighPass};
constexpr Response kBand[] = {Response::BandPass, Response::BandStop};

// What filters run on.
struct Structure {
    std::string_view title;
    std::span<const Response> responses;
    Form form;
};

constexpr Structure kStructures[] = {
    {"Low-pass and high-pass filters, one call", kSingle, Form::Delta},
    {"Band-pass and band-stop filters, one call", kBand, Form::Delta},
    {"Low-pass and high-pass filters, cascade coefficients", kSingle, Form::DirectOfSecondOrder},
    {"Band-pass and band-stop filters, cascade coefficients", kBand, Form::DirectOfFourthOrder},
};

constexpr Cutoffs kSingleCutoffs[] = {{1e-4, 0}, {1e-3, 0}, {0.01, 0}, {0.1, 0}, {0.25, 0}, {0.45, 0}, {0.499, 0}};
constexpr Cutoffs kBandCutoffs[] = {{1e-4, 2e-4}, {1e-3, 2e-3},   {1e-3, 0.4},  {0.01, 0.011}, {0.01, 0.02},
                                    {0.1, 0.2},   {0.25, 0.2525}, {0.25, 0.26}, {0.45, 0.49},  {0.499, 0.4995}};

bool isBand(const Structure& structure)
{
    return structure.responses.front() == Response::BandPass;
}

std::span<const Cutoffs> cutoffsOf(const Structure& structure)
{
    if (isBand(structure))
        return kBandCutoffs;
    return kSingleCutoffs;
}

Errors worstOf(Family family, const Structure& structure, const Cutoffs& cutoffs)
{
    Errors worst;
    for (const vectors::Prototype& prototype : vectors::kPrototypes)
        if (prototype.family == family)
            for (Response response : structure.responses)
                measure(worst, prototype, response, cutoffs, structure.form);
    return worst;
}

// The table of a structure, without its head and its last column: all that follows a vertical line.
std::vector<std::vector<std::string>> documented(const Structure& structure)
{
    std::ifstream in{QUORDSP_TEST_DATA "/../../docs/accuracy.md"};
    std::string line;
    while (std::getline(in, line) && line != "### " + std::string{structure.title}) {
    }
    while (std::getline(in, line) && !line.starts_with("|---")) {
    }
    std::vector<std::vector<std::string>> rows;
    while (std::getline(in, line) && line.starts_with('|')) {
        std::istringstream cells{line};
        std::getline(cells, line, '|');
        for (rows.emplace_back(); std::getline(cells, line, '|');)
            rows.back().push_back(line);
    }
    return rows;
}

// Cells are rounded upwards to one digit; the rest is for the last bits of other processors' sines.
constexpr long double kFactor = 2;

void expectAsDocumented(const Errors& errors, const std::string& cell, const std::string& where)
{
    std::istringstream in{cell};
    long double pass = 0, stop = 0;
    int refused = 0;
    char separator{};
    in >> pass >> separator >> stop;
    EXPECT_TRUE(in) << where;
    in >> separator >> refused;
    EXPECT_LE(errors.pass, kFactor * pass) << where;
    EXPECT_LE(errors.stop, kFactor * stop) << where;
    EXPECT_EQ(errors.refused, refused) << where;
}

// Whatever the document says, a filter in one call is as good as the ideal one.
void expectFaithful(const Errors& errors)
{
    EXPECT_LE(errors.pass, 1e-9L);
    EXPECT_LE(errors.stop, 0.01L);
    EXPECT_EQ(errors.refused, 0);
}

void expectAsDocumented(const Structure& structure)
{
    const auto rows = documented(structure);
    const auto cutoffs = cutoffsOf(structure);
    ASSERT_EQ(rows.size(), cutoffs.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        ASSERT_EQ(rows[i].size(), 2 + std::size(kFamilies));
        long double pole = 0;
        for (Family family : kFamilies) {
            const Errors errors = worstOf(family, structure, cutoffs[i]);
            expectAsDocumented(errors, rows[i][1 + static_cast<std::size_t>(family)],
                               std::to_string(family) + " at" + rows[i].front());
            pole = std::max(pole, errors.pole);
            if (structure.form == Form::Delta)
                expectFaithful(errors);
        }
        EXPECT_LE(pole, kFactor * std::stold(rows[i].back())) << rows[i].front();
    }
}

// Of 64 bits of mantissa, the last one being 1.1e-19.
TEST(DesignAccuracy, OfPrototypesIsThatOfExtendedPrecision)
{
    const auto expectExact = [](std::span<const vectors::Prototype> prototypes) {
        for (const vectors::Prototype& prototype : prototypes)
            EXPECT_LE(prototypeError(prototype), 1e-17L) << prototype.family << " order " << prototype.order << ' '
                                                         << prototype.ripple << ' ' << prototype.attenuation;
    };
    expectExact(vectors::kPrototypes);
    expectExact(vectors::kExtremes);
}

TEST(DesignAccuracy, OfLowPassAndHighPassFiltersInOneCallIsAsDocumented)
{
    expectAsDocumented(kStructures[0]);
}

TEST(DesignAccuracy, OfBandFiltersInOneCallIsAsDocumented)
{
    expectAsDocumented(kStructures[1]);
}

TEST(DesignAccuracy, OfLowPassAndHighPassCoefficientsIsAsDocumented)
{
    expectAsDocumented(kStructures[2]);
}

TEST(DesignAccuracy, OfBandCoefficientsIsAsDocumented)
{
    expectAsDocumented(kStructures[3]);
}

TEST(DesignAccuracy, HoldsForExtremeTolerancesOrTheDesignIsRefused)
{
    int designed = 0;
    for (const vectors::Prototype& prototype : vectors::kExtremes)
        for (Response response : {Response::LowPass, Response::HighPass, Response::BandPass, Response::BandStop}) {
            Errors errors;
            measure(errors, prototype, response, {0.1, 0.3}, Form::Delta);
            EXPECT_LE(errors.pass, 1e-8) << prototype.family << " order " << prototype.order;
            EXPECT_LE(errors.stop, 0.01) << prototype.family << " order " << prototype.order;
            designed += errors.designs - errors.refused;
        }
    EXPECT_EQ(designed, 4 * static_cast<int>(std::size(vectors::kExtremes)));
}

// Upwards to one digit, so that a last bit of the measurement does not show.
void writeNumber(std::ostream& out, long double value)
{
    if (value == 0) {
        out << 0;
        return;
    }
    auto exponent = static_cast<int>(std::floor(std::log10(value)));
    auto digit = static_cast<int>(std::ceil(value / std::pow(10.0L, exponent) - 1e-3L));
    if (digit == 10) {
        digit = 1;
        ++exponent;
    }
    out << digit << 'e' << exponent;
}

void writeCell(std::ostream& out, const Errors& errors)
{
    out << " | ";
    writeNumber(out, errors.pass);
    out << " / ";
    writeNumber(out, errors.stop);
    if (errors.refused > 0)
        out << " (" << errors.refused << " of " << errors.designs << " refused)";
}

std::string tableOf(const Structure& structure)
{
    std::ostringstream out;
    out << "| cut-offs / fs | Butterworth | Bessel | Chebyshev | inverse Chebyshev | elliptic | poles |\n"
        << "|---|---|---|---|---|---|---|\n";
    for (const Cutoffs& cutoffs : cutoffsOf(structure)) {
        out << "| " << cutoffs.fl;
        if (isBand(structure))
            out << ", " << cutoffs.fh;
        long double pole = 0;
        for (Family family : kFamilies) {
            const Errors errors = worstOf(family, structure, cutoffs);
            writeCell(out, errors);
            pole = std::max(pole, errors.pole);
        }
        out << " | ";
        writeNumber(out, pole);
        out << " |\n";
    }
    return out.str();
}

void write(const std::string& path)
{
    for (const Structure& structure : kStructures)
        replaceTable(path, "### " + std::string{structure.title}, tableOf(structure));
}

} // namespace
} // namespace quordsp::test

int main(int argc, char** argv)
{
    const std::span arguments{argv, static_cast<std::size_t>(argc)};
    if (argc == 3 && std::string_view{arguments[1]} == "--write") {
        quordsp::test::write(arguments[2]);
        return 0;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
