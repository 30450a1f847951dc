#ifndef IOSPHOTO_TOOL_PLAIN_LAYOUT_H
#define IOSPHOTO_TOOL_PLAIN_LAYOUT_H

#include "source/library_layout.h"

namespace iosphoto::tool {

/// A database with its log beside it; nothing else.
class LoneDatabase : public LibraryLayout
{
public:
    explicit LoneDatabase(std::string path) : path_(std::move(path)) {}

    SourceKind kind() const override { return SourceKind::Database; }
    std::optional<std::string> locate(const std::string &mediaPath) const override;

private:
    std::string path_;
};

/// A folder that is /var/mobile/Media on the phone.
class MediaFolder : public LibraryLayout
{
public:
    explicit MediaFolder(std::string folder) : folder_(std::move(folder)) {}

    SourceKind kind() const override { return SourceKind::MediaFolder; }
    std::optional<std::string> locate(const std::string &mediaPath) const override;

private:
    std::string folder_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PLAIN_LAYOUT_H
