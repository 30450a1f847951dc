#ifndef IOSPHOTO_TOOL_COMMAND_THUMB_H
#define IOSPHOTO_TOOL_COMMAND_THUMB_H

#include "exit_status.h"

#include <optional>
#include <ostream>
#include <string>

namespace iosphoto::tool {

/// What `iosphoto thumb` is asked for. With none of index, all and sheet: the list.
struct ThumbRequest
{
    std::string cache;
    std::optional<int> index;          ///< write this thumbnail to `output`
    bool all = false;                  ///< write all thumbnails into the folder `output`
    std::optional<std::string> sheet;  ///< draw all on a contact sheet
    std::optional<std::string> output; ///< there with index and all
    bool asPng = false;                ///< with `all`
    bool asJson = false;
};

/// `iosphoto thumb`: lists the thumbnails of a cache or writes them as pictures. Says on `out` what
/// it did.
ExitStatus showThumbnails(const ThumbRequest &request, std::ostream &out);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_COMMAND_THUMB_H
