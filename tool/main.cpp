#include "commands/albums.h"
#include "commands/photos.h"
#include "commands/thumb.h"
#include "evidence/with_evidence.h"
#include "failure.h"
#include "language/said.h"
#include "output/interruption_watch.h"
#include "output/notice.h"
#include "output/standard_output.h"
#include "source/sqlite_error_log.h"

#include <CLI/CLI.hpp>
#include <QRegularExpression>

#include <csignal>
#include <cstdio>
#include <iostream>
#include <limits>
#include <optional>

namespace {

using namespace iosphoto::tool;

/// The command line, parsed.
struct Options
{
    std::string database;
    Device device;
    std::optional<std::string> album;
    bool asJson = false;
};

/// Accepts what looks like `example` to a person, which `pattern` tells to us.
CLI::Validator looksLike(const char *pattern, const std::string &example)
{
    const QRegularExpression expression(QRegularExpression::anchoredPattern(pattern));
    return {[=](const std::string &text) {
                return expression.match(QString::fromStdString(text)).hasMatch()
                           ? std::string()
                           : "'" + text + "' is not of the form of " + example;
            },
            std::string()};
}

void addCommonOptions(CLI::App &command, Options &options)
{
    command
        .add_option("DATABASE", options.database,
                    "photo database, such as .../PhotoData/Photos.sqlite")
        ->required();
    command
        .add_option("--ios", options.device.iosVersion,
                    "iOS version, such as 17.4 (default: the newest with the database's tables)")
        ->check(looksLike("[0-9]+(\\.[0-9]+)*[a-z]?", "17.4"));
    command
        .add_option("--product", options.device.productType,
                    "product type, such as iPhone14,2 (default: one that hides no album)")
        ->check(looksLike("[A-Za-z]+[0-9]+,[0-9]+", "iPhone14,2"));
    command.add_flag("--json", options.asJson, "print a JSON document");
}

int showAlbums(const Options &options)
{
    const Library library(options.database, options.device);
    library.sayHowItWasRead();
    (options.asJson ? printAlbumsAsJson : printAlbums)(library, std::cout);
    return library.status();
}

int showPhotos(const Options &options)
{
    const Library library(options.database, options.device);
    const std::vector<Asset> photos = selectPhotos(library, options.album);
    library.sayHowItWasRead();
    if (options.asJson)
        printPhotosAsJson(library, photos, std::cout);
    else
        printPhotos(photos, std::cout);
    return library.status();
}

const CLI::Validator notEmpty(
    [](const std::string &text) { return std::string(text.empty() ? "names no file" : ""); }, "");

/// Adds the command that reads a thumbnail cache.
CLI::App &addThumb(CLI::App &app, ThumbRequest &request, std::optional<std::string> &evidence)
{
    CLI::App &thumb =
        *app.add_subcommand("thumb", "List or write the pictures of a thumbnail cache");
    thumb
        .add_option("CACHE", request.cache, "thumbnail cache, such as .../Thumbnails/120x120.ithmb")
        ->required();
    CLI::Option *output = thumb.add_option("-o,--output", request.output,
                                           "file (--index) or folder (--all) to write");
    // As text: files are named "0010.bmp", and a zero in front must not make the index octal.
    const auto takeIndex = [&request](const std::string &digits) {
        bool isInt = false;
        const int index = QString::fromStdString(digits).toInt(&isInt);
        request.index = isInt ? index : std::numeric_limits<int>::max();
    };
    CLI::Option *index = thumb
                             .add_option_function<std::string>(
                                 "--index", takeIndex, "write this thumbnail, as .bmp or .png")
                             ->check(looksLike("[0-9]+", "7"))
                             ->needs(output);
    CLI::Option *all = thumb.add_flag("--all", request.all, "write all thumbnails")
                           ->needs(output)
                           ->excludes(index);
    thumb.add_flag("--png", request.asPng, "write PNG files instead of BMP")->needs(all);
    CLI::Option *sheet = thumb.add_option("--sheet", request.sheet,
                                          "draw all on a contact sheet, a .png file; from 501 on "
                                          "also on FILE-2.png and so on");
    sheet->excludes(index, all, output);
    output->check(notEmpty);
    sheet->check(notEmpty);
    thumb.add_flag("--json", request.asJson, "print a JSON document");
    thumb
        .add_option("--evidence", evidence, said("write a JSON file of what was read and written"))
        ->check(notEmpty);
    thumb.footer("Examples:\n  iosphoto thumb 120x120.ithmb\n"
                 "  iosphoto thumb 120x120.ithmb --index 7 -o photo.png\n"
                 "  iosphoto thumb 120x120.ithmb --all -o thumbnails\n"
                 "  iosphoto thumb 120x120.ithmb --sheet sheet.png");
    return thumb;
}

/// Parses and runs a command.
int run(int argumentCount, char **arguments)
{
    CLI::App app("Reads the photo libraries of iOS devices. The files are only read.", "iosphoto");
    app.set_version_flag("--version", "iosphoto " IOSPHOTO_VERSION);
    app.require_subcommand(1);

    Options options;
    CLI::App &albums = *app.add_subcommand("albums", "List the albums of a library");
    addCommonOptions(albums, options);
    albums.footer("Example:\n  iosphoto albums Photos.sqlite");
    CLI::App &photos = *app.add_subcommand("photos", "List the photos of a library, each once");
    addCommonOptions(photos, options);
    photos.add_option("--album", options.album,
                      "only the albums of this name, kind (such as selfies) or uuid");
    photos.footer("Examples:\n  iosphoto photos Photos.sqlite --album favorites\n"
                  "  iosphoto photos Photos.sqlite --album \"Summer 2019\" --json");
    ThumbRequest thumbRequest;
    std::optional<std::string> evidence;
    CLI::App &thumb = addThumb(app, thumbRequest, evidence);
    try {
        app.parse(argumentCount, arguments);
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() == 0) // --help, --version
            return app.exit(error);
        throw Failure(WrongUsage, std::string(error.what()) + "; see iosphoto --help");
    }
    if (thumb.parsed()) {
        if (thumbRequest.output && !thumbRequest.index && !thumbRequest.all)
            throw Failure(WrongUsage, "--output requires --index or --all; see iosphoto --help");
        const std::vector<std::string> commandLine(arguments, arguments + argumentCount);
        return withEvidence(evidence, commandLine, [&](const TakeInputs &takeInputs) {
            takeInputs({thumbRequest.cache});
            return showThumbnails(thumbRequest, std::cout);
        });
    }
    return albums.parsed() ? showAlbums(options) : showPhotos(options);
}

} // namespace

int main(int argumentCount, char **arguments)
{
    sqlite_error_log::install();
    for (const int signal : {SIGXFSZ, SIGPIPE}) // a write that fails is an error like others
        std::signal(signal, SIG_IGN);
    try {
        const InterruptionWatch watch;
        const StandardOutput output;
        const int status = run(argumentCount, arguments);
        std::cout.flush();
        return status;
    } catch (const OutputClosed &closed) {
        return closed.status();
    } catch (const Failure &failure) {
        notice(failure.what());
        return failure.status();
    } catch (const std::exception &error) { // lack of memory, a temporary folder that vanished
        std::fprintf(stderr, "iosphoto: %s\n", error.what());
        return CannotAccess;
    }
}
