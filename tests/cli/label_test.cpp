#include "label.h"

#include <gtest/gtest.h>

namespace quordsp::cli {
namespace {

struct Case {
    const char* name;
    const char* quantity;
    const char* unit;
};

TEST(Label, TakesQuantityAndUnitFromTheColumnName)
{
    constexpr Case kCases[] = {
        {"x_g", "x", "g"},
        {"cold_junction_degC", "cold_junction", "degC"},
        {"velocity_mm/s", "velocity", "mm/s"},
        {"force (N)", "force", "N"},
        {"emf [mV]", "emf", "mV"},
        {"flow (l/min)", "flow", "l/min"},
        {"sensor_left", "sensor_left", ""},
        {"sensor_left/s", "sensor_left/s", ""},
        {"sensor_1", "sensor_1", ""},
        {"_g", "_g", ""},
        {"g", "g", ""},
        {"(N)", "(N)", ""},
        {")", ")", ""},
        {"", "", ""},
        {"column 1", "column 1", ""},
    };
    for (const auto& [name, quantity, unit] : kCases) {
        const Label label = parseLabel(name);
        EXPECT_EQ(label.quantity, quantity) << name;
        EXPECT_EQ(label.unit, unit) << name;
    }
}

TEST(Label, NamesAnAxisWithAndWithoutAUnit)
{
    EXPECT_EQ((Label{"x", "g"}.axis()), "x (g)");
    EXPECT_EQ((Label{"x", ""}.axis()), "x");
}

TEST(Label, NamesAColumnWithAndWithoutAUnit)
{
    EXPECT_EQ(columnName("filtered", "g"), "filtered_g");
    EXPECT_EQ(columnName("filtered", ""), "filtered");
}

TEST(Label, TellsHowManyVoltsAUnitIs)
{
    EXPECT_EQ(voltsPerUnit("V"), 1);
    EXPECT_EQ(voltsPerUnit("mV"), 1e-3);
    EXPECT_EQ(voltsPerUnit("uV"), 1e-6);
    EXPECT_EQ(voltsPerUnit("g"), 0);
    EXPECT_EQ(voltsPerUnit(""), 0);
}

TEST(Label, PutsAUnitOfSeveralPartsInBracketsBeforeItIsSquared)
{
    EXPECT_EQ(squared("g"), "g^2");
    EXPECT_EQ(squared("\xC2\xB5V"), "(\xC2\xB5V)^2");
    EXPECT_EQ(squared("m/s2"), "(m/s2)^2");
    EXPECT_EQ(squared("m/s"), "(m/s)^2");
    EXPECT_EQ(squared(""), "");
}

TEST(Label, DividesAUnitBySeconds)
{
    EXPECT_EQ(perSeconds("g", 0), "g");
    EXPECT_EQ(perSeconds("g", 1), "g/s");
    EXPECT_EQ(perSeconds("g", 2), "g/s2");
    EXPECT_EQ(perSeconds("m/s", 1), "m/s2");
    EXPECT_EQ(perSeconds("m/s2", 3), "m/s5");
    EXPECT_EQ(perSeconds("", 1), "1/s");
    EXPECT_EQ(perSeconds("m/sx", 1), "m/sx/s");
}

TEST(Label, ReadsTheUnitsOfDerivativesBack)
{
    for (const char* const unit : {"", "mV", "m/s", "m/s2", "%"})
        for (int derivative = 1; derivative <= 5; ++derivative) {
            const std::string written = perSeconds(unit, derivative);
            const Label label = parseLabel(columnName("filtered", written));
            EXPECT_EQ(label.quantity, "filtered");
            EXPECT_EQ(label.unit, written);
            EXPECT_EQ(perSeconds(label.unit, 2), perSeconds(unit, derivative + 2));
        }
}

TEST(Label, ShowsNoControlCharacters)
{
    EXPECT_EQ(printable("a\x1B[2J\r\x7F\n\xC3\xA4"), "a?[2J???\xC3\xA4");
}

TEST(Label, PutsAUnitBehindANumber)
{
    EXPECT_EQ(withUnit("10.1", "g"), "10.1 g");
    EXPECT_EQ(withUnit("10.1", ""), "10.1");
}

} // namespace
} // namespace quordsp::cli
