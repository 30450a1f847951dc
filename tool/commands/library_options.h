#ifndef IOSPHOTO_TOOL_LIBRARY_OPTIONS_H
#define IOSPHOTO_TOOL_LIBRARY_OPTIONS_H

#include "catalogue/library.h"

#include <CLI/CLI.hpp>

#include <optional>
#include <string>

namespace iosphoto::tool {

/// Adds the options that say which library to read, and as what.
void addLibraryOptions(CLI::App &command, LibraryRequest &request);

/// Adds --as-of.
void addAsOfOption(CLI::App &command, std::optional<Moment> &asOf, const std::string &description);

/// Adds --ios and --product.
void addDeviceOptions(CLI::App &command, Device &device);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_OPTIONS_H
