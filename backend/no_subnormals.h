// Where subnormal numbers count as 0. A signal that has decayed to them slows a filter a hundred times: each product
// with one costs as much as a hundred others. While a NoSubnormals lives, this thread takes subnormal operands for 0
// and makes subnormal results 0.
#pragma once

#if defined(__SSE2__)
#include <xmmintrin.h>
#endif

namespace quordsp::backend {

class NoSubnormals {
public:
    NoSubnormals(const NoSubnormals&) = delete;
    NoSubnormals& operator=(const NoSubnormals&) = delete;
#if defined(__SSE2__)
    NoSubnormals() : callersMode_{_mm_getcsr() & kBoth} { _mm_setcsr(_mm_getcsr() | kBoth); }
    ~NoSubnormals() { _mm_setcsr((_mm_getcsr() & ~kBoth) | callersMode_); }

private:
    static constexpr unsigned kBoth = 0x8000 | 0x0040; // flush to zero, denormals are zeros
    unsigned callersMode_;
#else
    NoSubnormals() = default;
#endif
};

} // namespace quordsp::backend
