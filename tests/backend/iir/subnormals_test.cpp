// The filters end their tails at the smallest normal number, and leave the caller's arithmetic as it was.
#include "backend/support/complex.h"
#include "backend/support/iir.h"

#include <gmock/gmock.h>

#include <cfenv>
#include <cmath>
#include <limits>

namespace quordsp::test {
namespace {

using testing::Each;
using testing::Truly;

bool isZeroOrNormal(double value)
{
    return value == 0 || std::isnormal(value);
}

// A pulse, then nothing or next to nothing.
std::vector<double> pulse(double rest)
{
    std::vector<double> x(20000, rest);
    x[0] = 1;
    return x;
}

using Filtering = std::vector<double> (*)(std::vector<double> x);

std::vector<double> throughCascade(std::vector<double> x)
{
    const Filter filter = cascade(BandPass, 3, 0.1, 0.2);
    backend::AALFunc91(x.data(), lengthOf(x), filter.get(), x.data());
    return x;
}

std::vector<double> throughComplexCascade(std::vector<double> x)
{
    const Filter filter = cascade(LowPass, 7, 0.1, 0);
    ComplexSignal y = complexOf(x);
    backend::AALFunc466(y.data(), lengthOf(y), filter.get(), nullptr, y.data());
    return valuesOf(y);
}

std::vector<double> throughDirectForm(std::vector<double> x)
{
    const double a[] = {1, -1.2, 0.5}, b[] = {0.5, 0.25};
    backend::AALFunc92(x.data(), lengthOf(x), a, nullptr, 3, b, nullptr, 2, x.data());
    return x;
}

std::vector<double> throughComplexDirectForm(std::vector<double> x)
{
    const double a[] = {2, -1.2, 0.5}, b[] = {0.5, 0.25};
    ComplexSignal y = complexOf(x);
    backend::AALFunc354(y.data(), lengthOf(y), a, nullptr, 3, b, nullptr, 2, y.data());
    return valuesOf(y);
}

std::vector<double> bothWays(std::vector<double> x)
{
    const double a[] = {1, -1.2, 0.5}, b[] = {0.5, 0.25};
    backend::AALFunc385(x.data(), lengthOf(x), a, 3, b, 2, x.data());
    return x;
}

constexpr Filtering kFilterings[] = {throughCascade, throughComplexCascade, throughDirectForm, throughComplexDirectForm,
                                     bothWays};

TEST(SubnormalNumbers, EndATail)
{
    for (Filtering filtering : kFilterings) {
        const std::vector<double> y = filtering(pulse(0));
        EXPECT_THAT(y, Each(Truly(isZeroOrNormal)));
        EXPECT_EQ(y.back(), 0);
    }
}

TEST(SubnormalNumbers, CountAsZerosInTheInput)
{
    for (Filtering filtering : kFilterings)
        EXPECT_EQ(filtering(pulse(1e-310)), filtering(pulse(0)));
}

TEST(SubnormalNumbers, RemainInTheArithmeticOfTheCaller)
{
    const volatile double tiny = std::numeric_limits<double>::min(), least = std::numeric_limits<double>::denorm_min();
    for (Filtering filtering : kFilterings) {
        filtering({1, 2});
        EXPECT_GT(tiny / 2, 0);
        EXPECT_GT(least + least, 0);
    }
}

TEST(SubnormalNumbers, LeaveTheRoundingOfTheCallerAlone)
{
    std::fesetround(FE_UPWARD);
    for (Filtering filtering : kFilterings)
        filtering({1, 2});
    const int rounding = std::fegetround();
    std::fesetround(FE_TONEAREST);
    EXPECT_EQ(rounding, FE_UPWARD);
}

} // namespace
} // namespace quordsp::test
