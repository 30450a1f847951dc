#ifndef IOSPHOTO_TOOL_FAILURE_H
#define IOSPHOTO_TOOL_FAILURE_H

#include "process/exit_status.h"

#include <stdexcept>
#include <string>

namespace iosphoto::tool {

/// Ends a command. The text is one line: what is wrong, with which file, and what to do.
class Failure : public std::runtime_error
{
public:
    Failure(ExitStatus status, const std::string &text) : std::runtime_error(text), status_(status)
    {
    }

    ExitStatus status() const { return status_; }

private:
    ExitStatus status_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FAILURE_H
