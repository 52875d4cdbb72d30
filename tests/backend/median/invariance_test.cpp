// What holds for every median filter: order, signs, directions of time, delays.
#include "nianlys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace quordsp::test {
namespace {

using backend::Status;
using Array = std::vector<double>;

Array filtered(const Array& x, std::int64_t left, std::int64_t right)
{
    Array y(x.size());
    EXPECT_EQ(backend::AALFunc407(x.data(), static_cast<std::int64_t>(x.size()), left, right, y.data()),
              Status::Success);
    return y;
}

Array mapped(Array x, double (*map)(double))
{
    for (double& value : x)
        value = map(value);
    return x;
}

constexpr std::int64_t kCount = 1200;

Array noise()
{
    std::minstd_rand random;
    Array x(kCount);
    for (double& value : x)
        value = static_cast<double>(random()) / 1e9 - 1;
    return x;
}

// Many of them alike.
Array steps()
{
    return mapped(noise(), [](double value) { return std::round(4 * value); });
}

struct Ranks {
    std::int64_t left, right;
};

// Windows for networks and longer ones, of odd and of even length.
constexpr Ranks kRanks[] = {{1, 1}, {0, 3}, {4, 2}, {7, 7}, {20, 5}, {31, 32}, {150, 150}, {1100, 900}, {1199, 1199}};

template <class Expect>
void forEveryWindow(Expect expect)
{
    for (const Array& x : {noise(), steps()})
        for (const auto& [left, right] : kRanks) {
            SCOPED_TRACE(testing::Message() << left << ", " << right);
            expect(x, left, right);
        }
}

TEST(EveryMedianFilter, ReversesItsOutputWithItsInputAndItsRanks)
{
    forEveryWindow([](const Array& x, std::int64_t left, std::int64_t right) {
        const Array y = filtered(x, left, right);
        EXPECT_EQ(filtered({x.rbegin(), x.rend()}, right, left), Array(y.rbegin(), y.rend()));
    });
}

TEST(EveryMedianFilter, TurnsItsOutputOverAndDoublesItWithItsInput)
{
    const auto change = [](double value) { return -2 * value; };
    forEveryWindow([=](const Array& x, std::int64_t left, std::int64_t right) {
        EXPECT_EQ(filtered(mapped(x, change), left, right), mapped(filtered(x, left, right), change));
    });
}

// Of an odd number of samples the median is one of them. The map leaves the zeros outside the signal as they are.
TEST(EveryMedianFilter, MapsItsOutputWithItsInput)
{
    forEveryWindow([](const Array& x, std::int64_t left, std::int64_t right) {
        if ((left + right) % 2 == 0)
            EXPECT_EQ(filtered(mapped(x, std::cbrt), left, right), mapped(filtered(x, left, right), std::cbrt));
    });
}

// By so much that the windows of the beginning are those of other blocks.
TEST(EveryMedianFilter, DelaysItsOutputWithItsInput)
{
    forEveryWindow([](const Array& x, std::int64_t left, std::int64_t right) {
        Array later(2 * kCount + 7);
        std::copy(x.begin(), x.end(), later.end() - kCount);
        const Array y = filtered(later, left, right);
        EXPECT_EQ(Array(y.end() - kCount, y.end()), filtered(x, left, right));
    });
}

} // namespace
} // namespace quordsp::test
