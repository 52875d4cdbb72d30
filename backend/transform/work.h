// Memory that a plan works in. Every array in it starts a cache line, so that no vector straddles two.
#pragma once

#include "buffer.h"
#include "transform/point.h"

#include <cstdint>

namespace quordsp::backend {

inline constexpr std::size_t kCacheLine = 64;
inline constexpr std::size_t kDoublesPerLine = kCacheLine / sizeof(double);

inline double* lineStart(double* memory)
{
    const auto address = reinterpret_cast<std::uintptr_t>(memory);
    return memory + (kCacheLine - address % kCacheLine) % kCacheLine / sizeof(double);
}

class AlignedBuffer {
public:
    // Throws std::bad_alloc.
    explicit AlignedBuffer(std::size_t count) : memory_(makeBuffer(count + kDoublesPerLine)) {}

    double* get() const { return lineStart(memory_.get()); }

private:
    Buffer<> memory_;
};

// Hands out the arrays of an aligned work array one after the other.
class Work {
public:
    explicit Work(double* start) : rest_(start) {}

    static constexpr std::size_t sizeOf(std::size_t n) { return 2 * spacing(n); }
    Split take(std::size_t n)
    {
        const Split array = {rest_, rest_ + spacing(n)};
        rest_ += sizeOf(n);
        return array;
    }
    double* rest() const { return rest_; }

private:
    // A line more than it takes, lest the arrays of a power of two compete for the same lines of a cache.
    static constexpr std::size_t spacing(std::size_t n)
    {
        return (n + 2 * kDoublesPerLine - 1) / kDoublesPerLine * kDoublesPerLine;
    }

    double* rest_;
};

} // namespace quordsp::backend
