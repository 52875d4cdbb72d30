// How an entry checks its arguments and turns whatever goes wrong inside it into a status.
#pragma once

#include "nianlys.h"

#include <algorithm>
#include <cstddef>

namespace quordsp::backend {

// Ends an entry from any depth; never leaves guarded().
struct Failure {
    Status status;
};

inline void require(bool holds, Status otherwise)
{
    if (!holds)
        throw Failure{otherwise};
}

inline void requirePositiveCount(std::int64_t n)
{
    require(n > 0, Status::CountNotPositive);
}

template <class... T>
void requireArrays(const T*... arrays)
{
    require((arrays && ...), Status::ArraySize);
}

// A negative count is none.
inline std::size_t sizeOf(std::int32_t count)
{
    return static_cast<std::size_t>(std::max(count, 0));
}

// Runs the body of an entry. What is thrown besides a Failure is what containers throw when there is no memory:
// bad_alloc or, for a count beyond all memory, length_error. Nothing may leave an entry, so there is no other case.
template <class Body>
Status guarded(Body body) noexcept
{
    try {
        body();
        return Status::Success;
    } catch (const Failure& failure) {
        return failure.status;
    } catch (...) {
        return Status::OutOfMemory;
    }
}

} // namespace quordsp::backend
