// Sixteen threads call the same export at once, on different data, from its first call on.
#include <thread>

#include "complex/complex_fixture.h"
#include "support/starting_line.h"

namespace quordsp::complex_exports {
namespace {

constexpr int kThreads = 16;
constexpr int kRepetitions = 5;

// How many calls gave what they should.
int countRight(const Export& row, support::Module::Symbol exported, int thread)
{
    int right = 0;
    for (int i = 0; i < kRepetitions; ++i) {
        Arrays arrays{100 + 7 * thread, static_cast<std::uint32_t>(100 * thread + i)};
        const Arrays before = arrays;
        const std::string status = readyCall(row, exported, arrays.call())();
        right += status == statusText(0) && arrays == answered(row, before);
    }
    return right;
}

class ComplexThreads : public ComplexExports {
protected:
    ComplexThreads()
    {
        loadBackend("backend");
        answerCalls();
    }
};

TEST_F(ComplexThreads, GetTheirOwnResults)
{
    for (const Export& row : exports()) {
        const auto exported = support::library().symbol(row.name);
        std::vector<int> right(kThreads);
        support::StartingLine start{kThreads};
        {
            std::vector<std::jthread> threads;
            for (int thread = 0; thread < kThreads; ++thread)
                threads.emplace_back([&, thread] {
                    start.arriveAndWait();
                    right[static_cast<std::size_t>(thread)] = countRight(row, exported, thread);
                });
        }
        EXPECT_EQ(right, std::vector<int>(kThreads, kRepetitions)) << row.name;
    }
}

// Each thread's bands, as the backend found them.
TEST_F(ComplexThreads, DesignFromTheirOwnBands)
{
    fakes::stage().onCall = [](std::string_view, const fakes::Arguments& arguments) {
        const auto* const bands = arguments.at<const double*>(2);
        std::copy_n(bands, 4 * arguments.at<std::int64_t>(3), arguments.at<double*>(5));
    };
    const auto design = support::library().function<decltype(QuorDSP_Parks_McClellanCoef)>(kParksMcClellan);
    std::vector<int> right(kThreads);
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < kThreads; ++thread)
            threads.emplace_back([&, thread] {
                double a[] = {1.0 + thread, 5}, b[] = {2, 6.0 - thread}, c[] = {3, 7}, d[] = {4, 8};
                double out[8] = {};
                design(1, 1.0, a, b, c, d, 2, 0, out, out);
                const double expected[] = {a[0], b[0], c[0], d[0], a[1], b[1], c[1], d[1]};
                right[static_cast<std::size_t>(thread)] = std::ranges::equal(out, expected);
            });
    }
    EXPECT_EQ(right, std::vector<int>(kThreads, 1));
}

} // namespace
} // namespace quordsp::complex_exports
