#ifndef IOSPHOTO_TOOL_THUMB_CACHE_H
#define IOSPHOTO_TOOL_THUMB_CACHE_H

#include "ithmb/ithmb.h"
#include "ithmb/thumb_formats.h"

#include <QByteArray>

#include <filesystem>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// A record that holds a thumbnail.
struct Thumbnail
{
    int index;
    int width;  ///< pixels, as the record says
    int height; ///< likewise
    int bytes;  ///< of the image
};

/// A thumbnail cache as a person sees it. Its format is that in which most of its records are
/// plausible; the library, which is asked for single records, judges each by itself.
class ThumbCache
{
public:
    /// Throws Failure when the file cannot be read or is no cache that holds thumbnails.
    explicit ThumbCache(const std::string &path);
    /// The same of a file that is shown under another name.
    ThumbCache(std::string shownPath, std::filesystem::path file);

    /// As the user named it.
    const std::string &path() const { return path_; }
    const std::filesystem::path &file() const { return file_; }
    const ThumbFormat &format() const { return *format_; }
    int recordCount() const { return recordCount_; }

    /// In the order of their indexes.
    const std::vector<Thumbnail> &thumbnails() const { return thumbnails_; }

    /// The thumbnail with an index. Throws Failure when there is none.
    const Thumbnail &at(int index) const;

    /// The image of a thumbnail, as BMP.
    QByteArray image(const Thumbnail &thumbnail) const;

    /// What the file has but is not among the thumbnails, as a sentence; empty if nothing.
    std::string missing() const;

private:
    void readRecords();
    QByteArray decode(int index, Thumbnail &thumbnail) const;

    std::string path_;
    std::filesystem::path file_;
    mutable ifile reader_; // reading moves its position, which is no state of ours
    const ThumbFormat *format_ = nullptr;
    int recordCount_ = 0;
    std::vector<Thumbnail> thumbnails_;
    int damagedCount_ = 0;
    bool isCutOff_ = false;
    bool isBeyondReach_ = false;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_THUMB_CACHE_H
