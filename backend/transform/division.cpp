#include "transform/division.h"

#include "cpu/instruction_set.h"

#include <bit>

namespace quordsp::backend {

namespace {

[[gnu::always_inline]] inline void divideAll(double* x, Block block, double divisor) noexcept
{
    for (std::size_t i = 0; i < block.rows; ++i)
        for (std::size_t j = 0; j < block.columns; ++j)
            x[i * block.pitch + j] /= divisor;
}

[[gnu::always_inline]] inline void multiplyAll(double* x, Block block, double factor) noexcept
{
    for (std::size_t i = 0; i < block.rows; ++i)
        for (std::size_t j = 0; j < block.columns; ++j)
            x[i * block.pitch + j] *= factor;
}

} // namespace

void divide(double* x, std::size_t n, std::size_t divisor)
{
    divideBlock(x, {1, n, n}, divisor);
}

// The reciprocal of a power of two is exact.
void divideBlock(double* x, Block block, std::size_t divisor)
{
    const auto value = static_cast<double>(divisor);
    if (std::has_single_bit(divisor))
        onThisMachine<multiplyAll>(x, block, 1 / value);
    else
        onThisMachine<divideAll>(x, block, value);
}

} // namespace quordsp::backend
