#ifndef IOSPHOTO_TOOL_PRIVATE_COPY_H
#define IOSPHOTO_TOOL_PRIVATE_COPY_H

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
    ~PrivateCopy();
    PrivateCopy(const PrivateCopy &) = delete;
    PrivateCopy &operator=(const PrivateCopy &) = delete;

    std::string database() const { return (folder_ / "Photos.sqlite").string(); }
    bool hasLog() const; ///< whether a write-ahead log that is not empty came with it

private:
    void copy(const std::filesystem::path &source) const;
    void remove() const;

    std::filesystem::path folder_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PRIVATE_COPY_H
