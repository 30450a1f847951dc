#ifndef IOSPHOTO_TOOL_INTERRUPTION_H
#define IOSPHOTO_TOOL_INTERRUPTION_H

#include <array>
#include <csignal>

namespace iosphoto::tool {

/// While it lives, the wish to end the command (Ctrl-C, a closed terminal) waits for the next
/// throwIfAskedFor(), so that nothing half done is left behind. One at a time.
class Interruption
{
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption &) = delete;
    Interruption &operator=(const Interruption &) = delete;

    /// Throws Failure when somebody wished the command to end.
    static void throwIfAskedFor();

private:
    std::array<struct sigaction, 3> before_ = {};
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_INTERRUPTION_H
