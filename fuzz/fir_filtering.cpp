#include "QuorDSP_DAQ.h"
#include "targets.h"

#include <algorithm>

namespace quordsp::fuzz {
namespace {

using Samples = std::vector<double>;

struct Filter {
    Samples h;
    Samples state; // before the first sample

    int taps() const { return sizeOf(h); }
};

// Blocks of a length that the bytes say, with the state carried on.
Samples byBlocks(Bytes& bytes, const Filter& filter, const Samples& x, Samples& state)
{
    Samples y(x.size());
    state = filter.state;
    for (std::size_t done = 0; done < x.size();) {
        const auto length = std::min(static_cast<std::size_t>(bytes.between(1, 40)), x.size() - done);
        require(QuorDSP_FIRFiltering(x.data() + done, static_cast<int>(length), filter.h.data(), state.data(),
                                     filter.taps(), y.data() + done) == QUORDSP_SUCCESS,
                "status 0");
        done += length;
    }
    return y;
}

Samples plainLoop(const Filter& filter, const Samples& x)
{
    Samples past = filter.state, y = x;
    past.insert(past.end(), x.begin(), x.end());
    for (std::size_t i = 0; i < x.size() && !filter.h.empty(); ++i) {
        y[i] = filter.h[0] * x[i];
        for (std::size_t j = 1; j < filter.h.size(); ++j)
            y[i] += filter.h[j] * past[filter.state.size() + i - j];
    }
    return y;
}

Samples lastInputs(const Filter& filter, const Samples& x)
{
    Samples past = filter.state;
    past.insert(past.end(), x.begin(), x.end());
    return {past.end() - static_cast<std::ptrdiff_t>(filter.state.size()), past.end()};
}

// The export reads as much of a state as there are samples.
Samples complexFiltered(const Filter& filter, const Samples& x)
{
    Samples state = filter.state, ignored(x.size()), y(x.size());
    state.resize(x.size());
    require(QuorDSP_FIRFiltering_CxInput(x.data(), ignored.data(), sizeOf(x), filter.h.data(), state.data(),
                                         ignored.data(), filter.taps(), y.data(), ignored.data()) == QUORDSP_SUCCESS,
            "status 0");
    return y;
}

} // namespace

// The same bits in one block, in many, in place and as part of a complex signal; those of the plain loop where no
// number is subnormal; and the last inputs as the state.
void fir_filtering(Bytes bytes)
{
    const bool isNice = bytes.byte() % 2 == 0;
    const auto numbers = [&](int count) { return isNice ? bytes.niceNumbers(count) : bytes.numbers(count); };
    Filter filter{numbers(bytes.between(0, 30)), {}};
    filter.state = numbers(std::max(filter.taps() - 1, 0));
    const Samples x = numbers(bytes.between(1, 120));

    Samples y = x, state = filter.state, stateByBlocks;
    require(QuorDSP_FIRFiltering(y.data(), sizeOf(y), filter.h.data(), state.data(), filter.taps(), y.data()) ==
                QUORDSP_SUCCESS,
            "status 0");
    require(areSame(state, lastInputs(filter, x)), "the last inputs");
    require(areSame(byBlocks(bytes, filter, x, stateByBlocks), y), "the same by blocks");
    require(areSame(stateByBlocks, state), "the same state by blocks");
    if (isNice)
        require(areSame(plainLoop(filter, x), y), "the bits of the plain loop");
    if (filter.state.size() <= x.size())
        require(areSame(complexFiltered(filter, x), y), "the same in a complex signal");
}

} // namespace quordsp::fuzz
