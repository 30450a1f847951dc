#include "model/model_devicephoto_dbmgr.h"

#include "model/bursts.h"
#include "model/catalogue_finish.h"
#include "model/clock.h"
#include "model/default_albums.h"
#include "model/device/version_compare.h"
#include "model/passes/album_contents_pass.h"
#include "model/passes/camera_roll_pass.h"
#include "model/passes/entity_numbers_pass.h"
#include "model/passes/photo_library_pass.h"
#include "model/passes/user_albums_pass.h"
#include "no_throw.h"

#include <utility>

using namespace iosphoto;

namespace {

DeviceProfile deviceOf(const QDevPhotoDbMgr &manager)
{
    return {manager.iosVersion, manager.productType};
}

/// Made anew for each pass, as a host may change any member in between.
PassContext contextOf(QDevPhotoDbMgr &manager)
{
    return {manager.dataPath,
            deviceOf(manager),
            {manager.albumEntity, manager.photoStreamAlbumEntity, manager.assetSuperEntity,
             manager.assetEntity},
            manager.albums,
            manager.report,
            manager.rowLimit,
            manager.asOf ? *manager.asOf : currentUnixTime()};
}

} // namespace

int cmpiOSVersion(const std::string &a, const std::string &b)
{
    return compareVersions(a, b);
}

int cmpProductVersion(const QString &a, const QString &b)
{
    return compareModels(a, b);
}

QDevPhotoDbMgr::QDevPhotoDbMgr(std::string ios, std::string model)
    : iosVersion(std::move(ios)), productType(QString::fromStdString(model))
{
}

QDevPhotoDbMgr::~QDevPhotoDbMgr() = default;

void QDevPhotoDbMgr::SetDataPath(const QString &path)
{
    dataPath = path;
}

void QDevPhotoDbMgr::SetProductVer(const std::string &version)
{
    iosVersion = version;
}

int QDevPhotoDbMgr::GetPhotoAlbumDatas()
{
    using Step = int (QDevPhotoDbMgr::*)();
    constexpr Step readAssets[] = {
        &QDevPhotoDbMgr::SetDefaultAlbum,
        &QDevPhotoDbMgr::GetPrimarykeyTabAssetInfo,
        &QDevPhotoDbMgr::GetPrimarykeyTabAlbumInfo,
        &QDevPhotoDbMgr::GetPrimarykeyTabPhotostreamAlbumInfo,
        &QDevPhotoDbMgr::GetCameraAlbum,
        &QDevPhotoDbMgr::GetPhotosAlbum,
    };
    constexpr Step readAlbums[] = {
        &QDevPhotoDbMgr::GetPhotoGroups,
        &QDevPhotoDbMgr::GetPhotoDatas,
    };
    return withoutThrowing([&] {
        report.passes.clear();
        for (const Step step : readAssets)
            if (const int result = (this->*step)(); result < 0)
                return result;
        appendCollectingAlbums(albums, deviceOf(*this));
        for (const Step step : readAlbums)
            if (const int result = (this->*step)(); result < 0)
                return result;
        finishCatalogue(albums);
        return 0;
    });
}

int QDevPhotoDbMgr::SetDefaultAlbum()
{
    return withoutThrowing([this] {
        appendDefaultAlbums(albums, deviceOf(*this));
        return 0;
    });
}

int QDevPhotoDbMgr::GetPrimarykeyTabAssetInfo()
{
    return readAssetEntities(contextOf(*this), assetSuperEntity, assetEntity);
}

int QDevPhotoDbMgr::GetPrimarykeyTabAlbumInfo()
{
    return readAlbumEntity(contextOf(*this), albumEntity);
}

int QDevPhotoDbMgr::GetPrimarykeyTabPhotostreamAlbumInfo()
{
    return readPhotoStreamAlbumEntity(contextOf(*this), photoStreamAlbumEntity);
}

int QDevPhotoDbMgr::GetCameraAlbum()
{
    return readCameraRoll(contextOf(*this));
}

int QDevPhotoDbMgr::GetPhotosAlbum()
{
    return readPhotoLibrary(contextOf(*this));
}

int QDevPhotoDbMgr::GetPhotoGroups()
{
    return readUserAlbums(contextOf(*this));
}

int QDevPhotoDbMgr::GetPhotoDatas()
{
    return readAlbumContents(contextOf(*this));
}

bool QDevPhotoDbMgr::isSupportLivePhoto() const
{
    return deviceOf(*this).livePhotos;
}

bool QDevPhotoDbMgr::isSupportPanorama() const
{
    return deviceOf(*this).panoramas;
}

bool QDevPhotoDbMgr::isSupportProRAWAndProRes() const
{
    return deviceOf(*this).proRawAndProRes;
}

int QDevPhotoDbMgr::getBurstsCount(QString burstUuid) const
{
    return countBurstFrames(albums, burstUuid);
}

bool QDevPhotoDbMgr::isBurstsMain(int pickType) const
{
    return standsForBurst(pickType);
}

bool QDevPhotoDbMgr::isBurstsInCamera(int pickType) const
{
    return isShownInCameraRoll(pickType);
}
