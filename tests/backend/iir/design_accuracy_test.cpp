// How far designs rounded to double are from those of a 50-digit computation. docs/accuracy.md holds what this program
// measures:
//     backend_design_accuracy_test --write docs/accuracy.md
#include "backend/iir/design_errors.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>

#include "support/document_table.h"

namespace quordsp::test {
namespace {

using backend::Response;

constexpr Response kSingle[] = {Response::LowPass, Response::HighPass};
constexpr Response kBand[] = {Response::BandPass, Response::BandStop};

// What a filter runs on: the responses, and the order of the sections.
struct Form {
    std::string_view title;
    std::span<const Response> responses;
    std::size_t sectionOrder;
};

constexpr Form kForms[] = {
    {"Low-pass and high-pass filters", kSingle, 2},
    {"Band-pass and band-stop filters, one call", kBand, 2},
    {"Band-pass and band-stop filters, cascade coefficients", kBand, 4},
};

struct Limit {
    long double pass, stop, pole;
};

struct Row {
    Cutoffs cutoffs;
    Limit limits[std::size(kForms)];
};

const Row kRows[] = {
    {{1e-4, 2e-4}, {{2e-6, 3e-3, 4e-12}, {3e-6, 3e-4, 2e-12}, {0.03, 100, 5e-7}}},
    {{1e-3, 2e-3}, {{3e-8, 2e-4, 2e-13}, {2e-8, 4e-6, 1e-13}, {2e-4, 0.5, 4e-9}}},
    {{1e-3, 0.4}, {{3e-8, 2e-4, 2e-13}, {1e-8, 3e-8, 2e-13}, {8e-9, 8e-9, 2e-13}}},
    {{0.01, 0.011}, {{2e-10, 2e-6, 6e-14}, {8e-9, 5e-7, 3e-15}, {2e-5, 0.02, 7e-11}}},
    {{0.01, 0.02}, {{2e-10, 2e-6, 6e-14}, {6e-10, 3e-8, 2e-14}, {2e-7, 1e-4, 3e-12}}},
    {{0.1, 0.2}, {{5e-12, 2e-8, 4e-15}, {6e-12, 3e-10, 2e-15}, {6e-11, 9e-9, 5e-14}}},
    {{0.25, 0.26}, {{2e-12, 3e-10, 2e-15}, {3e-11, 1e-10, 1e-16}, {2e-9, 8e-6, 2e-13}}},
    {{0.45, 0.49}, {{1e-11, 3e-8, 1e-14}, {1e-9, 4e-7, 2e-14}, {7e-9, 3e-6, 8e-13}}},
    {{0.499, 0.4995}, {{3e-8, 2e-4, 2e-13}, {3e-7, 3e-4, 3e-13}, {8e-3, 20, 2e-8}}},
};

Errors worstOf(Family family, const Form& form, const Cutoffs& cutoffs)
{
    Errors worst;
    for (const vectors::Prototype& prototype : vectors::kPrototypes)
        if (prototype.family == family)
            for (Response response : form.responses)
                measure(worst, prototype, response, cutoffs, form.sectionOrder);
    return worst;
}

void expectWithinLimits(std::size_t form)
{
    for (const Row& row : kRows)
        for (Family family : kFamilies) {
            const Errors errors = worstOf(family, kForms[form], row.cutoffs);
            const auto [pass, stop, pole] = row.limits[form];
            EXPECT_LE(errors.pass, pass) << "family " << family << " at " << row.cutoffs.fl;
            EXPECT_LE(errors.stop, stop) << "family " << family << " at " << row.cutoffs.fl;
            EXPECT_LE(errors.pole, pole) << "family " << family << " at " << row.cutoffs.fl;
            if (kForms[form].sectionOrder == 2 || row.cutoffs.fl >= 1e-3)
                EXPECT_EQ(errors.refused, 0) << "family " << family << " at " << row.cutoffs.fl;
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

TEST(DesignAccuracy, OfLowPassAndHighPassFiltersIsThatOfDouble)
{
    expectWithinLimits(0);
}

TEST(DesignAccuracy, OfBandFiltersInOneCallIsThatOfDouble)
{
    expectWithinLimits(1);
}

TEST(DesignAccuracy, OfBandFiltersOfFourthOrderSectionsIsThatOfDouble)
{
    expectWithinLimits(2);
}

TEST(DesignAccuracy, HoldsForExtremeTolerancesOrTheDesignIsRefused)
{
    int designed = 0;
    for (const vectors::Prototype& prototype : vectors::kExtremes)
        for (Response response : {Response::LowPass, Response::HighPass, Response::BandPass, Response::BandStop}) {
            Errors errors;
            measure(errors, prototype, response, {0.1, 0.3}, 2);
            EXPECT_LE(errors.pass, 1e-8) << prototype.family << " order " << prototype.order;
            EXPECT_LE(errors.stop, 1e-4) << prototype.family << " order " << prototype.order;
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

std::string tableOf(const Form& form)
{
    std::ostringstream out;
    out << "| cut-offs / fs | Butterworth | Bessel | Chebyshev | inverse Chebyshev | elliptic | poles |\n"
        << "|---|---|---|---|---|---|---|\n";
    const bool isBand = form.responses.front() == Response::BandPass;
    double before = 0;
    for (const Row& row : kRows) {
        if (!isBand && row.cutoffs.fl == before)
            continue;
        before = row.cutoffs.fl;
        out << "| " << row.cutoffs.fl;
        if (isBand)
            out << ", " << row.cutoffs.fh;
        long double pole = 0;
        for (Family family : kFamilies) {
            const Errors errors = worstOf(family, form, row.cutoffs);
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
    for (const Form& form : kForms)
        replaceTable(path, "### " + std::string{form.title}, tableOf(form));
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
