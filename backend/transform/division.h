// The factor of inverse transforms.
#pragma once

#include <cstddef>

namespace quordsp::backend {

// Divides by the divisor, which rounds once; multiplying by its reciprocal would round twice.
void divide(double* x, std::size_t n, std::size_t divisor);

struct Block {
    std::size_t rows;
    std::size_t columns;
    std::size_t pitch; // from one row to the next
};
void divideBlock(double* x, Block block, std::size_t divisor);

} // namespace quordsp::backend
