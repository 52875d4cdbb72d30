// The last N values of something, newest first, where they stay in registers.
#pragma once

#include <cstddef>
#include <utility>

namespace quordsp::backend {

template <class Row, std::size_t N>
class DelayLine {
public:
    [[gnu::always_inline]] Row& operator[](std::size_t k) noexcept { return rows_[k]; }
    [[gnu::always_inline]] const Row& operator[](std::size_t k) const noexcept { return rows_[k]; }
    [[gnu::always_inline]] void push(const Row& newest) noexcept { push(newest, std::make_index_sequence<N>()); }

private:
    // Not a loop: compilers take it for a move of memory, and then the rows live there.
    template <std::size_t... k>
    [[gnu::always_inline]] void push(const Row& newest, std::index_sequence<k...>) noexcept
    {
        ((rows_[N - 1 - k] = k + 1 < N ? rows_[N - 2 - k] : newest), ...);
    }

    Row rows_[N] = {};
};

} // namespace quordsp::backend
