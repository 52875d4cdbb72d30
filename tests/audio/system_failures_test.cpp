// What the writers make of a system that refuses, as it is or through functions of the system replaced below.
#include <array>
#include <cerrno>
#include <csignal>
#include <span>
#include <thread>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "QuorDSP_DAQ.h"
#include "own_file.h"
#include "reference/wav.h"
#include "support/failing_new.h"

namespace quordsp {
namespace {

constexpr int kSystem = 0; // an answer that is left to the system

// What the next calls answer: a number of bytes to write at most, or an error as a negative number.
std::vector<long> answersOfWrite;
int answerOfClose = kSystem;
std::array<std::size_t, 100> sizesWritten; // an array: the calls must not allocate
std::size_t calls = 0;
std::size_t requestsForLargePages = 0; // all of which are refused

} // namespace
} // namespace quordsp

extern "C" ssize_t write(int file, const void* bytes, size_t size)
{
    using namespace quordsp;
    long answer = kSystem;
    if (file > STDERR_FILENO) {
        sizesWritten.at(calls++) = size;
        if (!answersOfWrite.empty()) {
            answer = answersOfWrite.front();
            answersOfWrite.erase(answersOfWrite.begin());
        }
    }
    if (answer < 0) {
        errno = static_cast<int>(-answer);
        return -1;
    }
    return syscall(SYS_write, file, bytes, answer > 0 ? static_cast<size_t>(answer) : size);
}

extern "C" int close(int file)
{
    const long result = syscall(SYS_close, file);
    if (quordsp::answerOfClose < 0) {
        errno = -quordsp::answerOfClose;
        return -1;
    }
    return static_cast<int>(result);
}

extern "C" int madvise(void*, size_t, int advice) noexcept
{
    quordsp::requestsForLargePages += advice == MADV_HUGEPAGE;
    errno = ENOSYS;
    return -1;
}

namespace quordsp {
namespace {

using testing::ElementsAre;

const std::vector<float> kSamples(100, 0.25f);

AnalysisLibErrType writeStereo(const std::string& path)
{
    return QuorDSP_WriteWAV(path.c_str(), kSamples.data(), 100, 8000);
}

AnalysisLibErrType writeFile(const std::string& path)
{
    return QuorDSP_WriteWAVFile(path.c_str(), kSamples.data(), 100, 8000, 16, 2);
}

const std::string kStereo = reference::stereoWav(kSamples, 100, 8000);
const std::string kFile = reference::pcmWav(kSamples, 100, 8000, 16, 2);

TEST(SystemFailures, NoneMeansThatOneCallWritesHeaderAndSamples)
{
    EXPECT_EQ(writeStereo(ownPath("stereo.wav")), 0);
    EXPECT_EQ(writeFile(ownPath("file.wav")), 0);
    EXPECT_THAT(std::span(sizesWritten).first(calls), ElementsAre(456, 444));
}

TEST(SystemFailures, LargePagesAreRequestedForLargeFilesAndMayBeRefused)
{
    const std::string path = ownPath("stereo.wav");
    std::vector<float> samples(std::size_t{1} << 20, 0.25f);
    QuorDSP_WriteWAV(path.c_str(), samples.data(), (1 << 20) - 15, 8000); // 4 bytes short of 4 MB
    EXPECT_EQ(requestsForLargePages, 0u);
    EXPECT_EQ(QuorDSP_WriteWAV(path.c_str(), samples.data(), (1 << 20) - 14, 8000), 0);
    EXPECT_EQ(requestsForLargePages, 1u);
    EXPECT_TRUE(contentOf(path) == reference::stereoWav(samples, (1 << 20) - 14, 8000));
}

TEST(SystemFailures, AWriteThatTakesAPartIsContinued)
{
    answersOfWrite = {1, 100, -EINTR, 200};
    EXPECT_EQ(writeStereo(ownPath("stereo.wav")), 0);
    EXPECT_EQ(contentOf(ownPath("stereo.wav")), kStereo);
    answersOfWrite = {-EINTR, 43};
    EXPECT_EQ(writeFile(ownPath("file.wav")), 0);
    EXPECT_EQ(contentOf(ownPath("file.wav")), kFile);
}

TEST(SystemFailures, AnErrorHalfwayLeavesNoFile)
{
    for (const int error : {ENOSPC, EIO, EDQUOT}) {
        answersOfWrite = {100, -error};
        EXPECT_EQ(writeStereo(ownPath("stereo.wav")), 20033);
        answersOfWrite = {100, -error};
        EXPECT_EQ(writeFile(ownPath("file.wav")), 0);
        EXPECT_TRUE(std::filesystem::is_empty(support::ownFolder())) << error;
    }
}

TEST(SystemFailures, AnErrorOnClosingLeavesNoFile)
{
    answerOfClose = -ENOSPC;
    const AnalysisLibErrType stereo = writeStereo(ownPath("stereo.wav"));
    const AnalysisLibErrType file = writeFile(ownPath("file.wav"));
    answerOfClose = kSystem;
    EXPECT_EQ(stereo, 20033);
    EXPECT_EQ(file, 0);
    EXPECT_TRUE(std::filesystem::is_empty(support::ownFolder()));
}

TEST(SystemFailures, ALimitOfTheFileSizeLeavesNoFile)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
    limit.rlim_cur = 400;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    EXPECT_EQ(writeStereo(ownPath("stereo.wav")), 20033);
    EXPECT_EQ(writeFile(ownPath("file.wav")), 0);
    EXPECT_TRUE(std::filesystem::is_empty(support::ownFolder()));
}

TEST(SystemFailures, ADeviceWithoutSpaceStays)
{
    EXPECT_EQ(writeStereo("/dev/full"), 20033);
    EXPECT_EQ(writeFile("/dev/full"), 0);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
    EXPECT_EQ(writeStereo("/dev/null"), 0);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

TEST(SystemFailures, ALinkStaysAndLeadsToAnEmptyFile)
{
    put("target.wav", "old");
    std::filesystem::create_symlink("target.wav", ownPath("link.wav"));
    EXPECT_EQ(writeStereo(ownPath("link.wav")), 0);
    EXPECT_EQ(contentOf(ownPath("target.wav")), kStereo);
    answersOfWrite = {100, -ENOSPC};
    EXPECT_EQ(writeStereo(ownPath("link.wav")), 20033);
    EXPECT_TRUE(std::filesystem::is_symlink(ownPath("link.wav")));
    EXPECT_EQ(contentOf(ownPath("target.wav")), "");
}

TEST(SystemFailures, APipeTakesTheFileToo)
{
    const std::string path = ownPath("pipe");
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    std::string received;
    std::thread reader{[&] { received = contentOf(path); }};
    EXPECT_EQ(writeStereo(path), 0);
    reader.join();
    EXPECT_EQ(received, kStereo);
}

// Nothing is forbidden to the superuser: as such, the test goes on as somebody else.
void dropPrivileges()
{
    if (geteuid() == 0)
        ASSERT_EQ(seteuid(65534), 0);
}

TEST(SystemFailures, AReadOnlyFileStays)
{
    // In a folder that everybody may enter, wherever the build is.
    std::string folder = std::filesystem::temp_directory_path() / "quordsp_read_only_XXXXXX";
    ASSERT_TRUE(mkdtemp(folder.data()));
    ASSERT_EQ(chmod(folder.c_str(), 0555), 0);
    const std::string path = folder + "/kept.wav";
    std::ofstream{path} << "kept"; // not even made when this is not the superuser
    chmod(path.c_str(), 0444);
    const std::string before = contentOf(path);
    const uid_t user = geteuid();
    dropPrivileges();
    EXPECT_EQ(writeStereo(path), 20033);
    EXPECT_EQ(writeFile(path), 0);
    EXPECT_EQ(writeStereo(folder + "/new.wav"), 20033);
    EXPECT_EQ(writeFile(folder + "/new.wav"), 0);
    ASSERT_EQ(seteuid(user), 0);
    EXPECT_EQ(contentOf(path), before);
    EXPECT_FALSE(exists(folder + "/new.wav"));
    chmod(folder.c_str(), 0755);
    std::filesystem::remove_all(folder);
}

TEST(SystemFailures, WithoutMemoryAFileThatIsThereStays)
{
    const std::string path = put("kept.wav", "kept");
    const char* const name = path.c_str();
    AnalysisLibErrType status = QUORDSP_SUCCESS;
    const auto unchanged = [&](int) {
        EXPECT_EQ(contentOf(path), "kept");
        EXPECT_EQ(status, 20033);
    };
    const auto stereo = [&] { status = QuorDSP_WriteWAV(name, kSamples.data(), 100, 8000); };
    EXPECT_EQ(support::failEveryAllocation(stereo, unchanged), 1);
    put("kept.wav", "kept");
    const auto file = [&] { QuorDSP_WriteWAVFile(name, kSamples.data(), 100, 8000, 16, 2); };
    EXPECT_EQ(support::failEveryAllocation(file, [&](int) { EXPECT_EQ(contentOf(path), "kept"); }), 1);
    EXPECT_EQ(contentOf(path), kFile);
}

} // namespace
} // namespace quordsp
