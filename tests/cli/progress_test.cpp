#include "progress.h"

#include <condition_variable>
#include <mutex>

#include <gmock/gmock.h>

namespace quordsp::cli {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::StartsWith;

// Collects what the watching thread writes, and waits for it.
class Sink {
public:
    ProgressOutput output(bool terminal, std::chrono::milliseconds first, std::chrono::milliseconds pause = 5ms)
    {
        const auto now = std::chrono::steady_clock::now();
        times_ = {now, now + first, pause};
        const auto write = [this](std::string_view text) {
            const std::lock_guard lock(mutex_);
            text_ += text;
            more_.notify_one();
        };
        return {write, terminal, &times_};
    }

    std::string waitFor(const std::string& part)
    {
        std::unique_lock lock(mutex_);
        more_.wait_for(lock, 20s, [&] { return text_.find(part) != std::string::npos; });
        return text_;
    }

    std::string text()
    {
        const std::lock_guard lock(mutex_);
        return text_;
    }

private:
    ProgressTimes times_;
    std::mutex mutex_;
    std::condition_variable more_;
    std::string text_;
};

TEST(ProgressText, TellsTheShareAndTheTime)
{
    EXPECT_EQ(progressText("reading", 45, 100, 3s), "quordsp: reading: 45 %, 3 s");
    EXPECT_EQ(progressText("reading", 101, 100, 61s), "quordsp: reading: 100 %, 61 s");
}

TEST(ProgressText, TellsTheTimeAloneOfWorkThatCannotBeLookedInto)
{
    EXPECT_EQ(progressText("fitting", 0, 0, 2s), "quordsp: fitting: 2 s");
}

TEST(Progress, SaysNothingAboutShortWork)
{
    Sink sink;
    {
        Progress progress("reading", 10, sink.output(true, 1h));
        progress.reach(10);
    }
    EXPECT_EQ(sink.text(), "");
}

TEST(Progress, RewritesTheLineOfATerminalAndLeavesItEmpty)
{
    Sink sink;
    {
        Progress progress("reading", 4, sink.output(true, 5ms));
        EXPECT_THAT(sink.waitFor(": 0 %"), StartsWith("\rquordsp: reading: 0 %, 0 s"));
        progress.reach(3);
        sink.waitFor("\rquordsp: reading: 75 %");
    }
    const std::string text = sink.text();
    EXPECT_THAT(text, HasSubstr("\rquordsp: reading: 75 %"));
    EXPECT_EQ(text.find('\n'), std::string::npos);
    EXPECT_EQ(text.substr(text.size() - 5), "    \r");
}

TEST(Progress, WritesWholeLinesToAFile)
{
    Sink sink;
    {
        const Progress progress("fitting\n", 0, sink.output(false, 5ms));
        sink.waitFor(" s\n");
    }
    EXPECT_THAT(sink.text(), StartsWith("quordsp: fitting?: 0 s\n"));
    EXPECT_EQ(sink.text().find('\r'), std::string::npos);
}

TEST(Progress, GoesByTheClockOfTheRunOverSeveralPiecesOfWork)
{
    Sink sink;
    const ProgressOutput output = sink.output(false, 5ms, 1h);
    output.times->start -= 7s;
    for (const char* const what : {"reading", "fitting", "writing"}) {
        const Progress progress(what, 0, output);
        sink.waitFor("quordsp: reading: 7 s\n");
    }
    EXPECT_EQ(sink.text(), "quordsp: reading: 7 s\n");
}

TEST(Progress, SpeaksAtOnceWhenTheMomentPassedBetweenTwoPiecesOfWork)
{
    Sink sink;
    const ProgressOutput output = sink.output(false, 1h, 1h);
    {
        const Progress progress("reading", 0, output);
    }
    output.times->next = output.times->start;
    const Progress progress("fitting", 0, output);
    EXPECT_EQ(sink.waitFor("\n"), "quordsp: fitting: 0 s\n");
}

TEST(ErrorStream, SpeaksTwoSecondsAfterTheStartOfTheRun)
{
    const ProgressTimes& times = *errorStream().times;
    EXPECT_EQ(times.next - times.start, 2s);
    EXPECT_EQ(&times, errorStream().times);
}

} // namespace
} // namespace quordsp::cli
