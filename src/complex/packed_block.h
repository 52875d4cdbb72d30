// Scratch memory of one call, in which a complex signal lies as the backend takes it.
#pragma once
#include <memory>
#include <new>

#include "frame/signatures.h"

namespace quordsp {

// Room for elements of one call, at first unspecified.
template <class Element>
class ScratchBlock {
public:
    // A negative number is one that no memory could hold.
    explicit ScratchBlock(Size room) noexcept
        : elements_{room < 0 ? nullptr : new(std::nothrow) Element[static_cast<std::size_t>(room)]},
          isMissing_{room > 0 && !elements_}
    {}

    Element* data() const noexcept { return elements_.get(); }

    // Whether there are elements to be stored and no memory for them.
    bool isMissing() const noexcept { return isMissing_; }

    void release() noexcept { elements_.reset(); }

private:
    std::unique_ptr<Element[]> elements_;
    bool isMissing_;
};

// The two arrays of a complex signal on the caller's side.
struct SplitInput {
    const double* re;
    const double* im;
};
struct SplitOutput {
    double* re;
    double* im;
};

// Samples to and fro; nothing for n < 1. The caller's arrays do not overlap the packed samples.
void pack(SplitInput from, Size n, ComplexSample* to) noexcept;
void unpack(const ComplexSample* from, Size n, SplitOutput to) noexcept;

// A complex signal of n samples, and more where the backend may use more.
class PackedBlock {
public:
    // No block for a negative n, whatever the room.
    explicit PackedBlock(int n, Size room = 0) noexcept;

    ComplexSample* data() const noexcept { return memory_.data(); }
    bool isMissing() const noexcept { return memory_.isMissing(); }
    void release() noexcept { memory_.release(); }

    // The n samples; what is beyond them becomes 0.
    void pack(SplitInput from) const noexcept;
    void unpack(SplitOutput to) const noexcept { quordsp::unpack(data(), count_, to); }
    void clear() const noexcept;

private:
    Size count_;
    Size room_;
    ScratchBlock<ComplexSample> memory_;
};

template <class... Blocks>
bool isAnyMissing(const Blocks&... blocks) noexcept
{
    return (blocks.isMissing() || ...);
}

// Releases the blocks in the order in which they are named.
template <class... Blocks>
void release(Blocks&... blocks) noexcept
{
    (blocks.release(), ...);
}

} // namespace quordsp
