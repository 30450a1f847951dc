#ifndef IOSPHOTO_TESTS_SOURCE_SHAPES_H
#define IOSPHOTO_TESTS_SOURCE_SHAPES_H

#include "support/library_builder.h"

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

namespace iosphoto::test {

/// A way in which a person has a library, and what documents say of it.
struct SourceShape
{
    const char *label;
    const char *sourceKind;
    bool isArchive;
    bool hasLog;
    /// Puts a library into a folder. Returns what to name on the command line.
    std::filesystem::path (*put)(const LibraryBuilder &library,
                                 const std::filesystem::path &folder);

    std::string name() const { return label; }
};

std::ostream &operator<<(std::ostream &stream, const SourceShape &shape);

std::vector<SourceShape> allSourceShapes();

/// A library of a photo and a video, the video in the log if there is one.
class ShapedSource
{
public:
    explicit ShapedSource(const SourceShape &shape);

    /// What to name on the command line.
    const std::string &path() const { return path_; }
    const std::filesystem::path &folder() const { return folder_.path(); }

private:
    TemporaryFolder folder_;
    std::string path_;
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_SOURCE_SHAPES_H
