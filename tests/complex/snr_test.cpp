// Signal-to-noise ratios in decibels.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "QuorDSP_DAQ.h"

namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using Samples = std::vector<double>;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

double ratio(double signal, double noise)
{
    double snr = 7.0;
    EXPECT_EQ(QuorDSP_getSNR(&signal, 1, &noise, &snr), QUORDSP_SUCCESS);
    return snr;
}

TEST(Snr, OfEqualPowersIsZero)
{
    for (const double power : {1.0, 0.1, 1e-300, 1e300, -3.0})
        EXPECT_EQ(ratio(power, power), 0.0) << power;
}

TEST(Snr, OfTenfoldPowerIsTen)
{
    for (const double power : {1.0, 7.0, 0.25, 1e200})
        EXPECT_EQ(ratio(10.0 * power, power), 10.0) << power;
}

TEST(Snr, LetsZerosNegativesInfinitiesAndNaNThrough)
{
    EXPECT_EQ(ratio(2.0, 0.0), kInfinity);
    EXPECT_EQ(ratio(0.0, 2.0), -kInfinity);
    EXPECT_EQ(ratio(kInfinity, 2.0), kInfinity);
    EXPECT_EQ(ratio(2.0, kInfinity), -kInfinity);
    EXPECT_EQ(ratio(-10.0, -1.0), 10.0);
    for (const auto& [signal, noise] :
         {std::pair{0.0, 0.0}, {-1.0, 2.0}, {1.0, -2.0}, {2.0, -0.0}, {kNan, 1.0}, {1.0, kNan}, {kInfinity, kInfinity}})
        EXPECT_TRUE(std::isnan(ratio(signal, noise))) << signal << " over " << noise;
}

TEST(Snr, TouchesNothingWithoutElements)
{
    double snr = 7.0;
    for (const int n : {0, -1, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(QuorDSP_getSNR(&snr, n, &snr, &snr), QUORDSP_SUCCESS);
        EXPECT_EQ(QuorDSP_getSNR(nullptr, n, nullptr, nullptr), QUORDSP_SUCCESS);
    }
    EXPECT_EQ(snr, 7.0);
}

TEST(Snr, TakesElementByElement)
{
    const Samples signal{1.0, 1000.0, 5.0, 1.0};
    const Samples noise{1.0, 10.0, 0.5, 100.0};
    Samples snr(5, 7.0);
    EXPECT_EQ(QuorDSP_getSNR(signal.data(), 4, noise.data(), snr.data()), QUORDSP_SUCCESS);
    EXPECT_THAT(snr, ElementsAre(0.0, 20.0, 10.0, -20.0, 7.0));
}

TEST(Snr, MayReplaceEitherInput)
{
    Samples signal{1.0, 1000.0, 5.0};
    Samples noise{1.0, 10.0, 0.5};
    const Samples inPlaceOfSignal = [&, snr = signal]() mutable {
        QuorDSP_getSNR(snr.data(), 3, noise.data(), snr.data());
        return snr;
    }();
    QuorDSP_getSNR(signal.data(), 3, noise.data(), noise.data());
    EXPECT_THAT(inPlaceOfSignal, ElementsAre(0.0, 20.0, 10.0));
    EXPECT_EQ(noise, inPlaceOfSignal);
    QuorDSP_getSNR(signal.data(), 3, signal.data(), signal.data());
    EXPECT_THAT(signal, Each(0.0));
}

// Largest error: this much and so many units in the last place of the result.
constexpr double kDecibels = 1e-15;
constexpr double kUnits = 4.0;

double lastPlace(double value)
{
    return std::nextafter(std::abs(value), kInfinity) - std::abs(value);
}

TEST(Snr, IsAsAccurateAsDocumented)
{
    // Vectors in 60 digits: tests/data/complex/make_snr.py.
    std::ifstream file{QUORDSP_TEST_DATA "/complex/snr.csv"};
    ASSERT_TRUE(file);
    int rows = 0;
    double worst = 0.0;
    for (std::string signal, noise, expected;
         std::getline(file, signal, ',') && std::getline(file, noise, ',') && std::getline(file, expected); ++rows) {
        const double decibels = std::strtod(expected.c_str(), nullptr);
        const double error =
            std::abs(ratio(std::strtod(signal.c_str(), nullptr), std::strtod(noise.c_str(), nullptr)) - decibels);
        EXPECT_LE(error, kDecibels + kUnits * lastPlace(decibels)) << signal << " over " << noise;
        worst = std::max(worst, (error - kDecibels) / lastPlace(decibels));
    }
    EXPECT_EQ(rows, 352);
    RecordProperty("UnitsInTheLastPlace", std::to_string(worst));
}

} // namespace
