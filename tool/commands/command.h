#ifndef IOSPHOTO_TOOL_COMMAND_H
#define IOSPHOTO_TOOL_COMMAND_H

#include "process/exit_status.h"
#include "session/session.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <ostream>

namespace iosphoto::tool {

/// A command of the tool: its options, and what it does with them when it is the one asked for. It
/// prints on the stream what it found.
struct Command
{
    CLI::App *options;
    std::function<ExitStatus(Session &, std::ostream &)> run;
    bool opensBackups = false; ///< so that it takes their passwords
};

/// Each adds a command to the tool.
Command addInfo(CLI::App &app);
Command addAlbums(CLI::App &app);
Command addBackups(CLI::App &app);
Command addDiff(CLI::App &app);
Command addPhotos(CLI::App &app);
Command addStatements(CLI::App &app);
Command addThumb(CLI::App &app);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_COMMAND_H
