#include "catalogue/left_out_photos.h"

#include "catalogue/asset_rows.h"
#include "catalogue/listed_rows.h"
#include "model/database_codes.h"
#include "model/device/ios_generation.h"
#include "model/passes/camera_roll_columns.h"
#include "model/trash.h"

#include <algorithm>
#include <iterator>

namespace iosphoto::tool {

namespace {

bool isTaken(std::int32_t savedAs)
{
    return savedAs == SavedAssetType::SyncedFromComputer ||
           std::find(std::begin(cameraRollSavedTypes), std::end(cameraRollSavedTypes), savedAs) !=
               std::end(cameraRollSavedTypes);
}

/// Before, the number had another meaning.
bool hasSharedAlbums(const Device &device)
{
    return iosGeneration(device.iosVersion) >= IosGeneration::Ios8;
}

bool isTrashedTooLong(const AssetRow &row, UnixTime asOf)
{
    return row.record.isDeleted &&
           iosphoto::isTrashedTooLong(row.values.int32(camera_roll::trashedDate), asOf.seconds);
}

bool isFrame(const CPhotoData &record)
{
    return record.isBurst && record.isBurstPick == 0;
}

PhotoReason reasonFor(const AssetRow &row, const ReadingFacts &reading, bool isRepeated)
{
    const std::int32_t savedAs = row.values.int32(camera_roll::savedAssetType);
    if (!row.isSelected || row.values.isNull(camera_roll::savedAssetType))
        return PhotoReason::NotSelected;
    if (savedAs == SavedAssetType::SharedAlbum && hasSharedAlbums(reading.schema.device))
        return PhotoReason::OfSharedAlbum;
    if (!isTaken(savedAs))
        return PhotoReason::ReferencedElsewhere;
    if (isTrashedTooLong(row, reading.asOf))
        return row.hasTrashedDate ? PhotoReason::TrashedTooLong : PhotoReason::TrashedWithoutDate;
    if (row.record.fileName.isEmpty())
        return PhotoReason::WithoutFileName;
    if (isFrame(row.record))
        return PhotoReason::BurstFrame;
    if (isRepeated)
        return PhotoReason::Repeated;
    return reading.isWhole ? PhotoReason::NotSelected : PhotoReason::NotRead;
}

ListedRecord listedRecordOf(const CPhotoData &row, const KeyedRecords &keyed,
                            KeylessRecords &keyless)
{
    CPhotoData *const record = keyed.find(row.assetId);
    return record != nullptr ? ListedRecord{record, false} : keyless.find(row);
}

/// Nobody could tell the rows apart by what is left of their keys.
void forgetKeys(const std::vector<CAlbumGroup> &catalogue)
{
    for (const CAlbumGroup &album : catalogue)
        for (CPhotoData *const photo : album.photos)
            photo->assetId = CPhotoData().assetId;
}

} // namespace

std::optional<PhotoReason> LeftOutPhotos::reasonFor(const Asset &asset) const
{
    const Appearance &appearance = *asset.begin();
    return appearance.album == nullptr ? std::optional(reasons_.at(appearance.position))
                                       : std::nullopt;
}

void LeftOutPhotos::add(CPhotoData photo, PhotoReason reason)
{
    records_.push_back(std::make_unique<CPhotoData>(std::move(photo)));
    reasons_.push_back(reason);
}

PhotoAccount accountOfPhotos(const CopyDatabase &database, const ReadingFacts &reading,
                             LeftOutPhotos *photos)
{
    const AssetRows rows(database, reading.schema);
    if (!rows.areKeysKnown())
        forgetKeys(reading.catalogue);
    PhotoAccount account;
    RowKeys others;
    const KeyedRecords keyed(reading.catalogue);
    rows.forEachKey([&](std::int64_t key, bool saysMore) {
        ++account.rows;
        if (keyed.isInCameraRoll(key) && !saysMore)
            ++account.listed;
        else
            others.add(key);
    });
    if (others.empty())
        return account;

    KeylessRecords keyless(reading.catalogue);
    rows.forEach(others, [&](const AssetRow &row) {
        const ListedRecord listed = listedRecordOf(row.record, keyed, keyless);
        if (listed.record != nullptr && !listed.isRepeated) {
            ++account.listed;
            addFacts(*listed.record, row.record);
            return;
        }
        const PhotoReason reason = reasonFor(row, reading, listed.isRepeated);
        account.leaveOut(reason);
        if (photos != nullptr)
            photos->add(row.record, reason);
    });
    return account;
}

} // namespace iosphoto::tool
