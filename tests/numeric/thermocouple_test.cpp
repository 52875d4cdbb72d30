// Thermocouple voltages to temperatures, through the export.
#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>

#include <gmock/gmock.h>

#include "QuorDSP_DAQ.h"
#include "numeric/thermocouple_samples.h"
#include "reference/thermocouple.h"

namespace quordsp {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

constexpr int kInvalidType = 2147483647;
constexpr int kOutOfRange = -20322;
constexpr int kK = 3;

struct Result {
    int status;
    Samples temperature;

    bool operator==(const Result&) const = default;
};

// Bits, so that results compare exactly.
std::pair<int, std::vector<std::uint64_t>> exactly(const Result& result)
{
    return {result.status, bitsOf(result.temperature)};
}

Result convert(Samples emf, int unit, int type, double coldJunction = kNoColdJunction)
{
    Samples temperature(emf.size(), kUntouched);
    const int status =
        QuorDSP_Thermocouple(emf.data(), static_cast<int>(emf.size()), unit, type, coldJunction, temperature.data());
    return {status, temperature};
}

Result expected(const Samples& emf, int unit, int type, double coldJunction = kNoColdJunction)
{
    Samples temperature(emf.size(), kUntouched);
    const int status =
        reference::thermocouple(emf.data(), static_cast<int>(emf.size()), unit, type, coldJunction, temperature.data());
    return {status, temperature};
}

double celsius(int type, double emf)
{
    return convert({emf}, 0, type).temperature[0];
}

TEST(Thermocouple, DoesNothingWithoutSamplesNotEvenLookAtTheType)
{
    double emf = 1.0;
    double temperature = kUntouched;
    for (const int count : {0, -1, std::numeric_limits<int>::min()})
        for (const int type : {kK, 99, -1}) {
            EXPECT_EQ(QuorDSP_Thermocouple(&emf, count, 0, type, 25.0, &temperature), 0);
            EXPECT_EQ(QuorDSP_Thermocouple(nullptr, count, 0, type, 25.0, nullptr), 0);
        }
    EXPECT_EQ(temperature, kUntouched);
}

TEST(Thermocouple, RefusesAnUnknownTypeAndWritesNothing)
{
    for (const int type : {8, -1, 99, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        const auto [status, temperature] = convert({1.0, 2.0}, 0, type);
        EXPECT_EQ(status, kInvalidType) << type;
        EXPECT_THAT(temperature, Each(kUntouched)) << type;
    }
}

TEST(Thermocouple, GivesTheKnownTemperatures)
{
    // The tables round voltages to 0.001 mV, as much as 0.07 degC in type B.
    const struct {
        int type;
        double emf;
        double celsius;
        double tolerance;
        const char* source;
    } kRows[] = {
        {0, 2.431, 700.0, 0.1, "ITS-90 table, type B"},
        {0, 0.02, 218.83, 0.01, "213.15071 + 285.10504 E - 52.742887 E^2 by hand"},
        {1, -8.825, -200.0, 0.03, "ITS-90 table, type E"},
        {1, 40.0, 475.6, 0.1, "the intended mix of coefficients, summed by hand"},
        {2, -8.095, -210.0, 0.06, "ITS-90 table, type J"},
        {2, 5.269, 132.93, 0.01, "the intended mix of coefficients, summed by hand"},
        {2, 69.553, 1200.0, 0.05, "ITS-90 table, type J"},
        {3, 4.096, 99.963, 0.001, "ITS-90 table, type K: 100 degC, less the error of the polynomial"},
        {3, 54.886, 1372.0, 0.07, "ITS-90 table, type K"},
        {3, -1.0, -0.00051920577, 1e-9, "the term of degree 8 alone"},
        {3, -3.0, -3.4065, 1e-4, "-5.1920577e-4 * 3^8"},
        {4, 1.923, 250.0, 0.05, "ITS-90 table, type R"},
        {4, 13.228, 1200.0, 0.05, "ITS-90 table, type R"},
        {4, 13.228001, 65.47417449951172, 0.0, "intended constant"},
        {4, 15.0, 65.47417449951172, 0.0, "intended constant"},
        {4, -0.5, 65.47417449951172, 0.0, "intended constant"},
        {4, 20.0, 34061.77734375, 0.0, "intended constant"},
        {5, 17.536, 1664.5, 0.05, "ITS-90 table, type S"},
        {5, -1.0, 66833.61, 0.01, "the polynomial from 1664.5 degC at -1 mV, summed by hand"},
        {6, -5.603, -200.0, 0.05, "ITS-90 table, type T"},
        {6, 20.872, 400.0, 0.05, "ITS-90 table, type T"},
        {6, 25.0, 0.0, 0.0, "beyond the range"},
        {7, -3.990, -200.0, 0.08, "ITS-90 table, type N"},
        {7, 47.513, 1300.0, 0.05, "ITS-90 table, type N"},
    };
    for (const auto& row : kRows)
        EXPECT_NEAR(celsius(row.type, row.emf), row.celsius, row.tolerance)
            << row.type << " at " << row.emf << ": " << row.source;
}

TEST(Thermocouple, ConvertsTheUnitAlsoOfTheZeroBeyondARange)
{
    // 32, 273.15 and 491.67 rounded to singles.
    const double expectedInUnit[] = {0.0, 32.0, 273.1499938964844, 491.6700134277344};
    for (int unit = 0; unit < 4; ++unit)
        EXPECT_THAT(convert({25.0}, unit, 6).temperature, ElementsAre(expectedInUnit[unit]));
}

TEST(Thermocouple, TakesAnUnknownUnitForCelsius)
{
    for (const int unit : {4, 99, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_EQ(exactly(convert({1.0, 30.0}, unit, kK)), exactly(convert({1.0, 30.0}, 0, kK))) << unit;
}

TEST(Thermocouple, GivesTheBitsOfAnotherImplementation)
{
    // Vectors from NumPy's singles: tests/data/numeric/make_thermocouple.py.
    std::ifstream file{QUORDSP_TEST_DATA "/numeric/thermocouple.csv"};
    ASSERT_TRUE(file);
    int rows = 0;
    for (std::string row; std::getline(file, row); ++rows) {
        std::istringstream fields{row};
        std::string field[5];
        for (std::string& text : field)
            std::getline(fields, text, ',');
        const auto number = [&](int i) { return std::strtod(field[i].c_str(), nullptr); };
        const Result result = convert({number(3)}, std::stoi(field[1]), std::stoi(field[0]), number(2));
        EXPECT_EQ(result.status, 0) << row;
        EXPECT_EQ(bitsOf(result.temperature[0]), bitsOf(number(4))) << row;
    }
    EXPECT_EQ(rows, 2105);
}

TEST(Thermocouple, DecidesEveryEndOfARangeAsAComparisonOfDoublesDoes)
{
    for (int type = 0; type < kTypeCount; ++type)
        for (const int unit : kUnits)
            for (const double end : kEnds) {
                for (const double emf : around(end)) // alone, so that type K's refusal hides nothing
                    EXPECT_EQ(exactly(convert({emf}, unit, type)), exactly(expected({emf}, unit, type)))
                        << "type " << type << ", unit " << unit << ", " << emf << " mV";
                EXPECT_EQ(exactly(convert({end}, unit, type)), exactly(expected({end}, unit, type))) << end;
            }
}

TEST(Thermocouple, RoundsTheVoltageBeforeItComparesIt)
{
    // 20.646 rounds to 20.6459999, so the lower range has it; the next single is in the upper one.
    EXPECT_NEAR(celsius(kK, 20.645), 500.008, 0.001);
    EXPECT_NEAR(celsius(kK, 20.646), 500.0306, 0.001);
    EXPECT_NEAR(celsius(kK, 20.646001816), 499.9945, 0.001);
    // -6.478 and 54.9 round to beyond themselves, so both ends are out of range.
    EXPECT_EQ(convert({-6.478}, 0, kK).status, kOutOfRange);
    EXPECT_EQ(convert({54.9}, 0, kK).status, kOutOfRange);
    EXPECT_NEAR(celsius(kK, -6.4779996), -1610.15, 0.01);
    EXPECT_NEAR(celsius(kK, 54.899998), 1372.4, 0.1);
}

TEST(Thermocouple, StopsAtTheFirstVoltageOutOfRangeOfTypeK)
{
    const auto [status, temperature] = convert({4.096, 60.0, 1.0}, 0, kK, 0.0);
    EXPECT_EQ(status, kOutOfRange);
    EXPECT_NEAR(temperature[0], 99.963, 0.001);
    EXPECT_THAT(Samples(temperature.begin() + 1, temperature.end()), Each(kUntouched));
}

TEST(Thermocouple, KeepsWhatItWroteBeforeAVoltageOutOfRange)
{
    constexpr int kCount = 100;
    for (const double bad : {60.0, -7.0, 1e300, HUGE_VAL, -HUGE_VAL})
        for (std::size_t at = 0; at < kCount; ++at) {
            Samples emf(kCount, 10.0);
            emf[at] = bad;
            emf.back() = bad;
            emf[at / 2] = at < 2 ? emf[at / 2] : std::nan("");
            EXPECT_EQ(exactly(convert(emf, 2, kK)), exactly(expected(emf, 2, kK))) << bad << " at " << at;
        }
}

TEST(Thermocouple, MakesNaNZeroOrWhatTheTypeHasBeyondItsRanges)
{
    for (const int type : {1, 2, 3, 6, 7})
        EXPECT_EQ(bitsOf(celsius(type, std::nan(""))), bitsOf(0.0)) << type;
    EXPECT_EQ(celsius(4, std::nan("")), 34061.77734375);
    EXPECT_TRUE(std::isnan(celsius(0, std::nan(""))));
    EXPECT_TRUE(std::isnan(celsius(5, std::nan(""))));
    EXPECT_EQ(convert({std::nan(""), 60.0}, 0, kK).status, kOutOfRange);
}

TEST(Thermocouple, FollowsHornersRuleToInfinity)
{
    // 1e300 mV overflows single precision. Types B and S have no limit: the sign of the leading term decides.
    for (const double infinite : {HUGE_VAL, 1e300, -HUGE_VAL, -1e300}) {
        EXPECT_EQ(celsius(0, infinite), -HUGE_VAL); // -2.4878585e-6 E^8
        EXPECT_EQ(celsius(5, infinite), HUGE_VAL);  // 0.624720542 E^4
        EXPECT_EQ(celsius(4, infinite), infinite > 0 ? 34061.77734375 : 65.47417449951172);
        for (const int type : {1, 2, 6, 7})
            EXPECT_EQ(bitsOf(celsius(type, infinite)), bitsOf(0.0)) << type;
    }
}

TEST(Thermocouple, GivesTheBitsOfThePlainLoopOnAnyInput)
{
    constexpr int kCount = 20000;
    for (int type = 0; type < kTypeCount; ++type)
        for (const int unit : kUnits)
            for (const double coldJunction : {kNoColdJunction, 25.0}) {
                Samples emf = shuffledSweep(kCount, -11.0, 78.0);
                std::ranges::copy(wildSamples(kCount / 2, 7), emf.begin() + kCount / 2);
                if (type == kK)
                    std::ranges::replace_if(emf, [](double v) { return v < -6.0 || v > 53.0; }, 5.0);
                EXPECT_EQ(exactly(convert(emf, unit, type, coldJunction)),
                          exactly(expected(emf, unit, type, coldJunction)))
                    << "type " << type << ", unit " << unit;
            }
}

TEST(Thermocouple, ConvertsExactlyAsManySamplesAsItIsAskedTo)
{
    for (int count = 1; count <= 130; ++count) {
        Samples emf = shuffledSweep(count, -6.0, 54.0);
        Samples temperature(emf.size() + 1, kUntouched);
        ASSERT_EQ(QuorDSP_Thermocouple(emf.data(), count, 1, kK, 20.0, temperature.data()), 0);
        EXPECT_EQ(temperature.back(), kUntouched) << count;
        temperature.pop_back();
        EXPECT_EQ(bitsOf(temperature), bitsOf(expected(emf, 1, kK, 20.0).temperature)) << count;
    }
}

TEST(Thermocouple, WritesOverItsOwnInput)
{
    for (const int count : {1, 31, 32, 33, 1000}) {
        Samples emf = shuffledSweep(count, -6.0, 54.0);
        emf[emf.size() / 2] = 60.0;
        Result result = expected(emf, 3, kK);
        const auto untouched = static_cast<std::ptrdiff_t>(emf.size() / 2);
        std::copy(emf.begin() + untouched, emf.end(), result.temperature.begin() + untouched);
        const int status = QuorDSP_Thermocouple(emf.data(), count, 3, kK, kNoColdJunction, emf.data());
        EXPECT_EQ(exactly({status, emf}), exactly(result)) << count;
    }
}

TEST(Thermocouple, ReadsTheVoltagesOnly)
{
    Samples emf = wildSamples(100, 3);
    const Samples before = emf;
    Samples temperature(emf.size());
    QuorDSP_Thermocouple(emf.data(), 100, 1, 1, 25.0, temperature.data());
    EXPECT_EQ(bitsOf(emf), bitsOf(before));
}

TEST(Thermocouple, AddsTheVoltageOfTheColdJunction)
{
    for (double coldJunction = -280.0; coldJunction <= 1380.0; coldJunction += 0.37)
        for (const int type : {1, kK})
            EXPECT_EQ(exactly(convert({0.0, 3.5, -1.25}, 0, type, coldJunction)),
                      exactly(expected({0.0, 3.5, -1.25}, 0, type, coldJunction)))
                << coldJunction;
}

TEST(Thermocouple, DecidesTheEndsOfTheColdJunctionInSinglePrecision)
{
    for (const double end : {-270.0, 0.0, 1370.0})
        for (const double coldJunction : around(end))
            EXPECT_EQ(exactly(convert({2.0}, 0, kK, coldJunction)), exactly(expected({2.0}, 0, kK, coldJunction)))
                << coldJunction;
    // Nearer to 1370 than half a unit in the last place of a single: still compensated, as 1370 itself is.
    EXPECT_EQ(exactly(convert({-50.0}, 0, kK, 1370.00001)), exactly(convert({-50.0}, 0, kK, 1370.0)));
    EXPECT_NE(exactly(convert({2.0}, 0, 1, 1370.0)), exactly(convert({2.0}, 0, 1, 1370.001)));
}

TEST(Thermocouple, CompensatesNothingForAColdJunctionBeyondItsRange)
{
    for (const double coldJunction : {1500.0, -300.0, HUGE_VAL, -HUGE_VAL, 1e300, 1370.001, -270.001})
        EXPECT_EQ(exactly(convert({0.0, 3.5}, 0, kK, coldJunction)), exactly({0, {0.0, celsius(kK, 3.5)}}))
            << coldJunction;
}

TEST(Thermocouple, MakesEveryVoltageNaNWithAColdJunctionOfNaN)
{
    EXPECT_EQ(exactly(convert({1.0, 60.0}, 0, kK, std::nan(""))), exactly({0, {0.0, 0.0}}));
    EXPECT_TRUE(std::isnan(convert({1.0}, 0, 0, std::nan("")).temperature[0]));
}

TEST(Thermocouple, MeasuresTheColdJunctionWhereBothJunctionsHaveOneTemperature)
{
    // Type K from 0 degC to its end: both functions are the published ones but for one digit.
    for (double t = 0.0; t <= 1370.0; t += 0.5)
        EXPECT_NEAR(convert({0.0}, 0, kK, t).temperature[0], t, 0.06) << t;
}

TEST(Thermocouple, AddsTheExponentialTermBelowZeroToo)
{
    // By hand at -1 degC: the polynomial gives -0.039450128 + 0.000023622 + 0.000000329 = -0.039426 mV, and the term is
    // 0.1185976 exp(-1.183432e-4 * 127.9686^2) = 0.017086 mV. Type E has 16.977288 E there, to first order.
    const double e = -0.039426 + 0.017086;
    EXPECT_NEAR(convert({0.0}, 0, 1, -1.0).temperature[0], 16.977288 * e - 0.4351497 * e * e, 2e-4);
}

TEST(Thermocouple, IsAsAccurateAsItsDocumentationSays)
{
    // Largest distance from the polynomials in exact arithmetic, in degC.
    const struct {
        const char* name;
        int type;
        double low;
        double high;
        double accuracy;
    } kRows[] = {
        {"B", 0, 0.033, 13.82, 0.01},
        {"E", 1, -9.8294, 76.3279, 0.005},
        {"J below 0 mV", 2, -8.105, 0.0, 0.01},
        {"J from 0 mV", 2, 0.0, 42.919, 1.5},
        {"J from 42.919 mV", 2, 42.919, 69.563, 0.01},
        {"K", 3, -6.4779, 54.899, 0.02},
        {"R", 4, -0.24, 13.228, 0.005},
        {"S", 5, -0.245, 18.693, 0.05},
        {"T", 6, -6.268, 20.882, 0.001},
        {"N", 7, -4.365, 47.533, 0.005},
    };
    for (const auto& row : kRows) {
        constexpr int kCount = 300000;
        double worst = 0.0;
        Samples emf;
        for (int i = 0; i < kCount; ++i)
            emf.push_back(static_cast<float>(row.low + (row.high - row.low) * i / kCount));
        const Samples temperature = convert(emf, 0, row.type).temperature;
        for (std::size_t i = 0; i < emf.size(); ++i)
            if (emf[i] >= row.low && emf[i] < row.high) {
                const auto exact = reference::celsius<long double>(row.type, static_cast<float>(emf[i]));
                worst =
                    std::max(worst, static_cast<double>(std::abs(static_cast<long double>(temperature[i]) - exact)));
            }
        std::printf("type %s: %.5f degC\n", row.name, worst);
        EXPECT_LE(worst, row.accuracy) << row.name;
    }
}

TEST(Thermocouple, RunsInSeveralThreadsAtOnce)
{
    constexpr int kThreads = 8;
    const Samples emf = shuffledSweep(5000, -6.0, 54.0);
    std::vector<Result> results(kThreads);
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i)
        threads.emplace_back([&, i] { results[static_cast<std::size_t>(i)] = convert(emf, i % 4, i, 20.0); });
    for (std::thread& thread : threads)
        thread.join();
    for (int i = 0; i < kThreads; ++i)
        EXPECT_EQ(exactly(results[static_cast<std::size_t>(i)]), exactly(expected(emf, i % 4, i, 20.0))) << i;
}

} // namespace
} // namespace quordsp
