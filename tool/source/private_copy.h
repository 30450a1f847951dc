#ifndef IOSPHOTO_TOOL_PRIVATE_COPY_H
#define IOSPHOTO_TOOL_PRIVATE_COPY_H

#include "output/temporary_path.h"

#include <filesystem>
#include <string>

namespace iosphoto::tool {

/// A copy of a database with its write-ahead log and journal, in a folder that only this user can
/// enter and that goes with the object. So the original is never opened for writing.
class PrivateCopy
{
public:
    /// Throws Failure when something cannot be read or copied.
    explicit PrivateCopy(const std::filesystem::path &database);

    std::string database() const { return (folder_.path() / "Photos.sqlite").string(); }
    bool hasLog() const; ///< whether a write-ahead log that is not empty came with it

private:
    void copy() const;

    std::filesystem::path source_;
    TemporaryPath folder_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PRIVATE_COPY_H
