// Arrays that end exactly at an unreadable page, or start just after one: a touch beyond that end is a crash.
#pragma once
#include <algorithm>
#include <initializer_list>
#include <span>

#include "support/guarded_pages.h"

namespace support {

enum class Edge { End, Start };
inline constexpr Edge kEdges[] = {Edge::End, Edge::Start};

// Room for the arrays of one parameter; the array laid out last is the one that counts.
template <class T>
class GuardedBuffer {
public:
    explicit GuardedBuffer(std::size_t largest) : pages_{largest * sizeof(T)} {}

    // An array to be written, full of one value. An empty one, too, stands at the unreadable page.
    std::span<T> output(std::size_t count, Edge edge, T value)
    {
        const std::span<T> array = place(count, edge);
        std::ranges::fill(array, value);
        return array;
    }

    // An array with the first values of a list, to be read only: a write is a crash.
    std::span<T> input(std::span<const T> values, std::size_t count, Edge edge)
    {
        const std::span<T> array = place(count, edge);
        std::ranges::copy(values.first(count), array.begin());
        pages_.setWritable(false);
        return array;
    }

private:
    std::span<T> place(std::size_t count, Edge edge)
    {
        pages_.setWritable(true);
        const auto bytes = pages_.bytes();
        std::byte* const start = edge == Edge::Start ? bytes.data() : bytes.data() + bytes.size() - count * sizeof(T);
        return {reinterpret_cast<T*>(start), count};
    }

    GuardedPages pages_;
};

} // namespace support
