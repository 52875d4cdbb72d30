// What the designing entries of the other families answer to bad arguments, in which order, and that they then write
// nothing.
#include "backend/support/iir_families.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace quordsp::test {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Of the one-call filter, the coefficients and the cascade; each must have left its outputs alone.
std::vector<Status> answers(const Order& order)
{
    const double x[] = {1, 2};
    double y[] = {7, 7};
    const Status one = filter(order, x, 2, y);
    EXPECT_THAT(y, testing::Each(7));

    std::vector<double> a(9, 7.0), b(9, 7.0);
    const int count = order.order * (order.type < BandPass ? 1 : 2) + 1;
    const Status two = directInto(order, a.data(), count, b.data(), count);
    EXPECT_THAT(a, testing::Each(7));
    EXPECT_THAT(b, testing::Each(7));

    const Filter record = allocate(order.type, order.order);
    record->reset = 0;
    const Status three = cascadeInto(order, record.get());
    EXPECT_EQ(record->reset, 0);
    EXPECT_THAT(std::vector(record->forward, record->forward + record->forwardCount), testing::Each(0));
    return {one, two, three};
}

TEST(FilterArguments, OfTheFrequenciesAreRejectedWithTheirCode)
{
    for (Family family : kFamilies)
        for (int type : kTypes)
            for (const auto& [fs, fl, fh] : {std::array{1.0, 0.0, 0.3},
                                             {1.0, 0.5, 0.6},
                                             {0.0, 0.1, 0.3},
                                             {-1.0, 0.1, 0.3},
                                             {kNaN, 0.1, 0.3},
                                             {1.0, kNaN, 0.3}})
                EXPECT_THAT(answers({family, type, 3, fl, fh, 0.5, 50, fs}),
                            testing::Each(type < BandPass ? Status::Cutoff : Status::Band));
    for (Family family : kFamilies)
        EXPECT_THAT(answers({family, BandStop, 3, 0.3, 0.2}), testing::Each(Status::Band));
}

TEST(FilterArguments, OfTheTolerancesAreRejectedWithTheirCodes)
{
    for (int type : kTypes)
        for (double bad : {0.0, -1.0, -0.0, kNaN, -kInfinity}) {
            EXPECT_THAT(answers({Chebyshev, type, 3, 0.1, 0.3, bad, 50}), testing::Each(Status::RippleNotPositive));
            EXPECT_THAT(answers({InverseChebyshev, type, 3, 0.1, 0.3, 1, bad}),
                        testing::Each(Status::AttenuationNotPositive));
            EXPECT_THAT(answers({Elliptic, type, 3, 0.1, 0.3, bad, 50}), testing::Each(Status::RippleNotPositive));
            EXPECT_THAT(answers({Elliptic, type, 3, 0.1, 0.3, 1, bad}), testing::Each(Status::AttenuationNotPositive));
        }
    for (double attenuation : {1.0, 0.5, 5e-324})
        EXPECT_THAT(answers({Elliptic, LowPass, 3, 0.1, 0.3, 1, attenuation}),
                    testing::Each(Status::AttenuationBelowRipple));
    EXPECT_THAT(answers({Elliptic, LowPass, 3, 0.1, 0.3, kInfinity, kInfinity}),
                testing::Each(Status::AttenuationBelowRipple));
}

TEST(FilterArguments, AreReportedInTheOrderOfTheHeader)
{
    double x = 1, y = 7;
    for (int type : kTypes) {
        Order order{Elliptic, type, 0, 0, 0, 0, 0, 0};
        EXPECT_EQ(filter(order, static_cast<const double*>(nullptr), 0, nullptr), Status::CountNotPositive);
        EXPECT_EQ(filter(order, static_cast<const double*>(nullptr), 1, &y), Status::ArraySize);
        EXPECT_EQ(filter(order, &x, 1, &y), Status::OrderNotPositive);
        order.order = 2;
        EXPECT_EQ(filter(order, &x, 1, &y), type < BandPass ? Status::Cutoff : Status::Band);
        order.fs = 1, order.fl = 0.1, order.fh = 0.2;
        EXPECT_EQ(filter(order, &x, 1, &y), Status::RippleNotPositive);
        order.ripple = 2;
        EXPECT_EQ(filter(order, &x, 1, &y), Status::AttenuationNotPositive);
        order.attenuation = 1;
        EXPECT_EQ(filter(order, &x, 1, &y), Status::AttenuationBelowRipple);
    }
    EXPECT_EQ(y, 7);
}

TEST(FilterArguments, OfTheCoefficientsEndWithTheSelectorAndTheLengths)
{
    double a[3] = {7, 7, 7}, b[3] = {7, 7, 7};
    for (Family family : kFamilies) {
        EXPECT_EQ(directInto({family, 4, 2}, a, 5, b, 5), Status::InvalidSelection);
        EXPECT_EQ(directInto({family, -1, 2}, a, 5, b, 5), Status::InvalidSelection);
        EXPECT_EQ(directInto({family, LowPass, 2}, a, 3, b, 4), Status::ArraySize);
        EXPECT_EQ(directInto({family, LowPass, 2}, nullptr, 3, b, 3), Status::ArraySize);
        EXPECT_EQ(cascadeInto({family, LowPass, 2}, nullptr), Status::IirFilter);
    }
    EXPECT_EQ(directInto({Elliptic, 4, 2, 0.1, 0.3, 1, 0.5}, a, 5, b, 5), Status::AttenuationBelowRipple);
    EXPECT_THAT(a, testing::Each(7));
    EXPECT_THAT(b, testing::Each(7));
}

TEST(FilterArguments, BeyondWhatDoubleHoldsFailTheDesign)
{
    for (int type : kTypes) {
        EXPECT_THAT(answers({Chebyshev, type, 4, 0.1, 0.3, kInfinity}), testing::Each(Status::DesignFailed));
        EXPECT_THAT(answers({Chebyshev, type, 4, 0.1, 0.3, 4000}), testing::Each(Status::DesignFailed));
        EXPECT_THAT(answers({InverseChebyshev, type, 4, 0.1, 0.3, 1, 4000}), testing::Each(Status::DesignFailed));
        EXPECT_THAT(answers({Elliptic, type, 4, 0.1, 0.3, 1, kInfinity}), testing::Each(Status::DesignFailed));
    }
}

TEST(FilterArguments, OfAnOrderTooHighAreAnsweredSoon)
{
    double x = 1, y = 7;
    for (Family family : kFamilies) {
        EXPECT_EQ(filter(Order{family, LowPass, 1 << 30}, &x, 1, &y), Status::OutOfMemory);
        EXPECT_EQ(filter(Order{family, BandPass, (1 << 20) + 1}, &x, 1, &y), Status::OutOfMemory);
    }
    EXPECT_EQ(filter(Order{Bessel, LowPass, 1 << 20}, &x, 1, &y), Status::DesignFailed);
    EXPECT_EQ(filter(Order{Elliptic, LowPass, 1 << 16}, &x, 1, &y), Status::DesignFailed);
    EXPECT_EQ(y, 7);
}

} // namespace
} // namespace quordsp::test
