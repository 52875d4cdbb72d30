// The tail of a recursive filter decays through the subnormal numbers, where each operation costs a hundred times as
// much. While a FlushSubnormals lives, results of this thread that would be subnormal become 0, so the tail ends at
// 2e-308 at full speed; subnormal operands keep their value.
#pragma once

#if defined(__SSE2__)
#include <xmmintrin.h>
#endif

namespace quordsp::backend {

class FlushSubnormals {
public:
    FlushSubnormals(const FlushSubnormals&) = delete;
    FlushSubnormals& operator=(const FlushSubnormals&) = delete;
#if defined(__SSE2__)
    FlushSubnormals() : callersMode_{_MM_GET_FLUSH_ZERO_MODE()} { _MM_SET_FLUSH_ZERO_MODE(_MM_FLUSH_ZERO_ON); }
    ~FlushSubnormals() { _MM_SET_FLUSH_ZERO_MODE(callersMode_); }

private:
    unsigned callersMode_;
#else
    FlushSubnormals() = default;
#endif
};

} // namespace quordsp::backend
