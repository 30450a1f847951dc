#include "model/passes/album_contents_pass.h"

#include "model/database_codes.h"
#include "model/passes/albums_by_uuid.h"
#include "model/passes/asset_row_decoder.h"
#include "model/passes/pass_run.h"
#include "model/portrait_rule.h"
#include "records/record_ownership.h"

#include <algorithm>

namespace iosphoto {

namespace {

constexpr AssetRowLayout layout = {
    column(albumContentsColumns, "ZDURATION"),
    column(albumContentsColumns, "ZDATECREATED"),
    column(albumContentsColumns, "ZMODIFICATIONDATE"),
    column(albumContentsColumns, "ZADDEDDATE"),
    column(albumContentsColumns, "ZVIDEOCPDURATIONTIMESCALE"),
    column(albumContentsColumns, "ZUUID"),
    column(albumContentsColumns, "albumuuid"),
    column(albumContentsColumns, "ZHASADJUSTMENTS"),
    column(albumContentsColumns, "ZADJUSTMENTSSTATE"),
    column(albumContentsColumns, "ZEDITORBUNDLEID"),
    false, // fractionalDates
    1,     // firstKnownDate
    "0x0", // missingAlbumUuid
};

constexpr int cloudAssetGuid = column(albumContentsColumns, "ZCLOUDASSETGUID");
constexpr int cameraCaptureDevice = column(albumContentsColumns, "ZCAMERACAPTUREDEVICE");
constexpr int savedAssetType = column(albumContentsColumns, "ZSAVEDASSETTYPE");
constexpr int kindSubtype = column(albumContentsColumns, "ZKINDSUBTYPE");
constexpr DepthColumns depth = {
    column(albumContentsColumns, "ZDEPTHSTATES"),
    column(albumContentsColumns, "ZDEPTHTYPE"),
};

/// The first album of a kind that is not smart: only these collect from albums of the table.
CAlbumGroup *collectingAlbum(std::vector<CAlbumGroup> &albums, AlbumKind::Code kind)
{
    const auto found = std::find_if(albums.begin(), albums.end(), [&](const CAlbumGroup &album) {
        return !album.isSmartAlbum && album.albumKind == kind;
    });
    return found != albums.end() ? &*found : nullptr;
}

/// Whether most of the photos read so far are in no album of the table, by what the albums say of
/// their sizes.
bool areMostInNoAlbum(const std::vector<CAlbumGroup> &albums)
{
    std::int64_t memberships = 0;
    std::int64_t photos = 0;
    for (const CAlbumGroup &album : albums) {
        memberships += album.albumUuid.empty() ? 0 : std::max(album.albumCount, 0);
        photos += static_cast<std::int64_t>(album.photos.size());
    }
    return memberships < photos / 2;
}

/// Reads the memberships and hands each record to its album, and copies of some to the albums that
/// collect by kind of photo.
class AlbumContentsPass
{
public:
    explicit AlbumContentsPass(const PassContext &context)
        : albums_(context.albums), device_(context.device),
          decoder_(layout, context.device, QString()), albumsByUuid_(albums_),
          panoramas_(collectingAlbum(albums_, AlbumKind::Panoramas)),
          screenshots_(collectingAlbum(albums_, AlbumKind::Screenshots)),
          portraits_(collectingAlbum(albums_, AlbumKind::Portrait)),
          selfies_(collectingAlbum(albums_, AlbumKind::Selfies))
    {
    }

    /// @return whether the row names both an asset and an album.
    bool take(const Row &row)
    {
        std::unique_ptr<CPhotoData> photo = decoder_.decode(row);
        if (photo->uuid.empty() || photo->albumUuid.empty())
            return false;
        const auto index = albumsByUuid_.indexOf(photo->albumUuid);
        if (photo->fileName.isEmpty() || !index)
            return true;

        CAlbumGroup &album = albums_[*index];
        photo->albumName = album.albumName;
        photo->inUserAlbum = album.albumKind == AlbumKind::PhotoStream;
        CPhotoData &asset = *photo;
        if (isKept(album, row))
            append(album, std::move(photo));
        if (!album.isSmartAlbum)
            collect(asset, row);
        return true;
    }

private:
    /// The photo stream leaves out what the cloud library holds as well.
    bool isKept(const CAlbumGroup &album, const Row &row) const
    {
        return album.albumKind != AlbumKind::PhotoStream || device_.ios < IosGeneration::Ios8 ||
               row.isNull(cloudAssetGuid);
    }

    /// Sets the flags one by one: each copy carries those set so far.
    void collect(CPhotoData &asset, const Row &row) const
    {
        const int subtype = row.int32(kindSubtype);
        if (subtype == KindSubtype::Panorama && device_.panoramas)
            mark(asset, &CPhotoData::isPanorama, panoramas_);
        if (subtype == KindSubtype::Screenshot &&
            row.int32(savedAssetType) == SavedAssetType::SyncedFromComputer)
            mark(asset, &CPhotoData::isScreenshot, screenshots_);
        if (isPortrait(row, depth, device_.ios))
            mark(asset, &CPhotoData::isPortrait, portraits_);
        if (row.int32(cameraCaptureDevice) == CaptureDevice::FrontCamera)
            mark(asset, &CPhotoData::isSelfie, selfies_);
    }

    static void mark(CPhotoData &asset, bool CPhotoData::*flag, CAlbumGroup *album)
    {
        asset.*flag = true;
        if (album != nullptr)
            appendCopy(*album, asset);
    }

    std::vector<CAlbumGroup> &albums_;
    DeviceProfile device_;
    AssetRowDecoder decoder_;
    AlbumsByUuid albumsByUuid_;
    CAlbumGroup *panoramas_;
    CAlbumGroup *screenshots_;
    CAlbumGroup *portraits_;
    CAlbumGroup *selfies_;
};

} // namespace

int readAlbumContents(const PassContext &context)
{
    return runPass(context, Pass::AlbumContents, [&](PassRun &run) {
        AlbumContentsPass pass(context);
        int memberships = 0;
        Query query = {run.statementFrom(albumContentsStatements), {}};
        if (areMostInNoAlbum(context.albums))
            query.view = run.statementFrom(assetsOfAlbumsView);
        const int rows =
            run.readRows(query, [&](const Row &row) { memberships += pass.take(row) ? 1 : 0; });
        return rows < 0 ? rows : memberships;
    });
}

} // namespace iosphoto
