#include "transform/mixed_radix.h"

#include "transform/roots.h"

#include <bit>

namespace quordsp::backend {

namespace {

// Radices of 2^exponent, exponent != 1: few large factors are best, and two fours are cheaper than an eight and a two.
std::vector<std::size_t> powerOfTwoRadices(int exponent)
{
    const int eights = exponent / 3 - (exponent % 3 == 1 ? 1 : 0);
    const int fours = (exponent - 3 * eights) / 2;
    std::vector<std::size_t> radices(static_cast<std::size_t>(eights), 8);
    radices.insert(radices.end(), static_cast<std::size_t>(fours), 4);
    return radices;
}

bool hasButterfly(std::size_t radix)
{
    return radix <= 8;
}

bool isNarrow(const Pass& pass)
{
    return pass.stride < kWideStride && pass.groups > 1;
}

} // namespace

// Eights and fours come first: they soon make the stride a multiple of what a vector register holds. A two is last.
Factors factorized(std::size_t n)
{
    const int twos = std::countr_zero(n);
    Factors factors = {twos > 1 ? powerOfTwoRadices(twos) : std::vector<std::size_t>{}, n >> twos};
    for (std::size_t prime = 3; prime <= kLargestPrimeRadix; prime += 2)
        for (; factors.rest % prime == 0; factors.rest /= prime)
            factors.radices.push_back(prime);
    if (twos == 1)
        factors.radices.push_back(2);
    return factors;
}

MixedRadix::MixedRadix(std::size_t n, std::size_t lanes) : n_(n), lanes_(lanes)
{
    for (std::size_t stride = lanes; const std::size_t radix : factorized(n).radices) {
        Pass pass = {};
        pass.radix = radix;
        pass.stride = stride;
        pass.groups = n * lanes / (stride * radix);
        pass.length = lanes > 1 ? lanes : stride;
        pass.rows = stride / pass.length;
        pass.pitch = lanes > 1 ? 0 : stride;
        (isNarrow(pass) ? chooseNarrow : pass.groups > 1 ? chooseWide : chooseLast)(pass);
        passes_.push_back(pass);
        stride *= radix;
    }
    makeTables();
}

void MixedRadix::makeTables()
{
    std::size_t ofLanes = 0, ofGroups = 0;
    for (const Pass& pass : passes_) {
        ofLanes += isNarrow(pass) ? Work::sizeOf((pass.radix - 1) * pass.groups * pass.stride) : 0;
        ofGroups += (isNarrow(pass) ? 0 : (pass.radix - 1) * pass.groups) + (hasButterfly(pass.radix) ? 0 : pass.radix);
    }
    laneTwiddles_ = AlignedBuffer(ofLanes);
    groupTwiddles_ = makeBuffer<Point<double>>(ofGroups);
    tableSize_ = ofLanes + 2 * ofGroups;

    Work laneTables(laneTwiddles_.get());
    Point<double>* groupTable = groupTwiddles_.get();
    const Roots root(n_);
    for (Pass& pass : passes_) {
        const std::size_t stride = pass.stride / lanes_, count = pass.groups * pass.stride;
        if (isNarrow(pass)) {
            const Split table = laneTables.take((pass.radix - 1) * count);
            for (std::size_t j = 1; j < pass.radix; ++j)
                for (std::size_t i = 0; i < count; ++i)
                    table.set((j - 1) * count + i, root(stride * j * (i / stride)));
            pass.laneTwiddles = table;
        } else {
            pass.groupTwiddles = groupTable;
            for (std::size_t group = 0; group < pass.groups; ++group)
                for (std::size_t j = 1; j < pass.radix; ++j)
                    *groupTable++ = root(stride * j * group);
        }
        pass.circle = groupTable;
        if (!hasButterfly(pass.radix))
            for (std::size_t j = 0; j < pass.radix; ++j)
                *groupTable++ = root(n_ / pass.radix * j);
    }
}

void MixedRadix::copyRows(ConstSplit from, Split to) const
{
    for (std::size_t i = 0; i < n_; ++i)
        for (std::size_t lane = 0; lane < lanes_; ++lane)
            to.set(i * to.pitch + lane, from[i * from.pitch + lane]);
}

void MixedRadix::forwardInOnePass(const ConstSplit& in, const Split& out, double* work) const
{
    const Pass& pass = passes_.front();
    if (lanes_ > 1 && in.step > 1) {
        const Split copy = Work(work).take(n_ * lanes_);
        copyRows(in, copy);
        return forwardInOnePass(copy, out, nullptr);
    }
    (out.step == 1 ? pass.ofSplit : pass.ofInterleaved)(pass, in, out);
}

// All intermediate results are in work. Only the first pass reads interleaved arrays, and only the last one writes any;
// a single pass over rows does not do both.
void MixedRadix::forward(const ConstSplit& in, const Split& out, double* work) const
{
    if (passes_.empty())
        return copyRows(in, out);
    if (passes_.size() == 1)
        return forwardInOnePass(in, out, work);
    Work arrays(work);
    const Split a = arrays.take(n_ * lanes_), b = arrays.take(n_ * lanes_);
    const ConstSplit fromA = a, fromB = b;
    const Pass *pass = &passes_.front(), *const last = &passes_.back();
    (in.step == 1 ? pass->ofSplit : pass->ofInterleaved)(*pass, in, a);
    bool isInA = true;
    for (++pass; pass != last; ++pass, isInA = !isInA)
        pass->ofSplit(*pass, isInA ? fromA : fromB, isInA ? b : a);
    (out.step == 1 ? last->ofSplit : last->ofInterleaved)(*last, isInA ? fromA : fromB, out);
}

} // namespace quordsp::backend
