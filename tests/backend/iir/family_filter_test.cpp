// The one-call filters of every family on signals, real and complex.
#include "backend/support/iir_families.h"
#include "data/backend/iir_family_vectors.inc"
#include "data/backend/iir_vectors.inc"

#include <gmock/gmock.h>

namespace quordsp::test {
namespace {

using testing::DoubleNear;
using testing::Pointwise;
using vectors::kSignal;

TEST(Filter, AgreesWithSciPy)
{
    for (const auto& [order, y] : vectors::kFamilyFiltered)
        EXPECT_THAT(filtered(order, kSignal), Pointwise(DoubleNear(1e-11), y)) << order.family << ' ' << order.type;
}

std::vector<backend::Complex> complexSignal()
{
    std::vector<backend::Complex> x(kSignal.size());
    for (std::size_t i = 0; i < x.size(); ++i)
        x[i] = {kSignal[i], kSignal[x.size() - 1 - i]};
    return x;
}

TEST(Filter, OfAComplexSignalIsTheRealFilterOfEitherPart)
{
    const std::vector<double> backwards(kSignal.rbegin(), kSignal.rend());
    for (Family family : kFamilies)
        for (int type : kTypes) {
            const Order order{family, type, 5};
            std::vector<backend::Complex> x = complexSignal(), y(x.size());
            ASSERT_EQ(filter(order, x.data(), static_cast<std::int64_t>(x.size()), y.data()), Status::Success);
            const std::vector<double> re = filtered(order, kSignal), im = filtered(order, backwards);
            for (std::size_t i = 0; i < y.size(); ++i) {
                EXPECT_EQ(y[i].real, re[i]) << "family " << family << " type " << type;
                EXPECT_EQ(y[i].imaginary, im[i]) << "family " << family << " type " << type;
            }
        }
}

TEST(Filter, OfAComplexSignalReplacesItWhenThereIsNoOutput)
{
    for (Family family : kFamilies)
        for (int type : kTypes) {
            const Order order{family, type, 4};
            std::vector<backend::Complex> x = complexSignal(), y(x.size());
            const auto n = static_cast<std::int64_t>(x.size());
            ASSERT_EQ(filter(order, x.data(), n, y.data()), Status::Success);
            EXPECT_EQ(x[5].real, kSignal[5]) << "the input is only read";
            ASSERT_EQ(filter(order, x.data(), n, static_cast<backend::Complex*>(nullptr)), Status::Success);
            for (std::size_t i = 0; i < y.size(); ++i)
                EXPECT_TRUE(x[i].real == y[i].real && x[i].imaginary == y[i].imaginary);
        }
}

TEST(Filter, OfAComplexSignalChecksItsArgumentsFirst)
{
    backend::Complex x{1, 2};
    backend::Complex* const none = nullptr;
    for (Family family : kFamilies) {
        EXPECT_EQ(filter(Order{family, LowPass, 0}, none, 0, none), Status::CountNotPositive);
        EXPECT_EQ(filter(Order{family, LowPass, 0}, none, 1, none), Status::ArraySize);
        EXPECT_EQ(filter(Order{family, LowPass, 0}, &x, 1, none), Status::OrderNotPositive);
        EXPECT_EQ(filter(Order{family, BandPass, 2, 0.3, 0.2}, &x, 1, none), Status::Band);
    }
    EXPECT_EQ(x.real, 1);
    EXPECT_EQ(x.imaginary, 2);
}

TEST(Filter, WorksInPlaceAndKeepsNoState)
{
    for (Family family : kFamilies)
        for (int type : kTypes) {
            const Order order{family, type, 3};
            std::vector<double> y = kSignal;
            ASSERT_EQ(filter(order, y.data(), static_cast<std::int64_t>(y.size()), y.data()), Status::Success);
            EXPECT_EQ(y, filtered(order, kSignal));
        }
}

} // namespace
} // namespace quordsp::test
