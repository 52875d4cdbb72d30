// Prints the errors of the transforms for docs/accuracy.md: the largest of every size up to 4096, and those of some
// larger ones. Fails if one is beyond its bound. Takes some minutes, and some gigabytes.
#include "backend/transform/accuracy.h"

#include <cstdio>
#include <string>

using namespace quordsp::backend;

namespace {

bool failed = false;

void print(const std::string& sizes, const Errors& errors, double bound)
{
    std::printf("| %s | %.2f | %.2f | %.2f | %.2f | %.1f |\n", sizes.c_str(), errors.complex, errors.inverse,
                errors.real, errors.inverseReal, bound);
    std::fflush(stdout);
    failed = failed || !(errors.largest() <= bound) || testing::Test::HasFailure();
}

void printSmallSizes()
{
    Errors smooth = {}, others = {};
    for (std::size_t n = 1; n <= 4096; ++n)
        (isSmooth(n) ? smooth : others).include(errorsOf({1, n}));
    print("1..4096, factors 2, 3, 5, 7", smooth, kSmoothBound);
    print("1..4096, others", others, kOtherBound);
}

} // namespace

int main()
{
    printSmallSizes();
    for (const std::size_t n : {16384u, 16807u, 19683u, 65536u, 100003u, 131071u, 262144u, 1000000u, 1000003u, 1048576u,
                                4782969u, 10000019u, 16777216u})
        print(std::to_string(n), errorsOf({1, n}), boundFor(n));
    for (const Shape shape : {Shape{64, 64}, {97, 101}, {480, 640}, {1024, 1024}, {1009, 1000}, {2048, 4096}})
        print(std::to_string(shape.rows) + " x " + std::to_string(shape.columns), errorsOf(shape, kOfMatrices),
              boundFor(shape.size()));
    return failed ? 1 : 0;
}
