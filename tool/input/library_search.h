#ifndef IOSPHOTO_TOOL_LIBRARY_SEARCH_H
#define IOSPHOTO_TOOL_LIBRARY_SEARCH_H

#include "input/library_description.h"
#include "input/library_layout.h"
#include "input/passed_over.h"
#include "input/tree/file_tree.h"
#include "session/session.h"

#include <memory>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// What a search found, and what it did not look at.
struct LibrarySearch
{
    std::vector<FoundLibrary> libraries;
    std::vector<SourceFinding> unsearched;
    PassedOverPlaces passedOver;
};

/// That a source holds more than one photo library.
struct SeveralLibraries
{
    std::string source;
    bool areBackups;
    std::vector<LibraryDescription> libraries; ///< all, or more than `mostCounted`
    std::vector<SourceFinding> unsearched;
    std::vector<PassedOverNames> passedOver;

    static constexpr std::size_t mostCounted = 20;
};

/// That a source holds none.
struct NoLibraryFound
{
    SourceFinding finding;
    std::vector<SourceFinding> unsearched;
    std::vector<PassedOverNames> passedOver;
};

/// Finds the photo libraries in a folder of a tree, and in those in it. Throws Failure when one
/// cannot be read and there is none elsewhere.
/// @param shownName  the folder as the user named it, for messages
/// @param most       the search ends when it has found more
LibrarySearch searchLibraries(Session &session, const FileTree &tree, const std::string &top,
                              const std::string &shownName, std::size_t most);

/// Passes over the lone databases that are not of photos.
void passOverOtherDatabases(Session &session, const FileTree &tree, LibrarySearch &search);

std::vector<PassedOverNames> namesOf(const FileTree &tree, const PassedOverPlaces &places);

std::unique_ptr<LibraryLayout> layoutOf(Session &session, const FileTree &tree,
                                        const FoundLibrary &library);

/// The one library of a search, or that which the searched folder itself is: the others are passed
/// over. Throws NoLibraryFound when there is none, SeveralLibraries when there are more, and what
/// the layouts throw.
std::unique_ptr<LibraryLayout> onlyLibrary(Session &session, const FileTree &tree,
                                           LibrarySearch &search, const std::string &top,
                                           const std::string &shownName);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_SEARCH_H
