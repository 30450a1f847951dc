#include "interruption_watch.h"

#include "process/exit_status.h"
#include "process/interruption_lock.h"
#include "process/temporary_path.h"
#include "terminal/hidden_input.h"
#include "terminal/status_line.h"
#include "text/translate.h"

#include <csignal>
#include <unistd.h>

namespace iosphoto::tool {

namespace {

bool isIgnored(int signal)
{
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler == SIG_IGN;
}

sigset_t setOf(const std::vector<int> &signals)
{
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : signals)
        sigaddset(&set, signal);
    return set;
}

} // namespace

InterruptionWatch::InterruptionWatch(const Terminal &terminal) : terminal_(terminal)
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT})
        if (!isIgnored(signal))
            signals_.push_back(signal);
    if (signals_.empty())
        return;
    const sigset_t set = setOf(signals_);
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    thread_ = std::thread([this] { waitForSignal(); });
}

InterruptionWatch::~InterruptionWatch()
{
    {
        const InterruptionLock lock;
        isOver_ = true;
    }
    if (!thread_.joinable())
        return;
    pthread_kill(thread_.native_handle(), signals_.front()); // wakes it
    thread_.join();
}

void InterruptionWatch::waitForSignal() const
{
    const sigset_t set = setOf(signals_);
    int signal = 0;
    sigwait(&set, &signal);
    const InterruptionLock lock; // until the process ends
    if (isOver_)
        return;
    try {
        stopHidingInput();
        removeTemporaryPaths();
        clearStatusLine(terminal_);
        terminal_.printError(translate("interrupted; every file that was written is complete"));
    } catch (...) { // whatever it is, the command ends here
    }
    _exit(Interrupted + signal);
}

} // namespace iosphoto::tool
