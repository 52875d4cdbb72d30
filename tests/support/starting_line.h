// Where threads wait for each other, to go on at once. std::latch is not used: the Windows runtime's may lose the
// wake-up of a thread that is about to sleep, which then waits for ever.
#pragma once

#include <atomic>
#include <thread>

namespace support {

class StartingLine {
public:
    explicit StartingLine(int threads) : missing_{threads} {}

    void arriveAndWait()
    {
        --missing_;
        while (missing_ > 0)
            std::this_thread::yield();
    }

private:
    std::atomic<int> missing_;
};

} // namespace support
