#include "transform/unwrap.h"

#include <cmath>
#include <numbers>

namespace quordsp::backend {

void unwrap(double* phase, std::size_t n)
{
    constexpr double turn = 2 * std::numbers::pi;
    for (std::size_t i = 1; i < n; ++i)
        phase[i] -= turn * std::floor((phase[i] - phase[i - 1]) / turn + 0.5);
}

} // namespace quordsp::backend
