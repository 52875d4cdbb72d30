// The two-dimensional transforms, against the definition along rows and then along columns.
#include "backend/transform/definition.h"

#include <gmock/gmock.h>

#include <limits>

namespace quordsp::backend {
namespace {

constexpr double kTolerance = 2e-15;

struct Size {
    std::size_t rows;
    std::size_t columns;
};
constexpr Size kMatrices[] = {{1, 1},   {1, 9},   {9, 1},   {2, 2},   {3, 4},   {4, 3},  {5, 7},
                              {8, 16},  {16, 8},  {17, 33}, {20, 31}, {12, 67}, {67, 4}, {30, 130},
                              {1, 130}, {130, 1}, {3, 67},  {200, 3}, {16, 32}};

std::int64_t wide(std::size_t n)
{
    return static_cast<std::int64_t>(n);
}

struct Matrix {
    Size size;
    Complexes values;

    Complex& at(std::size_t i, std::size_t j) { return values[i * size.columns + j]; }
    Complex at(std::size_t i, std::size_t j) const { return values[i * size.columns + j]; }
};

Matrix transposed(const Matrix& x)
{
    Matrix y = {{x.size.columns, x.size.rows}, Complexes(x.values.size())};
    for (std::size_t i = 0; i < x.size.rows; ++i)
        for (std::size_t j = 0; j < x.size.columns; ++j)
            y.at(j, i) = x.at(i, j);
    return y;
}

Matrix transformedRows(Matrix x)
{
    for (std::size_t i = 0; i < x.size.rows; ++i) {
        const auto start = x.values.begin() + wide(i * x.size.columns);
        const Complexes row(start, start + wide(x.size.columns));
        const Complexes bins = interleaved(spectrumByDefinition(separated(row)));
        std::copy(bins.begin(), bins.end(), start);
    }
    return x;
}

Signal byDefinition(const Matrix& x)
{
    return separated(transposed(transformedRows(transposed(transformedRows(x)))).values);
}

Matrix resized(const Matrix& x, Size size)
{
    Matrix y = {size, Complexes(size.rows * size.columns)};
    for (std::size_t i = 0; i < std::min(size.rows, x.size.rows); ++i)
        for (std::size_t j = 0; j < std::min(size.columns, x.size.columns); ++j)
            y.at(i, j) = x.at(i, j);
    return y;
}

// Bin k of n stands at k + floor(n/2), modulo n.
Matrix shifted(const Matrix& x)
{
    Matrix y = x;
    const auto [rows, columns] = x.size;
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j)
            y.at((i + rows / 2) % rows, (j + columns / 2) % columns) = x.at(i, j);
    return y;
}

Matrix noiseMatrix(Size size)
{
    return {size, interleaved(complexNoise(size.rows * size.columns))};
}

Array realParts(const Matrix& x)
{
    return separated(x.values).re;
}

Matrix withoutImaginaryParts(Matrix x)
{
    for (Complex& value : x.values)
        value.imaginary = 0;
    return x;
}

Matrix spectrumOf(const Matrix& x, Size size, int shift = 0)
{
    Matrix y = {size, Complexes(size.rows * size.columns)};
    EXPECT_EQ(AALFunc267(x.values.data(), wide(x.size.rows), wide(x.size.columns), wide(size.rows), wide(size.columns),
                         shift, y.values.data()),
              Status::Success);
    return y;
}

Matrix spectrumOfReal(const Matrix& x, Size size, int shift = 0)
{
    Matrix y = {size, Complexes(size.rows * size.columns)};
    EXPECT_EQ(AALFunc266(realParts(x).data(), wide(x.size.rows), wide(x.size.columns), wide(size.rows),
                         wide(size.columns), shift, y.values.data()),
              Status::Success);
    return y;
}

Matrix signalOf(const Matrix& x, int isShifted = 0)
{
    Matrix y = x;
    EXPECT_EQ(AALFunc269(x.values.data(), wide(x.size.rows), wide(x.size.columns), isShifted, y.values.data()),
              Status::Success);
    return y;
}

Array realSignalOf(const Matrix& x, int isShifted = 0)
{
    Array y(x.values.size());
    EXPECT_EQ(AALFunc268(x.values.data(), wide(x.size.rows), wide(x.size.columns), isShifted, y.data()),
              Status::Success);
    return y;
}

TEST(Fft2D, TransformsAHandComputedExample)
{
    const Matrix x = {{2, 2}, {{1, 0}, {2, 0}, {3, 0}, {4, 0}}};
    const Complexes expected = {{10, 0}, {-2, 0}, {-4, 0}, {0, 0}};
    EXPECT_EQ(spectrumOf(x, x.size).values, expected);
    EXPECT_EQ(spectrumOfReal(x, x.size).values, expected);
}

TEST(Fft2D, AgreesWithTheDefinition)
{
    for (const Size size : kMatrices) {
        SCOPED_TRACE(testing::Message() << size.rows << " x " << size.columns);
        const Matrix x = noiseMatrix(size);
        EXPECT_LT(distance(separated(spectrumOf(x, size).values), byDefinition(x)), kTolerance);
        EXPECT_LT(distance(separated(spectrumOfReal(x, size).values), byDefinition(withoutImaginaryParts(x))),
                  kTolerance);
    }
}

TEST(Fft2D, OfASingleRowOrColumnIsTheTransformOfASignal)
{
    constexpr std::size_t kCount = 90;
    const Matrix row = noiseMatrix({1, kCount}), column = {{kCount, 1}, row.values};
    Signal expected = separated(row.values), real = {expected.re, Array(kCount)};
    ASSERT_EQ(fft(expected), Status::Success);
    ASSERT_EQ(realFft(real), Status::Success);
    for (const Matrix& x : {row, column}) {
        EXPECT_EQ(spectrumOf(x, x.size).values, interleaved(expected));
        EXPECT_EQ(spectrumOfReal(x, x.size).values, interleaved(real));
    }
}

TEST(Fft2D, CutsAndPadsBothAxes)
{
    const Matrix x = noiseMatrix({12, 19});
    for (const Size size :
         {Size{12, 40}, Size{30, 19}, Size{5, 7}, Size{5, 40}, Size{30, 7}, Size{1, 40}, Size{30, 1}, Size{1, 1}}) {
        SCOPED_TRACE(testing::Message() << size.rows << " x " << size.columns);
        const Matrix same = resized(x, size);
        EXPECT_EQ(spectrumOf(x, size).values, spectrumOf(same, size).values);
        EXPECT_EQ(spectrumOfReal(x, size).values, spectrumOfReal(same, size).values);
    }
}

TEST(Fft2D, TakesTheSizeOfTheMatrixForASizeThatIsNotPositive)
{
    const Matrix x = noiseMatrix({3, 5});
    Matrix y = x;
    for (const std::int64_t none : {std::int64_t{0}, std::numeric_limits<std::int64_t>::min()}) {
        ASSERT_EQ(AALFunc267(x.values.data(), 3, 5, none, none, 0, y.values.data()), Status::Success);
        EXPECT_EQ(y.values, spectrumOf(x, x.size).values);
        ASSERT_EQ(AALFunc266(realParts(x).data(), 3, 5, none, none, 0, y.values.data()), Status::Success);
        EXPECT_EQ(y.values, spectrumOfReal(x, x.size).values);
    }
}

TEST(Fft2D, ShiftPutsFrequencyZeroAtTheCentreOfBothAxes)
{
    for (const Size size : kMatrices) {
        SCOPED_TRACE(testing::Message() << size.rows << " x " << size.columns);
        const Matrix x = noiseMatrix(size);
        EXPECT_EQ(spectrumOf(x, size, 1).values, shifted(spectrumOf(x, size)).values);
        EXPECT_EQ(spectrumOfReal(x, size, -1).values, shifted(spectrumOfReal(x, size)).values);
    }
}

TEST(Fft2D, OfARealMatrixIsConjugateSymmetricToTheLastBit)
{
    for (const Size size : kMatrices) {
        const Matrix y = spectrumOfReal(noiseMatrix(size), size);
        for (std::size_t i = 0; i < size.rows; ++i)
            for (std::size_t j = 0; j < size.columns; ++j) {
                const Complex opposite = y.at((size.rows - i) % size.rows, (size.columns - j) % size.columns);
                ASSERT_EQ(y.at(i, j), (Complex{opposite.real, -opposite.imaginary}))
                    << size.rows << ' ' << i << ' ' << j;
            }
    }
}

TEST(Fft2D, IsUndoneByTheInverse)
{
    for (const Size size : kMatrices)
        for (const int shift : {0, 1}) {
            SCOPED_TRACE(testing::Message() << size.rows << " x " << size.columns);
            const Matrix x = noiseMatrix(size);
            EXPECT_LT(distance(separated(signalOf(spectrumOf(x, size, shift), shift).values), separated(x.values)),
                      kTolerance);
            EXPECT_LT(distance(realSignalOf(spectrumOfReal(x, size, shift), shift), realParts(x)), kTolerance);
        }
}

TEST(InvFft2D, LooksOnlyAtTheFirstHalfOfTheRowsBeforeTheShift)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    for (const Size size : kMatrices) {
        Matrix y = spectrumOfReal(noiseMatrix(size), size);
        const Array expected = realSignalOf(y);
        for (std::size_t i = size.rows / 2 + 1; i < size.rows; ++i)
            for (std::size_t j = 0; j < size.columns; ++j)
                y.at(i, j) = {nan, nan};
        EXPECT_EQ(realSignalOf(shifted(y), 1), expected) << size.rows << " x " << size.columns;
    }
}

TEST(InvFft2D, OfAnySpectrumIsTheRealPartWhereRowsAreTheirOwnMirrorImage)
{
    const Matrix y = noiseMatrix({2, 6});
    EXPECT_LT(distance(realSignalOf(y), separated(signalOf(y).values).re), kTolerance);
}

} // namespace
} // namespace quordsp::backend
