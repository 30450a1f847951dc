#include "commands/albums.h"
#include "commands/photos.h"
#include "failure.h"
#include "output/notice.h"
#include "source/sqlite_error_log.h"

#include <CLI/CLI.hpp>
#include <QRegularExpression>

#include <cstdio>
#include <iostream>
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
    try {
        app.parse(argumentCount, arguments);
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() == 0) // --help, --version
            return app.exit(error);
        throw Failure(WrongUsage, std::string(error.what()) + "; see iosphoto --help");
    }
    return albums.parsed() ? showAlbums(options) : showPhotos(options);
}

} // namespace

int main(int argumentCount, char **arguments)
{
    sqlite_error_log::install();
    try {
        const int status = run(argumentCount, arguments);
        std::cout.flush();
        if (!std::cout)
            throw Failure(CannotRead, "cannot write the output; is the disk full?");
        return status;
    } catch (const Failure &failure) {
        notice(failure.what());
        return failure.status();
    } catch (const std::exception &error) { // lack of memory, a temporary folder that vanished
        std::fprintf(stderr, "iosphoto: %s\n", error.what());
        return CannotRead;
    }
}
