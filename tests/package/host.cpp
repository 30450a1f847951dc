#include <ios_photo.h>
#include <model_devicephoto_dbmgr.h>

#include <cstdio>

int checkThumbs(const char *cache);

namespace {

/// Uses the cache that checkThumbs() leaves.
bool isThumbShown(const char *cache)
{
    std::vector<char> image(55178);
    int width = 0;
    int height = 0;
    int size = 0;
    return ios_photo_get_thumb(cache, 1, image.data(), width, height, size) == 0 && width == 100 &&
           height == 80 && size == 55178 && image[0] == 'B';
}

} // namespace

/// Uses everything that the package exports; exits 0 when all answers are right.
int main(int, char **arguments)
{
    std::vector<CAlbumGroup> albums;
    if (ios_photo_get_list(arguments[1], "15.0", "iPhone14,2", &albums) != 0 || albums.empty())
        return 1;
    std::vector<CPhotoData *> &photos = albums.front().photos;
    if (photos.size() != 1 || photos.front()->fileName != QLatin1String("IMG_0001.JPG"))
        return 2;
    CPhotoData *clone = CPhotoData::GetPhotoDataClone(photos.front());
    const CPhotoData copy(*clone);
    delete clone;
    for (const CAlbumGroup &album : albums)
        for (const CPhotoData *photo : album.photos)
            delete photo;
    if (!copy.thumbnail.isNull())
        return 3;

    CReadReport report;
    if (ios_photo_get_list_reported(arguments[1], "15.0", "iPhone14,2", nullptr, &report) != 0 ||
        !report.isComplete() || report.firstStopped() != nullptr ||
        report.passes[iosphoto::Pass::CameraRoll - 1].rows != 1)
        return 8;

    QDevPhotoDbMgr manager("15.0", "iPhone14,2");
    manager.SetDataPath(QString::fromUtf8(arguments[1]));
    manager.SetProductVer("17.0");
    manager.SetDefaultAlbum();
    if (manager.GetPrimarykeyTabAssetInfo() != 1 || manager.GetPrimarykeyTabAlbumInfo() != 1 ||
        manager.GetPrimarykeyTabPhotostreamAlbumInfo() != 1 || manager.GetPhotosAlbum() != 0 ||
        manager.GetPhotoGroups() != 0 || manager.GetPhotoDatas() != 0 ||
        manager.report.passes.size() != 6 || manager.rowLimit != 0)
        return 4;
    if (!manager.isSupportLivePhoto() || !manager.isSupportPanorama() ||
        !manager.isSupportProRAWAndProRes() || !manager.isBurstsMain(16) ||
        manager.isBurstsInCamera(2) || manager.getBurstsCount("none") != 0)
        return 5;
    if (cmpiOSVersion(manager.iosVersion, "9") != 8 ||
        cmpProductVersion(manager.productType, "iPhone8,1") != 6)
        return 6;

    const std::string cache = std::string(arguments[1]) + ".ithmb";
    if (const int failure = checkThumbs(cache.c_str()))
        return failure;
    if (!isThumbShown(cache.c_str()))
        return 7;
    std::puts("the package works");
    return 0;
}
