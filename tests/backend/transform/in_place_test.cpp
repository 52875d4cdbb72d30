// Transforms of split signals through the library, with the module itself: they may write to an array that they read,
// as the public header says, and give the same then.
#include "QuorDSP_DAQ.h"
#include "support/integer_signal.h"

#include <gtest/gtest.h>

namespace quordsp {
namespace {

using Array = std::vector<double>;

struct Signal {
    Array re;
    Array im;
};

constexpr int kSizes[] = {1, 2, 15, 16, 67, 1000, 1009, 40000};

// Calls body with a size and a signal of it, for every size.
template <class Body>
void forEverySize(Body body)
{
    for (const int n : kSizes) {
        SCOPED_TRACE(n);
        const auto size = static_cast<std::size_t>(n);
        body(n, Signal{noise(size, 1), noise(size, 2)});
    }
}

// out: one array.
void expectTheSameInPlaceOfEither(auto transform)
{
    forEverySize([&](int n, const Signal& x) {
        Array expected(x.re.size());
        ASSERT_EQ(transform(x.re.data(), x.im.data(), n, expected.data()), QUORDSP_SUCCESS);
        Signal first = x, second = x;
        EXPECT_EQ(transform(first.re.data(), first.im.data(), n, first.re.data()), QUORDSP_SUCCESS);
        EXPECT_EQ(first.re, expected);
        EXPECT_EQ(first.im, x.im);
        EXPECT_EQ(transform(second.re.data(), second.im.data(), n, second.im.data()), QUORDSP_SUCCESS);
        EXPECT_EQ(second.im, expected);
        EXPECT_EQ(second.re, x.re);
    });
}

// out: real and imaginary parts.
void expectTheSameInPlaceOfBoth(auto transform)
{
    forEverySize([&](int n, const Signal& x) {
        Signal expected = x;
        ASSERT_EQ(transform(x.re.data(), x.im.data(), n, expected.re.data(), expected.im.data()), QUORDSP_SUCCESS);
        Signal same = x, exchanged = x;
        EXPECT_EQ(transform(same.re.data(), same.im.data(), n, same.re.data(), same.im.data()), QUORDSP_SUCCESS);
        EXPECT_EQ(same.re, expected.re);
        EXPECT_EQ(same.im, expected.im);
        EXPECT_EQ(transform(exchanged.re.data(), exchanged.im.data(), n, exchanged.im.data(), exchanged.re.data()),
                  QUORDSP_SUCCESS);
        EXPECT_EQ(exchanged.im, expected.re);
        EXPECT_EQ(exchanged.re, expected.im);
    });
}

TEST(TransformInPlace, OfCxSpectrumGivesTheSame)
{
    expectTheSameInPlaceOfEither(QuorDSP_CxSpectrum);
}

TEST(TransformInPlace, OfInvFFTExGivesTheSame)
{
    for (const int shifted : {0, 1})
        expectTheSameInPlaceOfEither([&](const double* re, const double* im, int n, double* out) {
            return QuorDSP_InvFFTEx(re, im, n, nullptr, shifted, out);
        });
}

TEST(TransformInPlace, OfCxFFTExGivesTheSame)
{
    for (const int shift : {0, 1})
        expectTheSameInPlaceOfBoth([&](const double* re, const double* im, int n, double* outRe, double* outIm) {
            return QuorDSP_CxFFTEx(re, im, n, 0, nullptr, shift, outRe, outIm);
        });
}

TEST(TransformInPlace, OfCxInvFFTExGivesTheSame)
{
    for (const int shifted : {0, 1})
        expectTheSameInPlaceOfBoth([&](const double* re, const double* im, int n, double* outRe, double* outIm) {
            return QuorDSP_CxInvFFTEx(re, im, n, nullptr, shifted, outRe, outIm);
        });
}

TEST(TransformInPlace, OfFFTExGivesTheSame)
{
    forEverySize([&](int n, const Signal& x) {
        Signal expected = x;
        ASSERT_EQ(QuorDSP_FFTEx(x.re.data(), n, 0, nullptr, 1, expected.re.data(), expected.im.data()),
                  QUORDSP_SUCCESS);
        Signal same = x;
        EXPECT_EQ(QuorDSP_FFTEx(same.re.data(), n, 0, nullptr, 1, same.re.data(), same.im.data()), QUORDSP_SUCCESS);
        EXPECT_EQ(same.re, expected.re);
        EXPECT_EQ(same.im, expected.im);
    });
}

} // namespace
} // namespace quordsp
