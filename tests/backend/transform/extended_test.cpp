// The transforms of interleaved arrays: sizes of their own, tables, shifts.
#include "backend/transform/definition.h"
#include "backend/transform/signals.h"
#include "data/backend/transform_vectors.inc"

#include <gmock/gmock.h>

#include <limits>
#include <memory>

namespace quordsp::backend {
namespace {

using testing::Each;
using testing::ElementsAre;

constexpr double kTolerance = 2e-15;
constexpr std::size_t kSmallSizes[] = {1, 2, 3, 4, 5, 8, 9, 16, 30, 67, 105, 128, 210};

using Table = std::unique_ptr<FftTable, void (*)(FftTable*)>;

Table tableOf(std::int64_t size)
{
    return {AALFunc260(size), AALFunc261};
}

Complexes spectrumOf(const Array& x, std::int64_t size = 0, int shift = 0, const FftTable* table = nullptr)
{
    Complexes y(size > 0 ? static_cast<std::size_t>(size) : x.size());
    EXPECT_EQ(AALFunc262(x.data(), count(x), size, table, shift, y.data()), Status::Success);
    return y;
}

Complexes spectrumOf(const Complexes& x, std::int64_t size = 0, int shift = 0, const FftTable* table = nullptr)
{
    Complexes y(size > 0 ? static_cast<std::size_t>(size) : x.size());
    EXPECT_EQ(AALFunc263(x.data(), count(x), size, table, shift, y.data()), Status::Success);
    return y;
}

Array realSignalOf(const Complexes& x, int shifted = 0, const FftTable* table = nullptr)
{
    Array y(x.size());
    EXPECT_EQ(AALFunc264(x.data(), count(x), table, shifted, y.data()), Status::Success);
    return y;
}

Complexes signalOf(const Complexes& x, int shifted = 0, const FftTable* table = nullptr)
{
    Complexes y(x.size());
    EXPECT_EQ(AALFunc265(x.data(), count(x), table, shifted, y.data()), Status::Success);
    return y;
}

// One period of each bin's wave, whose spectrum is n in that bin: bin k has the value k + 1 in the sum of all.
Complexes numberedBins(std::size_t n)
{
    Complexes y(n);
    for (std::size_t k = 0; k < n; ++k)
        y[k] = {static_cast<double>(k + 1), 0};
    return signalOf(y);
}

std::vector<int> rounded(const Complexes& y)
{
    std::vector<int> parts;
    for (const Complex value : y)
        parts.push_back(static_cast<int>(std::lround(value.real)));
    return parts;
}

TEST(FftEx, TransformsAHandComputedExamplePaddedAndShifted)
{
    const Complexes expected = {{2, 0}, {-2, 2}, {6, 0}, {-2, -2}};
    EXPECT_EQ(spectrumOf(Array{1, 2, 3}, 4, 1), expected);
    EXPECT_EQ(spectrumOf(Complexes{{1, 0}, {2, 0}, {3, 0}}, 4, 1), expected);
}

TEST(FftEx, ShiftPutsFrequencyZeroAtTheCentre)
{
    EXPECT_THAT(rounded(spectrumOf(numberedBins(4), 0, 1)), ElementsAre(3, 4, 1, 2));    // bins 2, -1, 0, 1
    EXPECT_THAT(rounded(spectrumOf(numberedBins(5), 0, 1)), ElementsAre(4, 5, 1, 2, 3)); // bins -2, -1, 0, 1, 2
    EXPECT_THAT(rounded(spectrumOf(numberedBins(1), 0, 1)), ElementsAre(1));
}

TEST(FftEx, AgreesWithSciPy)
{
    const Complexes small = interleaved({array(kComplex12InRe), array(kComplex12InIm)});
    EXPECT_LT(distance(separated(spectrumOf(small)), {array(kComplex12OutRe), array(kComplex12OutIm)}), kTolerance);
    const Complexes prime = interleaved({array(kComplex67InRe), array(kComplex67InIm)});
    EXPECT_LT(distance(separated(spectrumOf(prime)), {array(kComplex67OutRe), array(kComplex67OutIm)}), kTolerance);
}

TEST(FftEx, AgreesWithTheDefinitionForEverySize)
{
    const Signal x = complexNoise(40);
    for (std::size_t size = 1; size <= 90; ++size) {
        SCOPED_TRACE(size);
        Signal padded = x;
        padded.re.resize(size);
        padded.im.resize(size);
        const Signal expected = spectrumByDefinition(padded);
        const auto n = static_cast<std::int64_t>(size);
        EXPECT_LT(distance(separated(spectrumOf(interleaved(x), n)), expected), kTolerance);
        padded.im.assign(size, 0.0);
        EXPECT_LT(distance(separated(spectrumOf(x.re, n)), spectrumByDefinition(padded)), kTolerance);
    }
}

TEST(FftEx, TakesTheNumberOfSamplesForASizeThatIsNotPositive)
{
    const Array x = noise(9, 1);
    for (const std::int64_t size : {std::int64_t{-1}, std::numeric_limits<std::int64_t>::min()}) {
        EXPECT_EQ(spectrumOf(x, size), spectrumOf(x, 9));
        EXPECT_EQ(spectrumOf(interleaved(complexNoise(9)), size), spectrumOf(interleaved(complexNoise(9)), 9));
    }
}

TEST(FftEx, ReadsNothingBeyondTheSize)
{
    Array x = noise(20, 1);
    x.resize(1'000'000, std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(spectrumOf(x, 20), spectrumOf(noise(20, 1)));
    Complexes z = interleaved(complexNoise(20));
    z.resize(30, {std::numeric_limits<double>::quiet_NaN(), 0});
    EXPECT_EQ(spectrumOf(z, 20), spectrumOf(interleaved(complexNoise(20))));
}

TEST(FftEx, OfARealSignalIsConjugateSymmetricToTheLastBit)
{
    for (const std::size_t n : kSmallSizes) {
        const Complexes y = spectrumOf(noise(n, 1));
        for (std::size_t k = 0; k < n; ++k) {
            EXPECT_EQ(y[k].real, y[(n - k) % n].real) << n;
            EXPECT_EQ(y[k].imaginary, -y[(n - k) % n].imaginary) << n;
        }
    }
}

TEST(FftEx, IsUndoneByTheInverse)
{
    for (const std::size_t n : kSizes)
        for (const int shift : {0, 1, -7}) {
            SCOPED_TRACE(n);
            const Complexes z = interleaved(complexNoise(n));
            EXPECT_LT(distance(separated(signalOf(spectrumOf(z, 0, shift), shift)), complexNoise(n)), kTolerance);
            EXPECT_LT(distance(realSignalOf(spectrumOf(noise(n, 1), 0, shift), shift), noise(n, 1)), kTolerance);
        }
}

TEST(InvFftEx, LooksOnlyAtTheFirstHalfBeforeTheShift)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    for (const std::size_t n : kSmallSizes) {
        Complexes y = spectrumOf(noise(n, 1)), shifted = y;
        for (std::size_t k = 0; k < n; ++k)
            shifted[(k + n / 2) % n] = k <= n / 2 ? y[k] : Complex{nan, nan};
        EXPECT_EQ(realSignalOf(shifted, 1), realSignalOf(y)) << n;
    }
}

TEST(InvFftEx, DividesByTheSizeExactly)
{
    for (const std::size_t n : {3u, 5u, 7u, 11u, 49u}) {
        Complexes y(n);
        y[0] = {static_cast<double>(n), 0};
        EXPECT_THAT(realSignalOf(y), Each(1)) << n;
        EXPECT_THAT(signalOf(y), Each(Complex{1, 0})) << n;
    }
}

TEST(FftTable, ChangesNoBit)
{
    for (const std::size_t n : kSmallSizes) {
        const Table table = tableOf(static_cast<std::int64_t>(n));
        ASSERT_NE(table, nullptr);
        const Complexes z = interleaved(complexNoise(n));
        EXPECT_EQ(spectrumOf(noise(n, 1), 0, 1, table.get()), spectrumOf(noise(n, 1), 0, 1));
        EXPECT_EQ(spectrumOf(z, 0, 1, table.get()), spectrumOf(z, 0, 1));
        EXPECT_EQ(realSignalOf(z, 1, table.get()), realSignalOf(z, 1));
        EXPECT_EQ(signalOf(z, 1, table.get()), signalOf(z, 1));
    }
}

TEST(FftTable, OfAnotherSizeIsIgnored)
{
    const Table table = tableOf(16);
    const Complexes z = interleaved(complexNoise(12));
    EXPECT_EQ(spectrumOf(noise(16, 1), 12, 0, table.get()), spectrumOf(noise(16, 1), 12));
    EXPECT_EQ(spectrumOf(z, 0, 0, table.get()), spectrumOf(z));
    EXPECT_EQ(realSignalOf(z, 0, table.get()), realSignalOf(z));
    EXPECT_EQ(signalOf(z, 0, table.get()), signalOf(z));
}

TEST(FftTable, IsNullForASizeThatIsNotPositiveOrThatNoMemoryHolds)
{
    for (const std::int64_t size : {std::int64_t{0}, std::int64_t{-1}, std::int64_t{1} << 60,
                                    std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()})
        EXPECT_EQ(AALFunc260(size), nullptr) << size;
    AALFunc261(nullptr);
}

TEST(CxSpectrum, AgreesWithSciPy)
{
    const Complexes x = interleaved({array(kComplex12InRe), array(kComplex12InIm)});
    Array s(12), expected(12);
    ASSERT_EQ(AALFunc467(x.data(), 12, s.data()), Status::Success);
    for (std::size_t k = 0; k < 12; ++k)
        expected[k] = (kComplex12OutRe[k] * kComplex12OutRe[k] + kComplex12OutIm[k] * kComplex12OutIm[k]) / 144;
    EXPECT_LT(distance(s, expected), kTolerance);
}

TEST(CxSpectrum, SumsToTheMeanSquare)
{
    for (const std::size_t n : kSizes) {
        const Signal x = complexNoise(n);
        Array s(n);
        ASSERT_EQ(AALFunc467(interleaved(x).data(), count(s), s.data()), Status::Success);
        double sum = 0;
        for (const double value : s)
            sum += value;
        EXPECT_NEAR(sum / (energy(x) / static_cast<double>(n)), 1, 1e-13) << n;
    }
}

TEST(CxSpectrum, DoesNotOverflowWhereTheResultDoesNot)
{
    const Complexes x(4, {0, 1e154});
    Array s(4);
    ASSERT_EQ(AALFunc467(x.data(), 4, s.data()), Status::Success);
    EXPECT_THAT(s, ElementsAre(testing::DoubleEq(1e308), 0, 0, 0));
}

} // namespace
} // namespace quordsp::backend
