#include "QuorDSP_DAQ.h"
#include "targets.h"

#include <algorithm>

namespace quordsp::fuzz {
namespace {

using Samples = std::vector<double>;

// Calls filter(x, n, y) for the whole signal or for blocks of it.
template <class Filter>
Samples inBlocks(const Samples& x, int block, Filter filter)
{
    Samples y(x.size());
    for (int done = 0; done < sizeOf(x); done += block)
        require(filter(x.data() + done, std::min(block, sizeOf(x) - done), y.data() + done) == 0, "status 0");
    return y;
}

Samples reversed(Samples x)
{
    std::reverse(x.begin(), x.end());
    return x;
}

struct Coefficients {
    Samples a, b;
};

Samples direct(const Coefficients& of, Samples pastOutputs, Samples pastInputs, const Samples& x, int block)
{
    return inBlocks(x, block, [&](const double* in, int n, double* out) {
        return QuorDSP_IIRFiltering(in, n, of.a.data(), pastOutputs.data(), sizeOf(of.a), of.b.data(),
                                    pastInputs.data(), sizeOf(of.b), out);
    });
}

void directForms(Bytes& bytes, const Samples& x, int block)
{
    const Coefficients of{bytes.numbers(bytes.between(1, 12)), bytes.numbers(bytes.between(0, 12))};
    const Samples pastOutputs = bytes.numbers(12), pastInputs = bytes.numbers(12);
    Samples y(x.size(), -7.0);
    const int status =
        QuorDSP_ZeroPhaseFiltering(x.data(), sizeOf(x), of.a.data(), sizeOf(of.a), of.b.data(), sizeOf(of.b), y.data());
    if (of.a[0] == 0) {
        require(status == -20060, "the documented status");
        require(y == Samples(x.size(), -7.0), "nothing is written");
        return;
    }
    require(status == 0, "status 0");
    require(areSame(direct(of, pastOutputs, pastInputs, x, block), direct(of, pastOutputs, pastInputs, x, sizeOf(x))),
            "the same in blocks");
    const Samples zeros(12);
    const auto once = [&](const Samples& signal) { return direct(of, zeros, zeros, signal, sizeOf(x)); };
    require(areSame(y, reversed(once(reversed(once(x))))), "two passes of the causal filter");
}

Samples cascade(int type, int order, const Coefficients& of, Samples state, const Samples& x, int block)
{
    Coefficients own = of;
    QuorDSP_IIRFilter filter{type,         order,         0,           sizeOf(own.a), own.a.data(), sizeOf(own.b),
                             own.b.data(), sizeOf(state), state.data()};
    return inBlocks(x, block, [&](const double* in, int n, double* out) {
        return QuorDSP_IIRCascadeFiltering(in, n, &filter, out);
    });
}

void cascades(Bytes& bytes, const Samples& x, int block)
{
    const int type = bytes.between(0, 3), order = bytes.between(1, 20), degree = type < 2 ? 2 : 4;
    const int sections = (order + 1) / 2;
    const Coefficients of{bytes.numbers(sections * degree), bytes.numbers(sections * (degree + 1))};
    const Samples state = bytes.numbers(sections * degree);
    require(areSame(cascade(type, order, of, state, x, block), cascade(type, order, of, state, x, sizeOf(x))),
            "the same in blocks");
}

} // namespace

// Whatever the coefficients and states, blocks give the bits of the whole signal.
void iir_filtering(Bytes bytes)
{
    Samples x = bytes.numbers(bytes.between(1, 100));
    const int block = bytes.between(1, 60);
    directForms(bytes, x, block);
    cascades(bytes, x, block);
}

} // namespace quordsp::fuzz
