#ifndef IOSPHOTO_TOOL_LIBRARY_DESCRIPTION_H
#define IOSPHOTO_TOOL_LIBRARY_DESCRIPTION_H

#include "input/library_layout.h"
#include "input/tree/file_tree.h"
#include "session/session.h"

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

/// What can be told of a library without opening its database.
struct LibraryDescription
{
    SourceKind kind = SourceKind::Database;
    std::string name;                     ///< as the command takes it
    std::optional<RecordedDevice> device; ///< that it says it comes from
    std::string deviceName;               ///< empty where that is not known
    std::optional<UnixTime> backupDate;
    std::optional<FileFacts> database; ///< of what is no backup
    std::optional<bool> isEncrypted;   ///< nothing where no record says
    std::optional<bool> isFinished;    ///< likewise
    std::vector<SourceFinding> findings;
};

/// Describes each; where its records cannot be read, by its name alone and a finding that says why.
std::vector<LibraryDescription> describe(Session &session, const FileTree &tree,
                                         const std::vector<FoundLibrary> &libraries);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_DESCRIPTION_H
