#ifndef IOSPHOTO_TESTS_SHOWN_ON_TERMINAL_H
#define IOSPHOTO_TESTS_SHOWN_ON_TERMINAL_H

#include "support/pseudo_terminal.h"

#include <unistd.h>

namespace iosphoto::test {

/// What a terminal of 40 columns shows as stderr of a call.
template <typename Call>
std::string shownOnTerminal(Call call)
{
    PseudoTerminal terminal(40);
    const int before = dup(STDERR_FILENO);
    dup2(terminal.descriptor(), STDERR_FILENO);
    call();
    dup2(before, STDERR_FILENO);
    close(before);
    return terminal.text();
}

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_SHOWN_ON_TERMINAL_H
