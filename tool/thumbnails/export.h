#ifndef IOSPHOTO_TOOL_EXPORT_H
#define IOSPHOTO_TOOL_EXPORT_H

#include "session/session.h"
#include "thumbnails/thumb_cache.h"

#include <map>
#include <string>

namespace iosphoto::tool {

/// Files that an export wrote, by the index of the thumbnail or the number of the sheet.
using WrittenFiles = std::map<int, std::string>;

/// Whether a file that is there gives way. Where it does not, an export throws FileIsThere before
/// it writes anything.
enum class IfThere { Refuse, Replace };

/// Writes a thumbnail: BMP as the library decodes it, or PNG where the file's name says so. Throws
/// Failure as writeOutput() does, and when the name says something else.
WrittenFiles exportOne(Session &session, const ThumbCache &cache, const Thumbnail &thumbnail,
                       const std::string &file, IfThere ifThere);

/// Writes all thumbnails into a folder, named by their indexes, and makes the folder.
WrittenFiles exportAll(Session &session, const ThumbCache &cache, const std::string &folder,
                       bool asPng, IfThere ifThere);

/// Draws all thumbnails on a contact sheet. Those that have no room go to further sheets, numbered
/// from 2: "sheet.png", "sheet-2.png".
WrittenFiles exportSheets(Session &session, const ThumbCache &cache, const std::string &file,
                          IfThere ifThere);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_EXPORT_H
