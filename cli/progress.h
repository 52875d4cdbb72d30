// How far a piece of work is, on the error stream, for those that take longer than a moment.
#pragma once
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

namespace quordsp::cli {

// When messages come, over all pieces of work of a run, of which there is one at a time.
struct ProgressTimes {
    std::chrono::steady_clock::time_point start; // of the run
    std::chrono::steady_clock::time_point next;  // message
    std::chrono::milliseconds pause;             // from one message to the next
};

struct ProgressOutput {
    std::function<void(std::string_view)> write; // called from another thread
    bool terminal;                               // one line, written over; otherwise a line each time
    ProgressTimes* times;
};

// The first message comes 2 seconds after the start of the run. A terminal shows the work four times a second from then
// on; a file or a pipe gets a line every 10 seconds.
ProgressOutput errorStream();

// "reading x.csv: 40 %, 3 s"; without a total "detrending: 3 s". The time is that of the run.
std::string progressText(std::string_view what, std::size_t done, std::size_t total, std::chrono::seconds elapsed);

// The work lasts as long as the object. A thread of its own does the talking, so that a call that cannot be looked into
// shows as well.
class Progress {
public:
    explicit Progress(std::string what, std::size_t total = 0, ProgressOutput output = errorStream());
    // Leaves the terminal's line empty.
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void reach(std::size_t done) noexcept { done_.store(done, std::memory_order_relaxed); }

private:
    void watch();
    void end();
    void show(std::chrono::seconds elapsed);
    void clearLine();

    std::string what_;
    std::size_t total_;
    ProgressOutput output_;
    std::atomic<std::size_t> done_{0};
    std::size_t shown_ = 0; // characters of the terminal's line
    std::mutex mutex_;
    std::condition_variable wake_;
    bool isOver_ = false;
    std::thread watcher_; // not one with a stop token: those of libstdc++ 12 can hang on Windows
};

} // namespace quordsp::cli
