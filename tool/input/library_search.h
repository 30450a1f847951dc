#ifndef IOSPHOTO_TOOL_LIBRARY_SEARCH_H
#define IOSPHOTO_TOOL_LIBRARY_SEARCH_H

#include "input/library_layout.h"
#include "input/tree/file_tree.h"
#include "session/session.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// A library that was found: its kind and its path in the tree.
struct FoundLibrary
{
    SourceKind kind;
    std::string path;
};

/// What a search found, and what it did not look at.
struct LibrarySearch
{
    std::vector<FoundLibrary> libraries;
    std::vector<SourceFinding> unsearched;
};

/// What can be told of a library without opening its database.
struct LibraryDescription
{
    SourceKind kind;
    std::string name;                     ///< as the command takes it
    std::optional<RecordedDevice> device; ///< that it says it comes from
    std::string deviceName;               ///< empty where that is not known
    std::optional<UnixTime> backupDate;
    std::optional<bool> isEncrypted; ///< nothing where no record says
    std::optional<bool> isFinished;  ///< likewise
    std::vector<SourceFinding> findings;
};

/// That a source holds more than one photo library.
struct SeveralLibraries
{
    std::string source;
    bool areBackups;
    std::vector<LibraryDescription> libraries; ///< all, or more than `mostCounted`
    std::vector<SourceFinding> unsearched;

    static constexpr std::size_t mostCounted = 20;
};

/// Finds the photo libraries in a folder of a tree, and in those in it. Throws Failure when one
/// cannot be read and there is none elsewhere.
/// @param shownName  the folder as the user named it, for messages
/// @param most       the search ends when it has found more
LibrarySearch searchLibraries(Session &session, const FileTree &tree, const std::string &top,
                              const std::string &shownName, std::size_t most);

LibraryDescription describe(Session &session, const FileTree &tree, const FoundLibrary &library);

/// The one library of a search. Throws SourceError when there is none, SeveralLibraries when there
/// are more, and what the layouts throw.
std::unique_ptr<LibraryLayout> onlyLibrary(Session &session, const FileTree &tree,
                                           const LibrarySearch &search,
                                           const std::string &shownName);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_SEARCH_H
