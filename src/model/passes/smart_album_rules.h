#ifndef IOSPHOTO_SMART_ALBUM_RULES_H
#define IOSPHOTO_SMART_ALBUM_RULES_H

#include "ios_photo.h"
#include "model/device/device_profile.h"
#include "model/store/row.h"

#include <array>
#include <cstdint>
#include <vector>

namespace iosphoto {

/// Sorts the assets of the Camera Roll into the smart albums.
///
/// The rules run in a fixed order, each setting its flag before it copies the asset, so that a copy
/// carries the flags of its own and the earlier rules only: that of Recently Deleted does not yet
/// say whether the asset is a video.
class SmartAlbumRules
{
public:
    /// @param albums  must not grow or shrink while the rules are in use
    /// @param now     Unix time as of which the trash is looked at
    SmartAlbumRules(std::vector<CAlbumGroup> &albums, const DeviceProfile &device,
                    std::uint32_t now);

    /// Sets the flags of `photo` and copies it to the albums it belongs to.
    /// @return false when it has been in the trash too long and is to be forgotten.
    bool sort(CPhotoData &photo, const Row &row) const;

    /// Whether a row looks like that of a screenshot.
    bool isScreenshot(const Row &row) const;

private:
    /// The albums that take copies under one rule.
    struct Target
    {
        bool needsFileName = false;
        bool leavesOutDeletedAndHidden = false;
        std::vector<CAlbumGroup *> albums;
    };

    void copyTo(AlbumKind::Code kind, const CPhotoData &photo) const;

    void sortTrashed(CPhotoData &photo) const;

    // Each returns whether the asset is one; that keeps it from being looked at as a screenshot.
    bool sortPanorama(CPhotoData &photo, const Row &row) const;
    bool sortRawProResOrHidden(const CPhotoData &photo) const;
    bool sortVideo(CPhotoData &photo, const Row &row) const;
    bool sortBurst(const CPhotoData &photo) const;
    bool sortLivePhoto(const CPhotoData &photo) const;

    void sortScreenshot(CPhotoData &photo, const Row &row) const;
    void sortAnimated(CPhotoData &photo, const Row &row) const;
    void sortPortrait(CPhotoData &photo, const Row &row) const;
    void sortSelfie(CPhotoData &photo, const Row &row) const;
    void sortFavorite(CPhotoData &photo, const Row &row) const;

    const DeviceProfile device_;
    std::uint32_t now_;
    std::array<Target, AlbumKind::AllDeleted> targets_; ///< by album kind
};

} // namespace iosphoto

#endif // IOSPHOTO_SMART_ALBUM_RULES_H
