// Packing is the whole work of the complex exports, so it runs at the speed of a copy: eight samples at a time, from an
// address on where the stores do not cross cache lines. Plain loops, as the compiler vectorises them, take twice as
// long on blocks that leave the nearest cache.
#include "complex/packed_block.h"

#include <algorithm>

#include "cpu/instruction_set.h"
#include "numeric/lanes.h"

namespace quordsp {
namespace {

constexpr std::uintptr_t kCacheLine = 64;

// How many of n elements lie before the first one that starts a cache line; all where none does.
template <class Element>
[[gnu::always_inline]] inline Size countBeforeLine(const Element* elements, Size n) noexcept
{
    const auto address = reinterpret_cast<std::uintptr_t>(elements);
    return std::min(n, static_cast<Size>(-address % kCacheLine / sizeof(Element)));
}

[[gnu::always_inline]] inline void packSamples(SplitInput from, Size i, Size end, ComplexSample* to) noexcept
{
    for (; i < end; ++i)
        to[i] = {from.re[i], from.im[i]};
}

[[gnu::always_inline]] inline void packKernel(SplitInput from, Size n, ComplexSample* to) noexcept
{
    Size i = countBeforeLine(to, n);
    packSamples(from, 0, i, to);
    for (; i + kLanes <= n; i += kLanes) {
        const Lanes re = lanesAt(from.re + i);
        const Lanes im = lanesAt(from.im + i);
        lanesAt(&to[i].real) = __builtin_shufflevector(re, im, 0, 8, 1, 9, 2, 10, 3, 11);
        lanesAt(&to[i + kLanes / 2].real) = __builtin_shufflevector(re, im, 4, 12, 5, 13, 6, 14, 7, 15);
    }
    packSamples(from, i, n, to);
}

// Eight real parts from one place on, and eight imaginary ones from another.
[[gnu::always_inline]] inline void unpackLanes(const ComplexSample* from, Size re, Size im, SplitOutput to) noexcept
{
    constexpr Size half = kLanes / 2;
    const Lanes reals =
        __builtin_shufflevector(lanesAt(&from[re].real), lanesAt(&from[re + half].real), 0, 2, 4, 6, 8, 10, 12, 14);
    const Lanes imaginaries =
        __builtin_shufflevector(lanesAt(&from[im].real), lanesAt(&from[im + half].real), 1, 3, 5, 7, 9, 11, 13, 15);
    lanesAt(to.re + re) = reals;
    lanesAt(to.im + im) = imaginaries;
}

[[gnu::always_inline]] inline void takeReals(const ComplexSample* from, Size i, Size end, double* to) noexcept
{
    for (; i < end; ++i)
        to[i] = from[i].real;
}

[[gnu::always_inline]] inline void takeImaginaries(const ComplexSample* from, Size i, Size end, double* to) noexcept
{
    for (; i < end; ++i)
        to[i] = from[i].imaginary;
}

// Each of the two arrays is written from its own first cache line on. Where these agree, samples are loaded once.
[[gnu::always_inline]] inline void unpackKernel(const ComplexSample* from, Size n, SplitOutput to) noexcept
{
    Size re = countBeforeLine(to.re, n);
    Size im = countBeforeLine(to.im, n);
    takeReals(from, 0, re, to.re);
    takeImaginaries(from, 0, im, to.im);
    if (re == im)
        for (; re + kLanes <= n; re += kLanes, im += kLanes)
            unpackLanes(from, re, re, to);
    else
        for (; std::max(re, im) + kLanes <= n; re += kLanes, im += kLanes)
            unpackLanes(from, re, im, to);
    takeReals(from, re, n, to.re);
    takeImaginaries(from, im, n, to.im);
}

} // namespace

void pack(SplitInput from, Size n, ComplexSample* to) noexcept
{
    onThisMachine<packKernel>(from, n, to);
}

void unpack(const ComplexSample* from, Size n, SplitOutput to) noexcept
{
    onThisMachine<unpackKernel>(from, n, to);
}

PackedBlock::PackedBlock(int n, Size room) noexcept
    : count_{n}, room_{n < 0 ? count_ : std::max(count_, room)}, memory_{room_}
{}

void PackedBlock::pack(SplitInput from) const noexcept
{
    quordsp::pack(from, count_, data());
    if (room_ > count_)
        std::fill(data() + count_, data() + room_, ComplexSample{});
}

void PackedBlock::clear() const noexcept
{
    std::fill_n(data(), room_, ComplexSample{});
}

} // namespace quordsp
