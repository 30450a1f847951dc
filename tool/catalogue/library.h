#ifndef IOSPHOTO_TOOL_LIBRARY_H
#define IOSPHOTO_TOOL_LIBRARY_H

#include "exit_status.h"
#include "ios_photo.h"
#include "source/device.h"

#include <string>
#include <vector>

namespace iosphoto::tool {

/// A photo library that was read, with the records of its catalogue.
class Library
{
public:
    /// Reads the database through a private copy, which is gone when this returns. Throws Failure
    /// when the library cannot be read.
    /// @param name  a database, media folder, backup or archive of one
    Library(const std::string &name, const Device &wanted);
    ~Library();
    Library(const Library &) = delete;
    Library &operator=(const Library &) = delete;

    const std::string &database() const { return database_; }
    const Device &device() const { return device_; }
    const std::vector<CAlbumGroup> &albums() const { return albums_; }

    /// Good, or Incomplete when damage cut the reading short or the source lacks something.
    ExitStatus status() const { return missing_.empty() ? status_ : Incomplete; }

    /// Says on stderr what was assumed about the device, and what is missing.
    void sayHowItWasRead() const;

private:
    void read(const std::string &copy);

    std::string database_;
    Device wanted_;
    Device device_;
    std::vector<CAlbumGroup> albums_;
    ExitStatus status_ = Good;
    std::string damage_;
    std::string missing_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_H
