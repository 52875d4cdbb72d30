// The shared folder that the registry names.
#include "scenarios/search_fixture_windows.h"

namespace {

class SharedFolder : public Search {
protected:
    SharedFolder() { expected_ = installBackend("shared/Analysis"); }

    void expectFound() const
    {
        EXPECT_EQ(callLibrary(), 0);
        EXPECT_EQ(loadedBackend(), expected_);
    }

    std::string folderText() const { return folder("shared").string(); }

    // A folder text of that many characters in all, without the NUL.
    static std::string longText(std::size_t size) { return "C:\\" + std::string(size - 3, 'd'); }

    static constexpr std::string_view kNul{"", 1};

private:
    Path expected_;
};

TEST_F(SharedFolder, IsTakenWithATrailingBackslash)
{
    registry_.setSharedFolder(folderText() + "\\" + '\0');
    expectFound();
}

TEST_F(SharedFolder, IsTakenWithoutATrailingBackslash)
{
    registry_.setSharedFolder(folderText() + '\0');
    expectFound();
}

TEST_F(SharedFolder, IsTakenWhateverTheTypeOfTheValue)
{
    registry_.setSharedFolder(folderText() + '\0', REG_BINARY);
    expectFound();
}

TEST_F(SharedFolder, IsTakenAsItStandsWithoutExpansion)
{
    SetEnvironmentVariableA("QUORDSP_SHARED", folderText().c_str());
    registry_.setSharedFolder(std::string{"%QUORDSP_SHARED%"} + '\0', REG_EXPAND_SZ);
    EXPECT_EQ(callLibrary(), kNotFound);
}

// The last byte gives way to the sub-folder, whatever it is.
TEST_F(SharedFolder, LosesTheLastByteOfAValueWithoutANul)
{
    registry_.setSharedFolder(folderText() + '?', REG_BINARY);
    expectFound();
}

TEST_F(SharedFolder, IsFoundByItsOwnBackslashWhenThatIsAllThatAValueWithoutANulLoses)
{
    registry_.setSharedFolder(folderText() + '\\');
    expectFound();
}

TEST_F(SharedFolder, IsNotFoundUnderAValueThatLosesALetter)
{
    registry_.setSharedFolder(folderText(), REG_BINARY);
    EXPECT_EQ(callLibrary(), kNotFound);
}

TEST_F(SharedFolder, IsNotReadWithoutTheKey)
{
    EXPECT_EQ(callLibrary(), kNotFound);
}

TEST_F(SharedFolder, IsNotReadWithoutTheValue)
{
    registry_.createKey();
    EXPECT_EQ(callLibrary(), kNotFound);
}

TEST_F(SharedFolder, IsNotReadFromAnEmptyValue)
{
    registry_.setSharedFolder("", REG_BINARY);
    EXPECT_EQ(callLibrary(), kNotFound);
}

// The search below a folder of no name: of the root of the drive.
TEST_F(SharedFolder, IsNotFoundUnderAnEmptyText)
{
    registry_.setSharedFolder(kNul);
    EXPECT_EQ(callLibrary(), kNotFound);
}

TEST_F(SharedFolder, IsNotFoundUnderATextThatEndsAtALaterNul)
{
    registry_.setSharedFolder(folderText() + '\0' + "more" + '\0', REG_BINARY);
    EXPECT_EQ(callLibrary(), kNotFound);
}

// What fits the buffer of 1024 bytes is read, and refused if the whole path does not fit.
TEST_F(SharedFolder, IsNotFoundUnderATextThatFillsTheBuffer)
{
    for (const DWORD type : {DWORD{REG_SZ}, DWORD{REG_BINARY}}) {
        registry_.setSharedFolder(longText(1023) + '\0', type);
        EXPECT_EQ(callLibrary(), kNotFound);
    }
}

TEST_F(SharedFolder, IsNotReadFromAValueBeyondTheBuffer)
{
    for (const std::size_t size : {1024U, 1025U, 65536U}) {
        registry_.setSharedFolder(longText(size) + '\0');
        EXPECT_EQ(callLibrary(), kNotFound);
    }
}

// The longest path is 1023 characters: folder, "Analysis\", "nianlys.dll", and a backslash at the second attempt.
TEST_F(SharedFolder, IsNotFoundUnderATextAboutAsLongAsAPathMayBe)
{
    for (std::size_t size = 1000; size <= 1005; ++size) {
        registry_.setSharedFolder(longText(size) + '\0');
        EXPECT_EQ(callLibrary(), kNotFound);
    }
}

TEST_F(SharedFolder, IsReadAnewOnEveryCall)
{
    setSharedFolder("elsewhere");
    EXPECT_EQ(callLibrary(), kNotFound);
    setSharedFolder("shared");
    expectFound();
}

} // namespace
