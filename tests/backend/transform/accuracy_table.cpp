// Prints the errors of the transforms for docs/accuracy.md: the largest of every size up to 4096, and of some larger
// ones. Takes a minute.
#include "backend/transform/accuracy.h"

#include <cstdio>
#include <string>

using namespace quordsp::backend;

int main()
{
    Errors worst[2] = {};
    for (std::size_t n = 1; n <= 4096; ++n) {
        const auto [complex, real] = errorsOf(n, 60);
        Errors& sofar = worst[isSmooth(n)];
        sofar = {std::max(sofar.complex, complex), std::max(sofar.real, real)};
    }
    const auto print = [](const char* sizes, Errors errors, double bound) {
        std::printf("| %s | %.2f | %.2f | %.1f |\n", sizes, errors.complex, errors.real, bound);
    };
    print("1..4096, factors 2, 3, 5, 7", worst[1], kSmoothBound);
    print("1..4096, others", worst[0], kOtherBound);
    for (const std::size_t n : {16384u, 16807u, 19683u, 65536u, 100003u, 131071u, 262144u, 1000000u, 1000003u, 1048576u,
                                4782969u, 10000019u, 16777216u})
        print(std::to_string(n).c_str(), errorsOf(n, 8), boundFor(n));
}
