#include "commands/command.h"
#include "failure.h"
#include "language/said.h"
#include "output/notice.h"
#include "source/sqlite_error_log.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <iterator>

namespace {

using namespace iosphoto::tool;

/// Parses and runs a command.
int run(int argumentCount, char **arguments)
{
    CLI::App app("Reads the photo libraries of iOS devices. The files are only read.", "iosphoto");
    app.set_version_flag("--version", "iosphoto " IOSPHOTO_VERSION);
    app.require_subcommand(1);

    const Command commands[] = {addAlbums(app), addDiff(app), addPhotos(app), addStatements(app),
                                addThumb(app)};
    try {
        app.parse(argumentCount, arguments);
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() == 0) // --help, --version
            return app.exit(error);
        throw Failure(WrongUsage, std::string(error.what()) + "; see iosphoto --help");
    }
    const auto *const wanted =
        std::find_if(std::begin(commands), std::end(commands),
                     [](const Command &command) { return command.options->parsed(); });
    return wanted->run(std::cout);
}

} // namespace

int main(int argumentCount, char **arguments)
{
    sqlite_error_log::install();
    std::signal(SIGXFSZ, SIG_IGN); // a file that grows too large is an error like others
    try {
        const int status = run(argumentCount, arguments);
        std::cout.flush();
        if (!std::cout)
            throw Failure(CannotAccess, "cannot write the output; is the disk full?");
        return status;
    } catch (const Failure &failure) {
        notice(failure.what());
        return failure.status();
    } catch (const std::exception &error) { // lack of memory, a temporary folder that vanished
        std::fprintf(stderr, "iosphoto: %s\n", error.what());
        return CannotAccess;
    }
}
