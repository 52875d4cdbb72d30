// Arrays whose shape is known at run time only, over storage of their own or of somebody else.
//
// Nothing throws: a record that cannot be made is null, and an array that cannot grow stays as it was.
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <new>

namespace quordsp {

template <class Element>
struct NumericArray {
    Element* data;              // column-major
    std::int32_t* size;         // the extent of each dimension
    std::int32_t allocatedSize; // elements that data has room for
    std::int32_t numDimensions;
    bool canFreeData; // false while data belongs to somebody else
};

// Releases what the array owns. A null array is ignored.
template <class Element>
void freeArray(NumericArray<Element>* array) noexcept
{
    if (!array)
        return;
    if (array->canFreeData)
        delete[] array->data;
    delete[] array->size;
    delete array;
}

struct ArrayDeleter {
    template <class Element>
    void operator()(NumericArray<Element>* array) const noexcept
    {
        freeArray(array);
    }
};

template <class Element>
using ArrayOwner = std::unique_ptr<NumericArray<Element>, ArrayDeleter>;

// A column of n elements over storage of the caller, which stays untouched when the array grows or goes.
template <class Element>
ArrayOwner<Element> wrapColumn(Element* data, std::int32_t n) noexcept
{
    auto* const size = new (std::nothrow) std::int32_t[2]{n, 1};
    auto* const array = new (std::nothrow) NumericArray<Element>{data, size, n, 2, false};
    if (size && array)
        return ArrayOwner<Element>{array};
    delete[] size;
    delete array;
    return nullptr;
}

// A column of n zeros; n may not be negative.
template <class Element>
ArrayOwner<Element> createOwnedColumn(std::int32_t n) noexcept
{
    auto array = wrapColumn<Element>(nullptr, n);
    if (array)
        array->data = new (std::nothrow) Element[static_cast<std::size_t>(n)]();
    if (!array || !array->data)
        return nullptr;
    array->canFreeData = true;
    return array;
}

// The capacity that an array of the given one grows to, to hold numel elements.
constexpr std::int32_t grownCapacity(std::int32_t capacity, std::int32_t numel) noexcept
{
    constexpr std::int32_t kLeast = 16;
    constexpr std::int32_t kLargestToDouble = 0x3FFFFFFF;
    if (numel <= capacity)
        return capacity;
    capacity = std::max(capacity, kLeast);
    while (capacity < numel)
        capacity = capacity > kLargestToDouble ? INT32_MAX : 2 * capacity;
    return capacity;
}

// The product of the extents, 1 without any; false when 32 bits do not hold it.
template <class Element>
bool countElements(const NumericArray<Element>& array, std::int32_t& numel) noexcept
{
    numel = 1;
    for (std::int32_t i = 0; i < array.numDimensions; ++i)
        if (__builtin_mul_overflow(numel, array.size[i], &numel))
            return false;
    return true;
}

// Makes room for the extents that stand in size by now, and keeps the first oldNumel elements; new ones are 0. From
// its first growth on an array owns its storage. False when there is no memory: the array is as it was.
template <class Element>
[[nodiscard]] bool ensureCapacity(NumericArray<Element>& array, std::int32_t oldNumel) noexcept
{
    std::int32_t numel;
    if (!countElements(array, numel))
        return false;
    if (numel <= array.allocatedSize)
        return true;
    const std::int32_t capacity = grownCapacity(array.allocatedSize, numel);
    auto* const data = new (std::nothrow) Element[static_cast<std::size_t>(capacity)]();
    if (!data)
        return false;
    if (array.data)
        std::copy_n(array.data, std::max(oldNumel, 0), data);
    if (array.canFreeData)
        delete[] array.data;
    array.data = data;
    array.allocatedSize = capacity;
    array.canFreeData = true;
    return true;
}

} // namespace quordsp
