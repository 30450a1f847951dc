#include "thumbnails/thumb_cache.h"

#include "failure.h"
#include "ithmb/thumb_decode.h"
#include "output/counted.h"
#include "source/source_file.h"
#include "thumbnails/cache_format.h"

#include <algorithm>
#include <array>
#include <limits>

namespace iosphoto::tool {

namespace {

constexpr const char *example = "120x120.ithmb of PhotoData/Thumbnails";

Failure notACache(const std::string &path, const std::string &reason)
{
    return {WrongKindOfFile, "'" + path + "' " + reason + "; name one, such as " + example};
}

} // namespace

ThumbCache::ThumbCache(const std::string &path)
    : path_(path), file_(sourceFile(path, std::string("a cache in it, such as ") + example)),
      reader_(file_.c_str())
{
    requireReadable(file_);
    if (reader_.getlength() == 0)
        throw notACache(path, "is empty, not a thumbnail cache");
    format_ = findFormat(reader_);
    if (format_ == nullptr)
        throw notACache(path, "is not a thumbnail cache of a known format");
    readRecords();
}

void ThumbCache::readRecords()
{
    recordCount_ = tool::recordCount(reader_, *format_);
    for (int index = 0; index < recordCount_; ++index) {
        const RecordState state = recordState(reader_, *format_, index);
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
    const std::string subject = "'" + path_ + "' has no thumbnail " + std::to_string(index) + ": ";
    if (index >= recordCount_) {
        const std::string last =
            isBeyondReach_ ? "the last within 2 GiB is " : "its last record is ";
        throw Failure(WrongUsage, subject + last + std::to_string(recordCount_ - 1));
    }
    if (recordState(reader_, *format_, index) == RecordState::Empty)
        throw Failure(WrongUsage, subject + "that record is empty; leave out --index to see which "
                                            "are not");
    throw Failure(CannotAccess, subject + "that record is damaged; copy the file from the device "
                                          "again");
}

QByteArray ThumbCache::image(const Thumbnail &thumbnail) const
{
    Thumbnail again = thumbnail;
    QByteArray image = decode(thumbnail.index, again);
    if (again.width != thumbnail.width || again.height != thumbnail.height ||
        again.bytes != thumbnail.bytes)
        throw Failure(CannotAccess,
                      "cannot read '" + path_ + "': it changed while it was read; copy it first");
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
        what += (what.empty() ? "" : ", and ") + part;
    };
    if (damagedCount_ > 0)
        add(counted(damagedCount_, "damaged record") + " (copy it from the device again)");
    if (isCutOff_)
        add("a last record that is cut off (copy it from the device again)");
    if (isBeyondReach_)
        add("the records beyond 2 GiB, which are not reached");
    return what.empty() ? what : "'" + path_ + "' has more than is shown here: " + what;
}

} // namespace iosphoto::tool
