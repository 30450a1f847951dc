#include "model/model_devicephoto_dbmgr.h"

#include "model/catalogue_finish.h"
#include "model/default_albums.h"
#include "no_throw.h"

#include <utility>

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
    using Pass = int (QDevPhotoDbMgr::*)();
    constexpr Pass readAssets[] = {
        &QDevPhotoDbMgr::SetDefaultAlbum,
        &QDevPhotoDbMgr::GetPrimarykeyTabAssetInfo,
        &QDevPhotoDbMgr::GetPrimarykeyTabAlbumInfo,
        &QDevPhotoDbMgr::GetPrimarykeyTabPhotostreamAlbumInfo,
        &QDevPhotoDbMgr::GetCameraAlbum,
        &QDevPhotoDbMgr::GetPhotosAlbum,
    };
    constexpr Pass readAlbums[] = {
        &QDevPhotoDbMgr::GetPhotoGroups,
        &QDevPhotoDbMgr::GetPhotoDatas,
    };
    return iosphoto::withoutThrowing([&] {
        report.passes.clear();
        for (const Pass pass : readAssets)
            if (const int result = (this->*pass)(); result < 0)
                return result;
        iosphoto::appendCollectingAlbums(albums, {iosVersion, productType});
        for (const Pass pass : readAlbums)
            if (const int result = (this->*pass)(); result < 0)
                return result;
        iosphoto::finishCatalogue(albums);
        return 0;
    });
}
