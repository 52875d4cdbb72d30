// Scratch memory of an entry: not initialised, since all of it is written before it is read.
#pragma once

#include <cstddef>
#include <memory>
#include <new>

namespace quordsp::backend {

// Beyond what any machine has; sizes below it can be multiplied by small factors without overflow.
inline constexpr std::size_t kMostElements = std::size_t{1} << 48;

template <class T = double>
using Buffer = std::unique_ptr<T[]>;

// Throws std::bad_alloc.
template <class T = double>
Buffer<T> makeBuffer(std::size_t count)
{
    if (count > kMostElements)
        throw std::bad_alloc();
    return std::make_unique_for_overwrite<T[]>(count);
}

} // namespace quordsp::backend
