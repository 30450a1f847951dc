#include "output/interruption.h"

#include "failure.h"
#include "language/said.h"

namespace iosphoto::tool {

namespace {

constexpr std::array<int, 3> signals = {SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t askedBy = 0;

void remember(int signal)
{
    askedBy = signal;
}

} // namespace

Interruption::Interruption()
{
    askedBy = 0;
    struct sigaction action = {};
    action.sa_handler = remember;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < signals.size(); ++i) {
        sigaction(signals.at(i), nullptr, &before_.at(i));
        if (before_.at(i).sa_handler != SIG_IGN) // as nohup asks for
            sigaction(signals.at(i), &action, nullptr);
    }
}

Interruption::~Interruption()
{
    for (std::size_t i = 0; i < signals.size(); ++i)
        sigaction(signals.at(i), &before_.at(i), nullptr);
}

void Interruption::throwIfAskedFor()
{
    if (askedBy != 0)
        throw Failure(static_cast<ExitStatus>(Interrupted + askedBy),
                      said("interrupted; every file that was written is complete"));
}

} // namespace iosphoto::tool
