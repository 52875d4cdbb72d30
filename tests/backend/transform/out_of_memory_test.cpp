// Allocation n fails, for every n: each entry answers "not enough memory", writes nothing and leaks nothing.
#include "backend/support/failing_new.h"
#include "backend/transform/signals.h"

namespace quordsp::backend {
namespace {

// One for each method: small factors of even and odd size, a large prime.
constexpr std::size_t kMethods[] = {96, 105, 1009};

void expectTransformSurvives(Status (*transform)(Signal&))
{
    for (const std::size_t n : kMethods) {
        Signal x = complexNoise(n);
        const Signal before = x;
        const auto untouched = [&] { return x.re == before.re && x.im == before.im; };
        EXPECT_GT(failEveryAllocation([&] { return transform(x); }, untouched), 0) << n;
    }
}

TEST(TransformOutOfMemory, IsSurvivedByFft)
{
    expectTransformSurvives(fft);
}

TEST(TransformOutOfMemory, IsSurvivedByInvFft)
{
    expectTransformSurvives(inverseFft);
}

TEST(TransformOutOfMemory, IsSurvivedByReFft)
{
    expectTransformSurvives(realFft);
}

TEST(TransformOutOfMemory, IsSurvivedByReInvFft)
{
    expectTransformSurvives(inverseRealFft);
}

TEST(TransformOutOfMemory, IsSurvivedBySpectrum)
{
    expectTransformSurvives([](Signal& x) { return AALFunc161(x.re.data(), count(x.re)); });
}

TEST(TransformOutOfMemory, IsSurvivedByAutoPowerSpectrum)
{
    for (const std::size_t n : kMethods) {
        const Array x = noise(n, 1);
        Array s(n, -1);
        double df = -1;
        EXPECT_GT(failEveryAllocation([&] { return AALFunc10(x.data(), count(x), 1, s.data(), &df); },
                                      [&] { return s == Array(n, -1) && df == -1; }),
                  0);
    }
}

TEST(TransformOutOfMemory, IsSurvivedByAmpPhaseSpectrum)
{
    for (const std::size_t n : kMethods) {
        const Array x = noise(n, 1);
        Signal y = {Array(n, -1), Array(n, -1)};
        double df = -1;
        EXPECT_GT(failEveryAllocation([&] { return AALFunc5(x.data(), count(x), 1, 1, y.re.data(), y.im.data(), &df); },
                                      [&] { return y.re == Array(n, -1) && y.im == Array(n, -1) && df == -1; }),
                  0);
    }
}

// Both run a complex transform of 15 points; only the even size has a step after it.
TEST(TransformOutOfMemory, HasFewerOccasionsInARealTransformOfOddSize)
{
    const auto allocations = [](std::int64_t n) {
        Array re(30, 1), im(30);
        return failEveryAllocation([&] { return AALFunc147(re.data(), im.data(), n); }, [&] { return re[0] == 1; });
    };
    EXPECT_GT(allocations(15), 0);
    EXPECT_LT(allocations(15), allocations(30));
}

} // namespace
} // namespace quordsp::backend
