// Arrays that grow: when, how far, and what becomes of the storage.
#include "numeric/numeric_array.h"

#include <limits>
#include <vector>

#include <gmock/gmock.h>

namespace quordsp {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

template <class Element>
std::vector<Element> elements(const NumericArray<Element>& array, int count)
{
    return {array.data, array.data + count};
}

template <class Element>
class NumericArrayOf : public ::testing::Test {};
using Elements = ::testing::Types<double, std::int32_t>;
TYPED_TEST_SUITE(NumericArrayOf, Elements);

TYPED_TEST(NumericArrayOf, IsMadeAsAColumnOfZeros)
{
    const auto array = createOwnedColumn<TypeParam>(3);
    ASSERT_TRUE(array);
    EXPECT_THAT(elements(*array, 3), Each(TypeParam{0}));
    EXPECT_EQ(array->numDimensions, 2);
    EXPECT_EQ(array->size[0], 3);
    EXPECT_EQ(array->size[1], 1);
    EXPECT_EQ(array->allocatedSize, 3);
    EXPECT_TRUE(array->canFreeData);
}

TYPED_TEST(NumericArrayOf, WrapsStorageWithoutCopyingIt)
{
    TypeParam storage[] = {1, 2, 3};
    const auto array = wrapColumn(storage, 3);
    ASSERT_TRUE(array);
    EXPECT_EQ(array->data, storage);
    EXPECT_EQ(array->numDimensions, 2);
    EXPECT_EQ(array->size[0], 3);
    EXPECT_EQ(array->size[1], 1);
    EXPECT_EQ(array->allocatedSize, 3);
    EXPECT_FALSE(array->canFreeData);
}

TYPED_TEST(NumericArrayOf, LeavesForeignStorageAloneWhenItGrows)
{
    TypeParam storage[] = {1, 2, 3, 4};
    auto array = wrapColumn(storage, 4);
    ASSERT_TRUE(array);
    array->size[0] = 10;
    ASSERT_TRUE(ensureCapacity(*array, 3));
    EXPECT_NE(array->data, storage);
    EXPECT_EQ(array->allocatedSize, 16);
    EXPECT_TRUE(array->canFreeData);
    EXPECT_THAT(elements(*array, 5), ElementsAre(1, 2, 3, 0, 0));
    array->data[0] = 7;
    array.reset();
    EXPECT_THAT(storage, ElementsAre(1, 2, 3, 4));
}

TYPED_TEST(NumericArrayOf, KeepsItsElementsAsItGrowsByOneAtATime)
{
    auto array = createOwnedColumn<TypeParam>(0);
    ASSERT_TRUE(array);
    for (std::int32_t i = 0; i < 1000; ++i) {
        array->size[0] = i + 1;
        ASSERT_TRUE(ensureCapacity(*array, i));
        EXPECT_EQ(array->data[i], 0);
        array->data[i] = static_cast<TypeParam>(i);
    }
    EXPECT_EQ(array->allocatedSize, 1024);
    for (std::int32_t i = 0; i < 1000; ++i)
        ASSERT_EQ(array->data[i], static_cast<TypeParam>(i));
}

TYPED_TEST(NumericArrayOf, KeepsNothingOfANegativeNumberOfElements)
{
    auto array = createOwnedColumn<TypeParam>(1);
    ASSERT_TRUE(array);
    array->data[0] = 5;
    array->size[0] = 2;
    ASSERT_TRUE(ensureCapacity(*array, -1));
    EXPECT_EQ(array->data[0], 0);
}

TEST(NumericArray, GrowsToSixteenAtLeastAndThenDoubles)
{
    for (const auto& [numel, capacity] : {std::pair{1, 16}, {5, 16}, {16, 16}, {17, 32}, {40, 64}, {65, 128}}) {
        EXPECT_EQ(grownCapacity(0, numel), capacity) << numel;
        auto array = createOwnedColumn<double>(0);
        ASSERT_TRUE(array);
        array->size[0] = numel;
        ASSERT_TRUE(ensureCapacity(*array, 0));
        EXPECT_EQ(array->allocatedSize, capacity) << numel;
    }
    EXPECT_EQ(grownCapacity(20, 21), 40);
    EXPECT_EQ(grownCapacity(100, 401), 800);
}

TEST(NumericArray, GrowsInOneStepToTheLargestCapacityFromWhereDoublingEnds)
{
    constexpr std::int32_t kHalf = 0x40000000;
    EXPECT_EQ(grownCapacity(kHalf / 2, kHalf), kHalf);
    EXPECT_EQ(grownCapacity(kHalf - 1, kHalf), kMost - 1);
    EXPECT_EQ(grownCapacity(kHalf, kHalf), kHalf);
    EXPECT_EQ(grownCapacity(kHalf, kHalf + 1), kMost);
    EXPECT_EQ(grownCapacity(0, kHalf + 1), kMost);
    EXPECT_EQ(grownCapacity(kMost - 1, kMost), kMost);
}

TEST(NumericArray, StaysAsItIsWhileItHasRoom)
{
    double storage[] = {1.0, 2.0, 3.0};
    auto array = wrapColumn(storage, 3);
    ASSERT_TRUE(array);
    for (const std::int32_t rows : {3, 0, -5}) {
        array->size[0] = rows;
        ASSERT_TRUE(ensureCapacity(*array, 3));
        EXPECT_EQ(array->data, storage);
        EXPECT_EQ(array->allocatedSize, 3);
        EXPECT_FALSE(array->canFreeData);
    }
}

TEST(NumericArray, CountsTheProductOfItsExtents)
{
    auto array = createOwnedColumn<double>(0);
    ASSERT_TRUE(array);
    std::int32_t numel;
    array->size[0] = 5;
    array->size[1] = 8;
    ASSERT_TRUE(countElements(*array, numel));
    EXPECT_EQ(numel, 40);
    for (const std::int32_t dimensions : {0, -1}) {
        array->numDimensions = dimensions;
        ASSERT_TRUE(countElements(*array, numel));
        EXPECT_EQ(numel, 1);
    }
    array->numDimensions = 2;
    ASSERT_TRUE(ensureCapacity(*array, 0));
    EXPECT_EQ(array->allocatedSize, 64);
}

TEST(NumericArray, RefusesMoreElementsThanItCanCount)
{
    auto array = createOwnedColumn<double>(2);
    ASSERT_TRUE(array);
    const double* const data = array->data;
    array->size[0] = array->size[1] = 0x10000;
    EXPECT_FALSE(ensureCapacity(*array, 2));
    EXPECT_EQ(array->data, data);
    EXPECT_EQ(array->allocatedSize, 2);
    EXPECT_TRUE(array->canFreeData);
}

TEST(NumericArray, MayBeNullWhenFreed)
{
    freeArray<double>(nullptr);
    freeArray<std::int32_t>(nullptr);
    SUCCEED();
}

} // namespace
} // namespace quordsp
