#ifndef IOSPHOTO_TOOL_LIBRARY_LIST_H
#define IOSPHOTO_TOOL_LIBRARY_LIST_H

#include "input/library_search.h"
#include "session/session.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// A library as a person chooses it among several.
struct ListedLibrary
{
    LibraryDescription description;
    /// The rows of its photos and videos, in the trash or not; nothing where counting them takes
    /// long, or cannot be done.
    std::optional<std::int64_t> assetCount;
};

/// The libraries in a folder or an archive, the latest backup first.
struct LibraryList
{
    std::vector<ListedLibrary> libraries;
    std::vector<SourceFinding> unsearched; ///< where nobody could look
    std::vector<SourceFinding> findings;   ///< what is missing from the libraries

    bool isComplete() const { return unsearched.empty() && findings.empty(); }
};

/// Throws when there is nothing to look in.
LibraryList listLibraries(Session &session, const std::string &place);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_LIST_H
