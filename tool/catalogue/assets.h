#ifndef IOSPHOTO_TOOL_ASSETS_H
#define IOSPHOTO_TOOL_ASSETS_H

#include "ios_photo.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace iosphoto::tool {

/// A record of an asset in an album.
struct Appearance
{
    const CPhotoData *record;
    const CAlbumGroup *album; ///< null for a photo that no album shows
    std::size_t position;     ///< in the album, or among such photos, from 0
};

/// One photo or video of a catalogue: all its records, in the order of their albums. There is at
/// least one.
class Asset
{
public:
    Asset(const Appearance *first, const Appearance *last) : first_(first), last_(last) {}

    const Appearance *begin() const { return first_; }
    const Appearance *end() const { return last_; }

    const std::string &uuid() const { return first_->record->uuid; }

    /// Such as "DCIM/100APPLE/IMG_0001.HEIC".
    std::string path() const;

    /// Whether any of its records has a flag; as facts() says, but quicker.
    bool has(bool CPhotoData::*flag) const;

    /// The first record, with what others know besides: every flag that any of them has, and the
    /// duration, row key and burst, which not all albums read.
    CPhotoData facts() const;

    /// The albums that show it, each once.
    std::vector<const CAlbumGroup *> albums() const;

private:
    const Appearance *first_;
    const Appearance *last_;
};

/// Every asset of a catalogue once, in the order in which its albums first show it. Assets are the
/// same when their uuids are; records without one stand for themselves.
class AssetList
{
public:
    /// @param catalogue  has to outlive the list
    explicit AssetList(const std::vector<CAlbumGroup> &catalogue);
    /// Photos that no album shows, each of them one asset.
    explicit AssetList(const std::vector<std::unique_ptr<CPhotoData>> &photos);

    std::size_t size() const { return starts_.size() - 1; }
    Asset operator[](std::size_t index) const
    {
        return {&appearances_[starts_[index]], &appearances_[starts_[index]] + count(index)};
    }

private:
    std::size_t count(std::size_t index) const { return starts_[index + 1] - starts_[index]; }

    std::vector<Appearance> appearances_; ///< those of one asset side by side
    std::vector<std::size_t> starts_;     ///< where each asset's begin; and the end
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ASSETS_H
