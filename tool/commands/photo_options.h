#ifndef IOSPHOTO_TOOL_PHOTO_OPTIONS_H
#define IOSPHOTO_TOOL_PHOTO_OPTIONS_H

#include "catalogue/photo_selection.h"

#include <CLI/CLI.hpp>

namespace iosphoto::tool {

/// Adds the options that say which photos to show, and in which order.
void addPhotoOptions(CLI::App &command, PhotoChoice &choice);

/// Adds --where.
void addWhere(CLI::App &command, std::optional<std::string> &expression);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PHOTO_OPTIONS_H
