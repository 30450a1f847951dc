#include "commands/photo_options.h"

#include "commands/comma_list.h"
#include "commands/looks_like.h"
#include "language/said.h"

#include <fmt/ranges.h>

namespace iosphoto::tool {

namespace {

void addTimes(CLI::App &command, PhotoFilter &filter)
{
    command
        .add_option_function<std::string>(
            "--since",
            [&filter](const std::string &text) { filter.since = parseTime(text, "--since").first; },
            said("only what was created then or later, such as 2024-05-01 or '2024-05-01 12:30'"))
        ->type_name(said("TIME"));
    command
        .add_option_function<std::string>(
            "--until",
            [&filter](const std::string &text) { filter.until = parseTime(text, "--until").last; },
            said("only what was created then or earlier; of a day, until its end"))
        ->type_name(said("TIME"));
}

void addKinds(CLI::App &command, PhotoFilter &filter)
{
    const auto addKind = [&filter](const std::vector<std::string> &names) {
        for (const std::string &name : names)
            filter.kinds.push_back(kindNamed(name));
    };
    CLI::Option *const kinds = command.add_option_function<std::vector<std::string>>(
        "--kind", addKind,
        said("only these kinds, such as live,burst; any of them fits. There are {0}",
             fmt::join(kindNames(), ", ")));
    takeCommaList(*kinds).type_name(said("KINDS"));
}

void addFlags(CLI::App &command, PhotoFilter &filter)
{
    CLI::Option *const deleted =
        command.add_flag("--deleted", filter.isDeleted, said("only what is in Recently Deleted"));
    command
        .add_option(
            "--within", filter.trashedWithinDays,
            said("with --deleted: only what was deleted within so many days before the library's "
                 "time (--as-of)"))
        ->type_name(said("NUMBER"))
        ->check(looksLike("0|[1-9][0-9]*", "7"))
        ->needs(deleted);
    command.add_flag("--hidden", filter.isHidden, said("only hidden ones"));
    command.add_flag("--favorite", filter.isFavorite, said("only favorites"));
    command.add_flag("--edited", filter.isEdited, said("only edited ones"));
}

void addOrder(CLI::App &command, PhotoChoice &choice)
{
    command
        .add_option_function<std::string>(
            "--sort", [&choice](const std::string &name) { choice.order = orderNamed(name); },
            said("sort by date (default: newest first), name, size, duration, added, modified or "
                 "deleted"))
        ->type_name(said("ORDER"));
    command.add_flag("--reverse", choice.isReversed, said("reverse the order"));
    command.add_option("--limit", choice.limit, said("show only so many, the first in the order"))
        ->type_name(said("NUMBER"))
        ->check(looksLike("[1-9][0-9]*", "20"));
}

} // namespace

void addPhotoOptions(CLI::App &command, PhotoChoice &choice)
{
    command
        .add_option("--album", choice.filter.album,
                    said("only what the albums of this name, kind (such as selfies) or uuid show"))
        ->type_name(said("NAME"));
    addTimes(command, choice.filter);
    addKinds(command, choice.filter);
    addFlags(command, choice.filter);
    command.add_flag("--frames", choice.hasFrames,
                     said("list every frame of a burst, not one for all"));
    addOrder(command, choice);
}

} // namespace iosphoto::tool
