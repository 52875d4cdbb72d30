#include "thermocouple.h"

#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>

namespace quordsp::cli {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsNan;
using testing::Pointwise;

const ThermocoupleType& type(std::string_view letter)
{
    for (const auto& row : thermocoupleTypes())
        if (row.letter == letter)
            return row;
    throw std::invalid_argument("no such type");
}

const TemperatureUnit& unit(std::string_view letter)
{
    for (const auto& row : temperatureUnits())
        if (row.letter == letter)
            return row;
    throw std::invalid_argument("no such unit");
}

std::vector<double> converted(const std::vector<double>& emf, const std::vector<double>& coldJunction,
                              std::string_view letter, std::string_view unitLetter = "C")
{
    return convertThermocouple(emf, coldJunction, type(letter), unit(unitLetter)).values;
}

// The tables of the ITS-90: voltages of whole degrees, printed to a microvolt.
TEST(Thermocouple, ConvertsTheTablesOfEveryType)
{
    EXPECT_NEAR(converted({10.153}, {0}, "K")[0], 250, 0.1);
    EXPECT_NEAR(converted({5.780}, {0}, "B")[0], 1100, 0.1);
    EXPECT_NEAR(converted({-5.237}, {0}, "E")[0], -100, 0.1);
    EXPECT_NEAR(converted({-4.633}, {0}, "J")[0], -100, 0.1);
    EXPECT_NEAR(converted({-2.407}, {0}, "N")[0], -100, 0.1);
    EXPECT_NEAR(converted({4.471}, {0}, "R")[0], 500, 0.1);
    EXPECT_NEAR(converted({4.233}, {0}, "S")[0], 500, 0.1);
    EXPECT_NEAR(converted({4.279}, {0}, "T")[0], 100, 0.1);
}

TEST(Thermocouple, ConvertsToEveryUnit)
{
    EXPECT_NEAR(converted({10.153}, {0}, "K", "F")[0], 482, 0.2);
    EXPECT_NEAR(converted({10.153}, {0}, "K", "K")[0], 523.15, 0.1);
    EXPECT_NEAR(converted({10.153}, {0}, "K", "R")[0], 941.67, 0.2);
}

// Type K has 1.000 mV at 25 degC and 4.096 mV at 100 degC.
TEST(Thermocouple, AddsTheColdJunctionOfEachRow)
{
    const auto values = converted({10.153, 9.153, 9.153, 6.057}, {0, 25, 25, 100}, "K");
    for (const double value : values)
        EXPECT_NEAR(value, 250, 0.1);
    EXPECT_EQ(values[1], values[2]);
}

TEST(Thermocouple, GoesOnBehindAVoltageOutOfRange)
{
    for (const std::vector<double>& coldJunction : {std::vector<double>{0}, {0, 0, 0, 0, 0}, {0, 1, 2, 3, 4}}) {
        const auto result =
            convertThermocouple(std::vector{70.0, 10.0, -8.0, 70.0, 10.0}, coldJunction, type("K"), unit("C"));
        EXPECT_THAT(result.outOfRange, ElementsAre(0, 2, 3));
        EXPECT_THAT(result.values[0], IsNan());
        EXPECT_THAT(result.values[3], IsNan());
        EXPECT_NEAR(result.values[1], 246.3, 2);
        EXPECT_NEAR(result.values[4], 246.3, 5);
    }
}

TEST(Thermocouple, CallsAVoltageWithoutAFiniteTemperatureOutOfRange)
{
    for (const char* const letter : {"B", "E", "J", "N", "R", "S", "T"}) {
        const auto result =
            convertThermocouple(std::vector{1.0, 1e300, -1e300, 1.0}, std::vector{0.0}, type(letter), unit("C"));
        EXPECT_TRUE(std::isfinite(result.values[0]) && std::isfinite(result.values[3])) << letter;
        for (std::size_t row = 0; row < result.values.size(); ++row)
            EXPECT_EQ(std::isfinite(result.values[row]), !std::ranges::count(result.outOfRange, row)) << letter;
    }
    EXPECT_THAT(convertThermocouple(std::vector{1.0, 1e300}, std::vector{0.0}, type("S"), unit("C")).outOfRange,
                ElementsAre(1));
}

// The tables of the ITS-90 for type K: -3.554 mV at -100 degC, 1.000 mV at 25 degC, 4.096 mV at 100 degC.
TEST(Compensated, AddsTheVoltageOfTypeK)
{
    const auto voltages = compensated(std::vector{1.0, 1.0, 1.0, 1.0}, std::vector{0.0, -100.0, 25.0, 100.0});
    EXPECT_NEAR(voltages[0], 1, 1e-6);
    EXPECT_NEAR(voltages[1], 1 - 3.554, 1e-3);
    EXPECT_NEAR(voltages[2], 1 + 1.000, 1e-3);
    EXPECT_NEAR(voltages[3], 1 + 4.096, 1e-3);
}

// The library computes in single precision, to 0.008 degC here.
TEST(Compensated, IsWhatTheLibraryConverts)
{
    for (double coldJunction = kLowestColdJunction; coldJunction <= kHighestColdJunction; coldJunction += 20) {
        const auto voltages = compensated(std::vector{0.0}, std::vector{coldJunction});
        EXPECT_NEAR(converted(voltages, {0}, "E")[0], converted({0}, {coldJunction}, "E")[0], 0.02) << coldJunction;
    }
}

// The reference functions of the ITS-90 at the ends of their inverse functions.
TEST(Thermocouple, ReachesTheEndsOfThePublishedRanges)
{
    const auto ends = [](const char* letter) {
        const VoltageRange range = type(letter).published;
        return converted({range.low, range.high}, {0}, letter);
    };
    EXPECT_THAT(ends("B"), Pointwise(DoubleNear(0.5), {250.0, 1820.0}));
    EXPECT_THAT(ends("S"), Pointwise(DoubleNear(0.5), {-50.0, 1768.1}));
    EXPECT_THAT(ends("T"), Pointwise(DoubleNear(0.5), {-200.0, 400.0}));
    EXPECT_NEAR(ends("E")[0], -200, 0.5);
    EXPECT_NEAR(ends("J")[0], -210, 0.5);
    EXPECT_NEAR(ends("J")[1], 1200, 0.5);
    EXPECT_NEAR(ends("K")[1], 1372, 0.5);
    EXPECT_NEAR(ends("N")[0], -200, 0.5);
    EXPECT_NEAR(ends("N")[1], 1300, 0.5);
    EXPECT_NEAR(ends("R")[0], -50, 0.5);
}

// Seconds when each of these rows has the others looked at again.
TEST(Thermocouple, ConvertsALongLogOutOfRangeInOnePass)
{
    const std::vector<double> emf(1000000, 100);
    const std::vector<double> coldJunctions(emf.size(), 20);
    EXPECT_EQ(convertThermocouple(emf, std::vector{20.0}, type("K"), unit("C")).outOfRange.size(), emf.size());
    EXPECT_EQ(convertThermocouple(emf, coldJunctions, type("K"), unit("C")).outOfRange.size(), emf.size());
}

TEST(Thermocouple, HasNothingOutOfRangeWhereAllIsInside)
{
    EXPECT_THAT(convertThermocouple(std::vector{10.0, 54.0, 0.0}, std::vector{0.0}, type("K"), unit("C")).outOfRange,
                IsEmpty());
}

} // namespace
} // namespace quordsp::cli
