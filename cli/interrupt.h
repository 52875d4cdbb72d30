// Interruptions by the user or the system, put off while there is something to clear away.
#pragma once

namespace quordsp::cli {

// What ends a run that is interrupted.
struct Interrupted {
    int signal;
};

// What run() returns for one: this and the signal, as shells count.
inline constexpr int kInterruptedCode = 128;

// While one lives, an interruption is noted; a second one ends the process at once. Threads are not to make them at the
// same time.
class InterruptionsNoted {
public:
    InterruptionsNoted();
    ~InterruptionsNoted();
    InterruptionsNoted(const InterruptionsNoted&) = delete;
    InterruptionsNoted& operator=(const InterruptionsNoted&) = delete;
};

// Throws an Interrupted when one has been noted.
void endIfInterrupted();

} // namespace quordsp::cli
