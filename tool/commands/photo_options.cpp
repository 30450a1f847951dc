#include "commands/photo_options.h"

#include "commands/option_values.h"
#include "process/failure.h"
#include "text/did_you_mean.h"
#include "text/lists.h"
#include "text/translate.h"

namespace iosphoto::tool {

namespace {

const PhotoKind &kindOf(const std::string &name)
{
    if (const PhotoKind *const kind = findKind(name))
        return *kind;
    const std::string small = QString::fromStdString(name).toLower().toStdString();
    throw Failure(WrongUsage, translate("--kind: there is no kind '{0}'; there are {1}", name,
                                        joinedTexts(kindNames(), ", ")) +
                                  didYouMean(small, kindNames()));
}

PhotoOrder orderOf(const std::string &name)
{
    if (const auto order = orderNamed(name))
        return *order;
    throw Failure(WrongUsage, translate("--sort: there is no order '{0}'; there are {1}", name,
                                        joinedTexts(orderNames(), ", ")) +
                                  didYouMean(name, orderNames()));
}

void addTimes(CLI::App &command, PhotoFilter &filter)
{
    command
        .add_option_function<std::string>(
            "--since",
            [&filter](const std::string &text) { filter.since = timeOf(text, "--since").first; },
            translate("only what was created then or later; see TIMES below"))
        ->type_name(translate("TIME"));
    command
        .add_option_function<std::string>(
            "--until",
            [&filter](const std::string &text) { filter.until = timeOf(text, "--until").last; },
            translate("only what was created then or earlier; of a day, month or year, until its "
                      "end"))
        ->type_name(translate("TIME"));
}

/// An option of which each value counts when it is given several times.
CLI::Option &repeatable(CLI::Option *option)
{
    return *option->allow_extra_args(false);
}

void addNames(CLI::App &command, PhotoFilter &filter)
{
    repeatable(command.add_option(
                   "--album", filter.albums,
                   translate("only what the albums of this name, kind (such as selfies) or uuid "
                             "show; given several times, what any of them shows")))
        .type_name(translate("NAME"));
    repeatable(command.add_option("--uuid", filter.uuids,
                                  translate("only the photo with this uuid; may be given several "
                                            "times")))
        .type_name("UUID")
        ->check(looksLike("[^-]+.*", "5A3D1F00-0000-4000-8000-000000000001"));
    repeatable(command.add_option("--name", filter.names,
                                  translate("only files of this name, now or when they were "
                                            "imported, such as 'IMG_00*.HEIC'; may be given "
                                            "several times")))
        .type_name(translate("GLOB"))
        ->check(notEmpty());
}

void addKinds(CLI::App &command, PhotoFilter &filter)
{
    const auto addKind = [&filter](const std::vector<std::string> &names) {
        for (const std::string &name : names)
            filter.kinds.push_back(&kindOf(name));
    };
    CLI::Option *const kinds = command.add_option_function<std::vector<std::string>>(
        "--kind", addKind,
        translate("only these kinds, such as live,burst; any of them fits. There are {0}",
                  joinedTexts(kindNames(), ", ")));
    takeCommaList(*kinds).type_name(translate("KINDS"));
}

void addFlags(CLI::App &command, PhotoFilter &filter)
{
    CLI::Option *const deleted = command.add_flag("--deleted", filter.isDeleted,
                                                  translate("only what is in Recently Deleted"));
    command
        .add_option_function<std::string>(
            "--within",
            [&filter](const std::string &days) {
                filter.trashedWithinDays = parseNumber<int>(days, "--within");
            },
            translate(
                "with --deleted: only what was deleted within so many days before the library's "
                "time (--as-of)"))
        ->type_name(translate("NUMBER"))
        ->check(looksLike("0|[1-9][0-9]*", "7"))
        ->needs(deleted);
    command.add_flag("--hidden", filter.isHidden, translate("only hidden ones"));
    command.add_flag("--favorite", filter.isFavorite, translate("only favorites"));
    command.add_flag("--edited", filter.isEdited, translate("only edited ones"));
}

void addLeftOut(CLI::App &command, PhotoChoice &choice)
{
    CLI::Option *const leftOut = command.add_flag_callback(
        "--left-out", [&choice] { choice.shown = Shown::LeftOut; },
        translate("only what is in the database but in no album, and why (the field "
                  "leftOutBecause)"));
    command
        .add_flag_callback(
            "--with-left-out", [&choice] { choice.shown = Shown::Both; },
            translate("what is in no album, too, and why"))
        ->excludes(leftOut);
}

void addOrder(CLI::App &command, PhotoChoice &choice)
{
    command
        .add_option_function<std::string>(
            "--sort", [&choice](const std::string &name) { choice.sorting.order = orderOf(name); },
            translate(
                "sort by date (default: newest first), name, size, duration, added, modified or "
                "deleted"))
        ->type_name(translate("ORDER"));
    command.add_flag("--reverse", choice.sorting.isReversed, translate("reverse the order"));
    command
        .add_option_function<std::string>(
            "-n,--limit",
            [&choice](const std::string &count) {
                choice.sorting.most = parseNumber<std::size_t>(count, "--limit");
            },
            translate("show only so many, the first in the order"))
        ->type_name(translate("NUMBER"))
        ->check(looksLike("[1-9][0-9]*", "20"));
}

} // namespace

void addPhotoOptions(CLI::App &command, PhotoChoice &choice)
{
    addNames(command, choice.filter);
    addTimes(command, choice.filter);
    addKinds(command, choice.filter);
    addFlags(command, choice.filter);
    command.add_flag("--frames", choice.hasFrames,
                     translate("list every frame of a burst, not one for all"));
    addLeftOut(command, choice);
    addOrder(command, choice);
}

void addWhere(CLI::App &command, std::optional<std::string> &expression)
{
    command
        .add_option("--where", expression,
                    translate("only photos for which this SQL expression over the columns of "
                              "--sqlite is true"))
        ->type_name("SQL");
}

} // namespace iosphoto::tool
