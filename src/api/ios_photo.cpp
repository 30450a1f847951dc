#include "ios_photo.h"

#include "ithmb/ithmb.h"
#include "model/model_devicephoto_dbmgr.h"
#include "model/store/database_path.h"
#include "no_throw.h"
#include "records/record_ownership.h"

#include <utility>

int ios_photo_get_list(std::string databasePath, std::string iosVersion, std::string productType,
                       std::vector<CAlbumGroup> *albums)
{
    return ios_photo_get_list_reported(std::move(databasePath), std::move(iosVersion),
                                       std::move(productType), albums, nullptr);
}

int ios_photo_get_list_reported(std::string databasePath, std::string iosVersion,
                                std::string productType, std::vector<CAlbumGroup> *albums,
                                CReadReport *report)
{
    if (report != nullptr)
        report->passes.clear();
    return iosphoto::withoutThrowing([&] {
        QDevPhotoDbMgr manager(std::move(iosVersion), std::move(productType));
        manager.SetDataPath(iosphoto::pathFromBytes(databasePath));
        const int result = manager.GetPhotoAlbumDatas();
        if (report != nullptr)
            *report = std::move(manager.report);
        if (result == 0 && albums != nullptr)
            *albums = std::move(manager.albums);
        else
            iosphoto::destroyRecords(manager.albums);
        return result;
    });
}

int ios_photo_get_thumb(const char *cacheFile, int index, char *buffer, int &width, int &height,
                        int &size)
{
    if (index < 0 || cacheFile == nullptr || buffer == nullptr)
        return -1;
    GetBmp(cacheFile, index, buffer, size, width, height);
    return 0;
}
