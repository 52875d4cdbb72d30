// How a complex signal goes through one entry of the backend: packed, filtered and unpacked, whatever the status.
#pragma once
#include "complex/packed_block.h"
#include "frame/entries.h"

namespace quordsp {

// The entry filters in the input's block when it gets no output: after a failure the outputs hold the input.
template <class BackendEntry, class... Parameters>
Status filterInPlace(const BackendEntry& entry, SplitInput in, int n, SplitOutput out,
                     Parameters... parameters) noexcept
{
    const PackedBlock block{n};
    if (block.isMissing())
        return QUORDSP_BACKEND_NOT_FOUND;
    block.pack(in);
    const Status status = entry(block.data(), widen(n), parameters..., static_cast<ComplexSample*>(nullptr));
    block.unpack(out);
    return status;
}

// The entry fills a block of its own.
template <class BackendEntry, class... Parameters>
Status filterToSecondBlock(const BackendEntry& entry, SplitInput in, int n, SplitOutput out,
                           Parameters... parameters) noexcept
{
    PackedBlock input{n};
    PackedBlock output{n};
    if (isAnyMissing(input, output))
        return QUORDSP_BACKEND_NOT_FOUND;
    input.pack(in);
    const Status status = entry(input.data(), widen(n), parameters..., output.data());
    output.unpack(out);
    release(input, output);
    return status;
}

} // namespace quordsp
