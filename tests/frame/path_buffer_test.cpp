#include "frame/path_buffer.h"

#include <gtest/gtest.h>

namespace quordsp {
namespace {

TEST(PathBuffer, HoldsUpTo1023CharactersAndItsNul)
{
    PathBuffer path;
    EXPECT_TRUE(path.append(std::string(1023, 'a')));
    EXPECT_EQ(path.view().size(), 1023u);
    EXPECT_EQ(path.text()[1023], '\0');
}

TEST(PathBuffer, RefusesWhatDoesNotFitAndStaysAsItWas)
{
    PathBuffer path;
    ASSERT_TRUE(path.append("ab"));
    EXPECT_FALSE(path.append(std::string(1022, 'c')));
    EXPECT_STREQ(path.text(), "ab");
}

TEST(PathBuffer, TakesNoLengthThatLeavesNoRoomForItsNul)
{
    PathBuffer path;
    EXPECT_FALSE(path.setLength(1024));
    EXPECT_EQ(path.view(), "");
    EXPECT_TRUE(path.setLength(1023));
}

TEST(PathBuffer, CutsOnlyWhatIsThere)
{
    PathBuffer path;
    ASSERT_TRUE(path.append("abc"));
    EXPECT_FALSE(path.cut(4));
    EXPECT_TRUE(path.cut(2));
    EXPECT_EQ(path.view(), "a");
}

} // namespace
} // namespace quordsp
