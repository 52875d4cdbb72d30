#include "file.h"

#include <csignal>

#include <gmock/gmock.h>

#include "failure_of.h"
#include "scratch_folder.h"

namespace quordsp::cli {
namespace {

using testing::HasSubstr;

TEST(ReadFile, ReturnsEveryByte)
{
    const ScratchFolder folder;
    const std::string bytes("a\0\r\n\x1A\xFFz", 7);
    EXPECT_EQ(readFile(folder.put("f", bytes)), bytes);
}

TEST(ReadFile, NamesAFileThatIsNotThere)
{
    const ScratchFolder folder;
    const Failure failure = failureOf([&] { readFile(folder / "none.csv"); });
    EXPECT_EQ(failure.code(), ExitCode::Input);
    EXPECT_THAT(failure.what(), HasSubstr("none.csv: No such file or directory"));
}

TEST(ReadFile, RefusesAFolder)
{
    const ScratchFolder folder;
    EXPECT_THAT(messageOf([&] { readFile(folder / ""); }), HasSubstr("it is a folder"));
}

TEST(SameFile, KnowsAFileThatIsNotThereByItsPlace)
{
    const auto here = std::filesystem::current_path();
    EXPECT_TRUE(sameFile("none.csv", here / "none.csv"));
    EXPECT_TRUE(sameFile("a/../none.csv", "./none.csv"));
    EXPECT_FALSE(sameFile("none.csv", here / "a/none.csv"));
    EXPECT_FALSE(sameFile("none.csv", "other.csv"));
    EXPECT_FALSE(sameFile("", ""));
}

TEST(SameFile, LooksThroughLinkedFolders)
{
    const ScratchFolder folder;
    std::filesystem::create_directory(folder / "real");
    std::error_code error;
    std::filesystem::create_directory_symlink(folder / "real", folder / "linked", error);
    if (error)
        GTEST_SKIP() << "the system has no links";
    EXPECT_TRUE(sameFile(folder / "real/new.csv", folder / "linked/new.csv"));
}

TEST(SameFile, TakesUpperAndLowerCaseAsTheSystemDoes)
{
    const ScratchFolder folder;
    folder.put("probe", "");
    EXPECT_EQ(sameFile(folder / u8"new\u00E4.csv", folder / u8"NEW\u00C4.CSV"),
              std::filesystem::exists(folder / "PROBE"));
}

TEST(OutputFile, HasItsNameAfterTheCommitOnly)
{
    const ScratchFolder folder;
    {
        OutputFile file(folder / "out");
        file.write("content");
        EXPECT_FALSE(std::filesystem::exists(folder / "out"));
        file.commit();
    }
    EXPECT_EQ(ScratchFolder::get(folder / "out"), "content");
    EXPECT_EQ(folder.fileCount(), 1);
}

TEST(OutputFile, LeavesNothingBehindWithoutACommit)
{
    const ScratchFolder folder;
    {
        OutputFile file(folder / "out");
        file.write("half");
    }
    EXPECT_EQ(folder.fileCount(), 0);
}

TEST(OutputFile, KeepsTheOlderFileWithoutACommit)
{
    const ScratchFolder folder;
    folder.put("out", "older");
    {
        OutputFile file(folder / "out");
        file.write("half");
    }
    EXPECT_EQ(ScratchFolder::get(folder / "out"), "older");
    EXPECT_EQ(folder.fileCount(), 1);
}

TEST(OutputFile, ReplacesTheOlderFile)
{
    const ScratchFolder folder;
    folder.put("out", "older and longer");
    OutputFile file(folder / "out");
    file.write("newer");
    file.commit();
    EXPECT_EQ(ScratchFolder::get(folder / "out"), "newer");
}

TEST(OutputFile, RefusesAFolderThatIsNotThere)
{
    const ScratchFolder folder;
    const Failure failure = failureOf([&] { OutputFile file(folder / "none/out"); });
    EXPECT_EQ(failure.code(), ExitCode::Output);
    EXPECT_THAT(failure.what(), HasSubstr("No such file or directory"));
}

TEST(OutputFile, RefusesToReplaceAFolder)
{
    const ScratchFolder folder;
    std::filesystem::create_directory(folder / "out");
    EXPECT_EQ(failureOf([&] { OutputFile file(folder / "out"); }).code(), ExitCode::Output);
    EXPECT_EQ(folder.fileCount(), 1);
}

TEST(OutputFile, TakesNamesOutsideAscii)
{
    const ScratchFolder folder;
    const std::filesystem::path name = folder / u8"\u00E4\u4E2D.csv";
    OutputFile file(name);
    file.write("x");
    file.commit();
    EXPECT_EQ(readFile(name), "x");
    EXPECT_THAT(display(name), HasSubstr("\xC3\xA4\xE4\xB8\xAD.csv"));
}

TEST(PendingFile, HasATemporaryNameOfAsciiBesideItsTarget)
{
    const ScratchFolder folder;
    const PendingFile file(folder / u8"\u00E4.wav");
    EXPECT_EQ(file.temporary().parent_path(), file.target().parent_path());
    for (const char c : display(file.temporary().filename()))
        EXPECT_TRUE(c > ' ' && c < 0x7F) << c;
}

TEST(PendingFile, NamesItsTargetAndTheReasonWhenItCannotBeCreated)
{
    const ScratchFolder folder;
    const Failure failure = failureOf([&] { static_cast<void>(PendingFile(folder / "none/f.wav").create()); });
    EXPECT_EQ(failure.code(), ExitCode::Output);
    EXPECT_THAT(failure.what(), HasSubstr("f.wav: No such file or directory"));
}

TEST(OutputFile, LeavesNothingBehindWhenTheRunIsInterrupted)
{
    const ScratchFolder folder;
    for (const int signal : {SIGINT, SIGTERM}) {
        {
            OutputFile file(folder / "out");
            OutputFile other(folder / "other");
            file.write("half of it");
            EXPECT_EQ(std::raise(signal), 0);
            EXPECT_THROW(other.write("the rest"), Interrupted);
        }
        EXPECT_EQ(folder.fileCount(), 0);
        EXPECT_EQ(std::signal(signal, SIG_DFL), SIG_DFL); // as it was
    }
}

TEST(PendingFile, GivesItsTargetWhatAnotherHasWritten)
{
    const ScratchFolder folder;
    PendingFile file(folder / "out");
    std::ofstream(file.temporary()) << "content";
    file.commit();
    EXPECT_EQ(ScratchFolder::get(folder / "out"), "content");
    EXPECT_EQ(folder.fileCount(), 1);
}

} // namespace
} // namespace quordsp::cli
