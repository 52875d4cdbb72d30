#include "interrupt.h"

#include <atomic>
#include <csignal>
#include <cstddef>
#include <iterator>

namespace quordsp::cli {
namespace {

using Handler = void (*)(int);

constexpr int kSignals[] = {
    SIGINT,
    SIGTERM,
#ifdef SIGHUP
    SIGHUP,
#endif
#ifdef SIGBREAK
    SIGBREAK,
#endif
};

std::atomic<int> noted{0};
Handler before[std::size(kSignals)];
int living = 0;

static_assert(std::atomic<int>::is_always_lock_free); // the handler may run at any time

// A second one is obeyed: the first one might wait for a disk that does not answer.
extern "C" void note(int signal)
{
    if (noted.exchange(signal) == 0)
        std::signal(signal, note); // some systems forget it at the call
    else {
        std::signal(signal, SIG_DFL);
        std::raise(signal);
    }
}

} // namespace

// What is ignored stays so, as nohup has it.
InterruptionsNoted::InterruptionsNoted()
{
    if (living++ > 0)
        return;
    for (std::size_t i = 0; i < std::size(kSignals); ++i) {
        before[i] = std::signal(kSignals[i], note);
        if (before[i] == SIG_IGN)
            std::signal(kSignals[i], SIG_IGN);
    }
}

InterruptionsNoted::~InterruptionsNoted()
{
    if (--living > 0)
        return;
    for (std::size_t i = 0; i < std::size(kSignals); ++i)
        std::signal(kSignals[i], before[i] == SIG_ERR ? SIG_DFL : before[i]);
}

void endIfInterrupted()
{
    if (const int signal = noted.exchange(0))
        throw Interrupted{signal};
}

} // namespace quordsp::cli
