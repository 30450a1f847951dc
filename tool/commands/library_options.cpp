#include "commands/library_options.h"

#include "commands/option_values.h"
#include "text/translate.h"

namespace iosphoto::tool {

void addLibraryOptions(CLI::App &command, LibraryRequest &request)
{
    command
        .add_option("SOURCE", request.source,
                    translate("Photos.sqlite, media folder, backup folder, or a zip or tar of one; "
                              "ARCHIVE/PATH is one in an archive, - standard input"))
        ->required();
    addDeviceOptions(command, request.device);
    addAsOfOption(
        command, request.asOf,
        translate("the moment that counts as now, of a day its beginning, such as 2024-05-01 or "
                  "now (see TIMES below): what had been in the trash for 30 days then is left "
                  "out (default: when the source was made)"));
}

void addAsOfOption(CLI::App &command, std::optional<Moment> &asOf, const std::string &description)
{
    command
        .add_option_function<std::string>(
            "--as-of",
            [&asOf](const std::string &text) {
                asOf = Moment{timeOf(text, "--as-of").first, ""};
            },
            description)
        ->type_name(translate("TIME"));
}

void addDeviceOptions(CLI::App &command, Device &device)
{
    command
        .add_option("--ios", device.iosVersion,
                    translate("iOS version, such as 17.4 (default: that of the source)"))
        ->type_name(translate("VERSION"))
        ->check(looksLike("[0-9]+(\\.[0-9]+)*[a-z]?", "17.4"));
    command
        .add_option(
            "--product", device.productType,
            translate("product type, such as iPhone14,2 (default: that of the source, or one "
                      "that hides no album)"))
        ->type_name(translate("MODEL"))
        ->check(looksLike("[A-Za-z]+[0-9]+,[0-9]+", "iPhone14,2"));
}

} // namespace iosphoto::tool
