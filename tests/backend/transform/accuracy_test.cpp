// How exact transforms are: fewer sizes than in accuracy_table.cpp, which makes the table of docs/accuracy.md; and how
// exact that is what they are held against.
#include "backend/transform/accuracy.h"
#include "reference/naive_dft.h"

#include <cstdio>

namespace quordsp::backend {
namespace {

// Sanitizers make this slow, and find nothing in the sizes between.
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
constexpr bool kSanitized = true;
#else
constexpr bool kSanitized = false;
#endif

void expectWithinTheBound(const char* what, Shape shape, const Errors& errors)
{
    EXPECT_LE(errors.largest(), boundFor(shape.size())) << shape.rows << " x " << shape.columns;
    std::printf("%s %zu x %zu: complex %.2f, inverse %.2f, real %.2f, inverse real %.2f\n", what, shape.rows,
                shape.columns, errors.complex, errors.inverse, errors.real, errors.inverseReal);
}

TEST(TransformAccuracy, OfSmallSizesIsWithinTheBound)
{
    for (std::size_t n = 1; n <= 4096; n += kSanitized ? 37 : n < 1024 ? 1 : 5)
        EXPECT_LE(errorsOf({1, n}).largest(), boundFor(n)) << n;
}

TEST(TransformAccuracy, OfLargerSizesIsWithinTheBound)
{
    for (const std::size_t n : {15625u, 16384u, 16807u, 19683u, 65536u, 100003u, 262144u, 1048576u})
        if (!kSanitized || n < 20000)
            expectWithinTheBound("signal", {1, n}, errorsOf({1, n}));
}

TEST(TransformAccuracy, OfMatricesIsWithinTheBound)
{
    for (const Shape shape :
         {Shape{1, 1}, {1, 30}, {30, 1}, {2, 3}, {16, 33}, {40, 24}, {64, 64}, {97, 101}, {240, 320}})
        expectWithinTheBound("matrix", shape, errorsOf(shape, kOfMatrices));
}

// In units of the last place of long double and sqrt(log2 n), over about so many bins.
double errorOfTheReference(std::size_t n, std::size_t bins)
{
    const Signal x = complexNoise(n);
    const reference::Values fast = exactTransform(x, {1, n});
    const reference::NaiveDft definition(n);
    long double error = 0, size = 0;
    for (std::size_t k = 0; k < n; k += 1 + n / bins) {
        const reference::Value exact = definition.bin(x.re, x.im, k), difference = fast[k] - exact;
        error += difference.re * difference.re + difference.im * difference.im;
        size += exact.re * exact.re + exact.im * exact.im;
    }
    return static_cast<double>(std::sqrt(error / size) / std::numeric_limits<long double>::epsilon() /
                               std::sqrt(std::log2(std::max(static_cast<long double>(n), 2.0L))));
}

// Of all bins and both methods; the sums of the definition are themselves off by so much.
TEST(ReferenceFft, AgreesWithTheDefinition)
{
    for (std::size_t n = 1; n <= 300; n += kSanitized ? 7 : 1)
        EXPECT_LE(errorOfTheReference(n, n), 3) << n;
    for (const std::size_t n : {422u, 512u, 729u, 1009u})
        EXPECT_LE(errorOfTheReference(n, n), 6) << n;
}

// Some bins: still a thousand times smaller than what is measured against it.
TEST(ReferenceFft, AgreesWithTheDefinitionInBinsOfLargeSizes)
{
    for (const std::size_t n : {4096u, 10007u, 19683u, 65536u, 100003u})
        EXPECT_LE(errorOfTheReference(n, 20), 25) << n;
}

} // namespace
} // namespace quordsp::backend
