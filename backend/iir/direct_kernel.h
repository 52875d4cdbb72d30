// Filtering in direct form I:
//     y[i] = (b[0] x[i] + b[1] x[i-1] + ... - a[1] y[i-1] - a[2] y[i-2] - ...) / a[0].
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace quordsp::backend {

// The newest samples of a signal: count values from before, then the block in hand.
template <class Sample>
class History {
public:
    History(std::size_t count, std::size_t block, const Sample* past) : values_(count + block), count_{count}
    {
        if (past)
            std::copy_n(past, count, values_.data());
    }

    Sample* block() { return values_.data() + count_; }
    void advance(std::size_t length) { std::copy_n(values_.data() + length, count_, values_.data()); }

    void save(Sample* past) const
    {
        if (past)
            std::copy_n(values_.data(), count_, past);
    }

private:
    std::vector<Sample> values_;
    std::size_t count_;
};

// out[i] = sum of b[j] in[i-j]. Coefficient by coefficient, which leaves the samples of a block independent.
template <class Sample>
void convolve(const Sample* in, std::size_t length, std::span<const double> b, Sample* out)
{
    std::fill_n(out, length, Sample{});
    for (std::size_t j = 0; j < b.size(); ++j)
        for (std::size_t i = 0; i < length; ++i)
            out[i] = out[i] + b[j] * *(in + i - j);
}

// out holds the sums of the inputs and receives the outputs; the newest output comes last in each sum.
template <class Sample>
void recur(Sample* out, std::size_t length, std::span<const double> a)
{
    for (std::size_t i = 0; i < length; ++i) {
        Sample sum = out[i];
        for (std::size_t k = a.size(); k-- > 1;)
            sum = sum - a[k] * *(out + i - k);
        out[i] = sum / a[0];
    }
}

// a is not empty; ya and xb hold the last a.size() - 1 outputs and b.size() - 1 inputs, newest last, before and after;
// null means zeros. x may be y.
template <class Sample>
void filterDirect(const Sample* x, std::int64_t n, std::span<const double> a, Sample* ya, std::span<const double> b,
                  Sample* xb, Sample* y)
{
    constexpr std::int64_t kBlock = 1024;
    History<Sample> inputs(b.empty() ? 0 : b.size() - 1, kBlock, xb);
    History<Sample> outputs(a.size() - 1, kBlock, ya);
    for (std::int64_t done = 0; done < n; done += kBlock) {
        const auto length = static_cast<std::size_t>(std::min(kBlock, n - done));
        std::copy_n(x + done, length, inputs.block());
        convolve(inputs.block(), length, b, outputs.block());
        recur(outputs.block(), length, a);
        std::copy_n(outputs.block(), length, y + done);
        inputs.advance(length);
        outputs.advance(length);
    }
    inputs.save(xb);
    outputs.save(ya);
}

} // namespace quordsp::backend
