// A set of small integers that finds the neighbours of a member in the time of a few instructions: one bit per integer,
// above it one bit per word of 64 that is not empty, and so on up to a single word.
#pragma once

#include "buffer.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

namespace quordsp::backend {

class RankSet {
public:
    using Rank = std::uint32_t;

    // For 0 ... size - 1, size >= 1. Throws std::bad_alloc.
    explicit RankSet(std::size_t size)
    {
        std::size_t words = 0;
        do {
            size = (size + 63) / 64;
            begin_[levels_++] = words;
            words += size;
        } while (size > 1);
        begin_[levels_] = words;
        words_ = makeBuffer<std::uint64_t>(words);
        clear();
    }

    void clear() { std::fill_n(words_.get(), begin_[levels_], std::uint64_t{0}); }

    void insert(Rank rank)
    {
        for (std::size_t level = 0; level < levels_; ++level, rank /= 64) {
            std::uint64_t& word = wordOf(level, rank);
            const bool wasEmpty = word == 0;
            word |= bitOf(rank);
            if (!wasEmpty)
                return;
        }
    }

    void erase(Rank rank)
    {
        for (std::size_t level = 0; level < levels_; ++level, rank /= 64) {
            std::uint64_t& word = wordOf(level, rank);
            word &= ~bitOf(rank);
            if (word != 0)
                return;
        }
    }

    // The next larger member; there is one.
    Rank next(Rank rank) const
    {
        std::size_t level = 0;
        std::uint64_t larger = wordOf(0, rank) & ~(2 * bitOf(rank) - 1);
        while (larger == 0) {
            rank /= 64;
            ++level;
            larger = wordOf(level, rank) & ~(2 * bitOf(rank) - 1);
        }
        for (;;) {
            rank = rank / 64 * 64 + static_cast<Rank>(std::countr_zero(larger));
            if (level == 0)
                return rank;
            rank *= 64;
            larger = wordOf(--level, rank);
        }
    }

    // The next smaller member; there is one.
    Rank previous(Rank rank) const
    {
        std::size_t level = 0;
        std::uint64_t smaller = wordOf(0, rank) & (bitOf(rank) - 1);
        while (smaller == 0) {
            rank /= 64;
            ++level;
            smaller = wordOf(level, rank) & (bitOf(rank) - 1);
        }
        for (;;) {
            rank = rank / 64 * 64 + static_cast<Rank>(std::bit_width(smaller) - 1);
            if (level == 0)
                return rank;
            rank *= 64;
            smaller = wordOf(--level, rank);
        }
    }

private:
    static std::uint64_t bitOf(Rank rank) { return std::uint64_t{1} << rank % 64; }
    std::uint64_t& wordOf(std::size_t level, Rank rank) const { return words_[begin_[level] + rank / 64]; }

    std::array<std::size_t, 8> begin_{}; // of each level
    std::size_t levels_ = 0;
    Buffer<std::uint64_t> words_;
};

} // namespace quordsp::backend
