#include "transform/fft_table.h"

#include <new>

namespace quordsp::backend {

FftTable* createTable(std::int64_t size)
{
    if (size < 1)
        return nullptr;
    try {
        return new FftTable(static_cast<std::size_t>(size));
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

} // namespace quordsp::backend
