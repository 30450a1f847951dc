#include "output/interruption.h"

#include "failure.h"

#include <csignal>

namespace iosphoto::tool {

namespace {

constexpr int signals[] = {SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t askedBy = 0;

void remember(int signal)
{
    askedBy = signal;
}

void handleSignals(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : signals)
        sigaction(signal, &action, nullptr);
}

} // namespace

Interruption::Interruption()
{
    handleSignals(remember);
}

Interruption::~Interruption()
{
    handleSignals(SIG_DFL);
}

void Interruption::throwIfAskedFor()
{
    if (askedBy != 0)
        throw Failure(Interrupted, "interrupted; what was written until then is complete");
}

} // namespace iosphoto::tool
