#include "thumbnails/thumb_cache.h"

#include "files/source_file.h"
#include "ithmb/thumb_decode.h"
#include "process/failure.h"
#include "text/numbers.h"
#include "text/translate.h"
#include "thumbnails/cache_format.h"
#include "thumbnails/unsupported_cache.h"

#include <algorithm>
#include <array>
#include <limits>

namespace iosphoto::tool {

ThumbCache::ThumbCache(const std::string &path)
    : ThumbCache(path, sourceFile(path, translate("a cache in it, such as 120x120.ithmb of "
                                                  "PhotoData/Thumbnails")))
{
}

ThumbCache::ThumbCache(std::string shownPath, std::filesystem::path file)
    : path_(std::move(shownPath)), file_(std::move(file)), reader_(file_.c_str())
{
    requireReadable(file_);
    format_ = findFormat(reader_);
    if (format_ == nullptr)
        format_ = formatWithoutThumbnails(reader_);
    if (format_ == nullptr)
        throw unsupportedCache(reader_, path_);
    readRecords();
}

void ThumbCache::readRecords()
{
    recordCount_ = tool::recordCount(reader_, format_->recordSize);
    for (int index = 0; index < recordCount_; ++index) {
        const RecordState state = recordState(reader_, format_->recordSize, index);
        if (state == RecordState::Empty)
            continue;
        Thumbnail thumbnail = {index, 0, 0, 0};
        if (state == RecordState::Plausible && !decode(index, thumbnail).isEmpty())
            thumbnails_.push_back(thumbnail);
        else
            ++damagedCount_;
    }
    const long length = reader_.getlength();
    isBeyondReach_ = length > std::numeric_limits<int>::max();
    const long rest = length - long{recordCount_} * format_->recordSize;
    isCutOff_ =
        !isBeyondReach_ && rest > 0 && !isZero(reader_, length - rest, static_cast<int>(rest));
}

const Thumbnail &ThumbCache::at(int index) const
{
    const auto found = std::find_if(thumbnails_.begin(), thumbnails_.end(),
                                    [=](const Thumbnail &each) { return each.index == index; });
    if (found != thumbnails_.end())
        return *found;
    const int last = recordCount_ - 1;
    if (index > last && isBeyondReach_)
        throw Failure(WrongUsage,
                      translate("'{0}' has no thumbnail {1}: the last within 2 GiB is {2}", path_,
                                index, last));
    if (index > last)
        throw Failure(WrongUsage, translate("'{0}' has no thumbnail {1}: its last record is {2}",
                                            path_, index, last));
    if (recordState(reader_, format_->recordSize, index) == RecordState::Empty)
        throw Failure(WrongUsage,
                      translate("'{0}' has no thumbnail {1}: that record is empty; leave "
                                "out --index to see which are not",
                                path_, index));
    throw Failure(CannotAccess,
                  translate("'{0}' has no thumbnail {1}: that record is damaged; copy "
                            "the file from the device again",
                            path_, index));
}

QByteArray ThumbCache::image(const Thumbnail &thumbnail) const
{
    Thumbnail again = thumbnail;
    QByteArray image = decode(thumbnail.index, again);
    if (again.width != thumbnail.width || again.height != thumbnail.height ||
        again.bytes != thumbnail.bytes)
        throw Failure(
            CannotAccess,
            translate("cannot read '{0}': it changed while it was read; copy it first", path_));
    return image;
}

QByteArray ThumbCache::decode(int index, Thumbnail &thumbnail) const
{
    std::array<char, largestImage> image;
    int size = 0;
    decodeThumb(*format_, reader_, index, image.data(), size, thumbnail.width, thumbnail.height);
    thumbnail.bytes = size;
    return {image.data(), size};
}

std::string ThumbCache::missing() const
{
    std::string what;
    const auto add = [&](const std::string &part) {
        what = what.empty() ? part : translate("{0}, and {1}", what, part);
    };
    if (damagedCount_ > 0)
        add(counted(damagedCount_, "{0} damaged record (copy it from the device again)",
                    "{0} damaged records (copy it from the device again)"));
    if (isCutOff_)
        add(translate("a last record that is cut off (copy it from the device again)"));
    if (isBeyondReach_)
        add(translate("the records beyond 2 GiB, which are not reached"));
    return what.empty() ? what : translate("'{0}' has more than is shown here: {1}", path_, what);
}

} // namespace iosphoto::tool
