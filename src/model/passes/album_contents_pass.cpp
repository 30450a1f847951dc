#include "model/asset_codes.h"
#include "model/passes/albums_by_uuid.h"
#include "model/passes/asset_row_decoder.h"
#include "model/passes/pass_run.h"
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
constexpr int depthStates = column(albumContentsColumns, "ZDEPTHSTATES");
constexpr int cameraCaptureDevice = column(albumContentsColumns, "ZCAMERACAPTUREDEVICE");
constexpr int savedAssetType = column(albumContentsColumns, "ZSAVEDASSETTYPE");
constexpr int kindSubtype = column(albumContentsColumns, "ZKINDSUBTYPE");
constexpr int depthType = column(albumContentsColumns, "ZDEPTHTYPE");

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
    AlbumContentsPass(std::vector<CAlbumGroup> &albums, const DeviceProfile &device)
        : albums_(albums), device_(device), decoder_(layout, device, QString()),
          albumsByUuid_(albums), panoramas_(collectingAlbum(albums, AlbumKind::Panoramas)),
          screenshots_(collectingAlbum(albums, AlbumKind::Screenshots)),
          portraits_(collectingAlbum(albums, AlbumKind::Portrait)),
          selfies_(collectingAlbum(albums, AlbumKind::Selfies))
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
        if (subtype == kind_subtype::panorama && device_.panoramas)
            mark(asset, &CPhotoData::isPanorama, panoramas_);
        if (subtype == kind_subtype::screenshot &&
            row.int32(savedAssetType) == saved_asset_type::syncedFromComputer)
            mark(asset, &CPhotoData::isScreenshot, screenshots_);
        if (isPortrait(row))
            mark(asset, &CPhotoData::isPortrait, portraits_);
        if (row.int32(cameraCaptureDevice) == frontCamera)
            mark(asset, &CPhotoData::isSelfie, selfies_);
    }

    static void mark(CPhotoData &asset, bool CPhotoData::*flag, CAlbumGroup *album)
    {
        asset.*flag = true;
        if (album != nullptr)
            appendCopy(*album, asset);
    }

    bool isPortrait(const Row &row) const
    {
        return device_.ios < IosGeneration::Ios14 ? row.int32(depthStates) == hasDepthBeforeIos14
                                                  : row.int32(depthType) == hasDepth;
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

} // namespace iosphoto

int QDevPhotoDbMgr::GetPhotoDatas()
{
    using namespace iosphoto;
    return runPass(*this, Pass::AlbumContents, [this](PassRun &run) {
        const DeviceProfile device(iosVersion, productType);
        AlbumContentsPass pass(albums, device);
        int memberships = 0;
        Query query = {run.statementFor(device, albumContentsStatements), {}};
        if (areMostInNoAlbum(albums))
            query.view = run.statementFor(device, assetsOfAlbumsView);
        const int rows =
            run.readRows(query, [&](const Row &row) { memberships += pass.take(row) ? 1 : 0; });
        return rows < 0 ? rows : memberships;
    });
}
