// Every complex export with each of the caller's arrays at an unreadable page: one that touches an element more
// crashes. What is documented as only read lies in read-only memory.
#include <deque>

#include "complex/complex_fixture.h"
#include "support/guarded_buffer.h"

namespace quordsp::complex_exports {
namespace {

using support::Edge;

class ComplexGuardPages : public AnsweredComplexExports {
protected:
    static constexpr std::size_t kLargest = 257;

    Split input(std::size_t pair, std::size_t n, Edge edge)
    {
        return {buffers_[pair].input(signal_, n, edge).data(), buffers_[pair + 1].input(signal_, n, edge).data()};
    }
    Split output(std::size_t pair, std::size_t n, Edge edge)
    {
        return {buffers_[pair].output(n, edge, kUntouched).data(),
                buffers_[pair + 1].output(n, edge, kUntouched).data()};
    }

    void callAtEdge(const Export& row, std::size_t n, Edge edge)
    {
        const Split out = output(6, n, edge);
        call(row, {static_cast<int>(n), 300, 300, input(0, n, edge), input(2, n, edge), input(4, n, edge), out});
        for (std::size_t i = 0; i < n && row.hasOutput(); ++i) {
            const Sample expected =
                row.has('x') ? answerTo(Sample{signal_[i], signal_[i]}) : answerTo(static_cast<int>(i));
            ASSERT_EQ((Sample{out.re[i], out.im[i]}), expected) << row.name << " of " << n << ", at " << i;
        }
    }

private:
    static constexpr double kUntouched = 12345.678;
    const std::vector<double> signal_ = noise(kLargest);
    std::deque<support::GuardedBuffer<double>> buffers_ = [] {
        std::deque<support::GuardedBuffer<double>> buffers;
        for (int i = 0; i < 8; ++i)
            buffers.emplace_back(kLargest);
        return buffers;
    }();
};

TEST_F(ComplexGuardPages, OfEveryExport)
{
    for (const Export& row : exports())
        for (const Edge edge : support::kEdges)
            for (const std::size_t n : {0u, 1u, 2u, 3u, 4u, 5u, 7u, 8u, 9u, 15u, 16u, 17u, 64u, 257u})
                callAtEdge(row, n, edge);
}

TEST_F(ComplexGuardPages, OfParksMcClellan)
{
    const auto design = support::library().function<decltype(QuorDSP_Parks_McClellanCoef)>(kParksMcClellan);
    for (const Edge edge : support::kEdges)
        for (const std::size_t bands : {0u, 1u, 2u, 5u, 257u}) {
            const Split low = input(0, bands, edge), high = input(2, bands, edge);
            EXPECT_EQ(design(3, 1.0, low.re, low.im, high.re, high.im, static_cast<int>(bands), 0, nullptr, nullptr),
                      20032);
        }
}

} // namespace
} // namespace quordsp::complex_exports
