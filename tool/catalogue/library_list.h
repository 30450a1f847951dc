#ifndef IOSPHOTO_TOOL_LIBRARY_LIST_H
#define IOSPHOTO_TOOL_LIBRARY_LIST_H

#include "input/library_search.h"
#include "session/session.h"

#include <cstddef>
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
    std::vector<PassedOverNames> passedOver;

    bool isComplete() const { return unsearched.empty() && findings.empty(); }
};

/// Throws when there is nothing to look in.
/// @param most  the list ends after so many
LibraryList listLibraries(Session &session, const std::string &place, std::size_t most = 10'000);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_LIST_H
