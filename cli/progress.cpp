#include "progress.h"

#include <algorithm>
#include <iostream>
#include <system_error>
#include <utility>

#include "label.h"
#include "os.h"

namespace quordsp::cli {
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
namespace {

const Clock::time_point kRunStart = Clock::now();

} // namespace

ProgressOutput errorStream()
{
    const auto write = [](std::string_view text) { std::cerr << text << std::flush; };
    const bool terminal = os::errorsGoToTerminal();
    static ProgressTimes times{kRunStart, kRunStart + 2s, terminal ? 250ms : 10000ms};
    return {write, terminal, &times};
}

std::string progressText(std::string_view what, std::size_t done, std::size_t total, std::chrono::seconds elapsed)
{
    const double share = total == 0 ? 0 : static_cast<double>(std::min(done, total)) / static_cast<double>(total);
    const std::string percent = total == 0 ? "" : std::to_string(static_cast<int>(100 * share)) + " %, ";
    return "quordsp: " + std::string(what) + ": " + percent + std::to_string(elapsed.count()) + " s";
}

// The work goes on without a word where the system has no thread to spare.
Progress::Progress(std::string what, std::size_t total, ProgressOutput output)
    : what_(printable(what)), total_(total), output_(std::move(output))
{
    try {
        watcher_ = std::thread([this] { watch(); });
    } catch (const std::system_error&) {
        return;
    }
}

Progress::~Progress()
{
    end();
    if (shown_ > 0)
        clearLine();
}

void Progress::end()
{
    {
        const std::lock_guard lock(mutex_);
        isOver_ = true;
    }
    wake_.notify_one();
    if (watcher_.joinable())
        watcher_.join();
}

void Progress::watch()
{
    ProgressTimes& times = *output_.times;
    std::unique_lock lock(mutex_);
    while (!wake_.wait_until(lock, times.next, [this] { return isOver_; })) {
        const auto now = Clock::now();
        show(std::chrono::floor<std::chrono::seconds>(now - times.start));
        times.next = now + times.pause;
    }
}

void Progress::show(std::chrono::seconds elapsed)
{
    const std::string text = progressText(what_, done_.load(std::memory_order_relaxed), total_, elapsed);
    if (!output_.terminal) {
        output_.write(text + '\n');
        return;
    }
    const std::size_t rest = shown_ > text.size() ? shown_ - text.size() : 0;
    output_.write('\r' + text + std::string(rest, ' '));
    shown_ = text.size();
}

void Progress::clearLine()
{
    output_.write('\r' + std::string(shown_, ' ') + '\r');
}

} // namespace quordsp::cli
