#include "model/default_albums.h"
#include "support/case_name.h"
#include "support/catalogue.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

using Lines = std::vector<std::string>;

/// "12 自拍", with the index before it and "smart" behind it.
Lines describe(const std::vector<CAlbumGroup> &albums)
{
    Lines lines;
    for (const CAlbumGroup &album : albums)
        lines.push_back(std::to_string(album.albumIndex) + ": " + std::to_string(album.albumKind) +
                        " " + album.albumName.toStdString() + (album.isSmartAlbum ? " smart" : ""));
    return lines;
}

std::vector<int> kinds(const std::vector<CAlbumGroup> &albums)
{
    std::vector<int> kinds;
    for (const CAlbumGroup &album : albums)
        kinds.push_back(album.albumKind);
    return kinds;
}

std::vector<CAlbumGroup> defaultAlbums(const char *iosVersion, const char *productType)
{
    QDevPhotoDbMgr manager(iosVersion, productType);
    EXPECT_EQ(manager.SetDefaultAlbum(), 0);
    return manager.albums;
}

std::string screenshotsName(const std::vector<CAlbumGroup> &albums, bool isSmart)
{
    const CAlbumGroup *const album = findAlbum(albums, AlbumKind::Screenshots, isSmart);
    return album != nullptr ? album->albumName.toStdString() : "no such album";
}

} // namespace

TEST(DefaultAlbums, AreNineteenOnADeviceThatCanDoEverything)
{
    EXPECT_EQ(describe(defaultAlbums("15.0", "iPhone14,2")),
              (Lines{
                  "0: 1 相机胶卷",         "1: 3 照片图库",
                  "2: 4 视频 smart",       "3: 12 自拍 smart",
                  "4: 13 实况照片 smart",  "5: 14 人像 smart",
                  "6: 7 全景照片 smart",   "7: 5 延时摄影 smart",
                  "8: 6 慢动作 smart",     "9: 8 连拍快照 smart",
                  "10: 10 屏幕快照 smart", "11: 15 动图 smart",
                  "12: 17 屏幕录制 smart", "13: 11 个人收藏 smart",
                  "14: 9 最近删除 smart",  "15: 21 所有删除测试 smart",
                  "16: 18 RAW smart",      "17: 19 ProRes smart",
                  "18: 20 已隐藏 smart",
              }));
}

TEST(DefaultAlbums, StartEmpty)
{
    for (const CAlbumGroup &album : defaultAlbums("15.0", "iPhone14,2")) {
        EXPECT_EQ(album.albumCount, 0);
        EXPECT_EQ(album.albumUuid, "");
        EXPECT_TRUE(album.photos.empty());
        EXPECT_EQ(album.albumId, 0);
    }
}

TEST(DefaultAlbums, ScreenshotsHasAnotherNameBelowIos9)
{
    EXPECT_EQ(screenshotsName(defaultAlbums("8.4", "iPhone7,2"), true), "屏幕截图");
    EXPECT_EQ(screenshotsName(defaultAlbums("9.0", "iPhone7,2"), true), "屏幕快照");
}

namespace {

struct AlbumsOfDevice
{
    const char *iosVersion;
    const char *productType;
    std::vector<int> kinds;

    std::string name() const { return std::string(productType) + "_on_" + iosVersion; }
};

std::ostream &operator<<(std::ostream &stream, const AlbumsOfDevice &device)
{
    return stream << device.name();
}

} // namespace

class DefaultAlbumsOfADevice : public testing::TestWithParam<AlbumsOfDevice>
{
};

TEST_P(DefaultAlbumsOfADevice, AreThoseItCanHave)
{
    EXPECT_EQ(kinds(defaultAlbums(GetParam().iosVersion, GetParam().productType)),
              GetParam().kinds);
}

TEST_P(DefaultAlbumsOfADevice, AreNumberedAsTheyStand)
{
    std::int32_t index = 0;
    for (const CAlbumGroup &album : defaultAlbums(GetParam().iosVersion, GetParam().productType))
        EXPECT_EQ(album.albumIndex, index++);
}

INSTANTIATE_TEST_SUITE_P(
    Devices, DefaultAlbumsOfADevice,
    testing::Values(
        AlbumsOfDevice{"5.0", "iPhone3,1", {1, 3, 4, 10}},
        AlbumsOfDevice{"6.0", "iPhone3,1", {1, 3, 4, 7, 10}},
        AlbumsOfDevice{"7.1", "iPhone4,1", {1, 3, 4, 7, 10}},
        AlbumsOfDevice{"7.1", "iPhone14,2", {1, 3, 4, 7, 10, 18, 19}},
        AlbumsOfDevice{"8.0", "iPod5,1", {1, 3, 4, 5, 6, 8, 10, 11, 9, 21}},
        AlbumsOfDevice{"8.4", "iPhone7,2", {1, 3, 4, 7, 5, 6, 8, 10, 11, 9, 21}},
        AlbumsOfDevice{"9.0", "iPhone7,2", {1, 3, 4, 12, 7, 5, 6, 8, 10, 11, 9, 21, 20}},
        AlbumsOfDevice{"10.3", "iPhone8,1", {1, 3, 4, 12, 7, 5, 6, 8, 10, 11, 9, 21, 20}},
        AlbumsOfDevice{"10.3", "iPhone8,2", {1, 3, 4, 12, 13, 7, 5, 6, 8, 10, 11, 9, 21, 20}},
        AlbumsOfDevice{
            "11.0", "iPhone8,1", {1, 3, 4, 12, 13, 14, 7, 5, 6, 8, 10, 15, 17, 11, 9, 21, 20}},
        AlbumsOfDevice{"12.0", "iPad6,7", {1, 3, 4, 12, 14, 7, 5, 6, 8, 10, 15, 17, 11, 9, 21, 20}},
        AlbumsOfDevice{
            "12.0", "iPad6,11", {1, 3, 4, 12, 13, 14, 7, 5, 6, 8, 10, 15, 17, 11, 9, 21, 20}},
        AlbumsOfDevice{"15.0", "iPod9,1", {1, 3, 4, 12, 14, 5, 6, 8, 10, 15, 17, 11, 9, 21, 20}}),
    NameOfCase());

TEST(CollectingAlbums, AreNotSmartAndContinueTheNumbers)
{
    std::vector<CAlbumGroup> albums = defaultAlbums("5.0", "iPhone3,1");
    appendCollectingAlbums(albums, DeviceProfile("11.0", "iPhone8,1"));
    albums.erase(albums.begin(), albums.begin() + 4);
    EXPECT_EQ(describe(albums),
              (Lines{"4: 12 自拍", "5: 14 人像", "6: 7 全景照片", "7: 10 屏幕快照"}));
}

TEST(CollectingAlbums, GoByTheVersionAloneNotTheModel)
{
    const auto collecting = [](const char *iosVersion) {
        std::vector<CAlbumGroup> albums;
        appendCollectingAlbums(albums, DeviceProfile(iosVersion, "iPod9,1"));
        return kinds(albums);
    };
    EXPECT_EQ(collecting("5.0"), (std::vector<int>{10}));
    EXPECT_EQ(collecting("6.0"), (std::vector<int>{7, 10}));
    EXPECT_EQ(collecting("8.4"), (std::vector<int>{7, 10}));
    EXPECT_EQ(collecting("9.0"), (std::vector<int>{12, 7, 10}));
    EXPECT_EQ(collecting("10.3"), (std::vector<int>{12, 7, 10}));
    EXPECT_EQ(collecting("11.0"), (std::vector<int>{12, 14, 7, 10}));
}

TEST(CollectingAlbums, ScreenshotsHasAnotherNameBelowIos9)
{
    std::vector<CAlbumGroup> before;
    appendCollectingAlbums(before, DeviceProfile("8.4", "iPhone7,2"));
    std::vector<CAlbumGroup> after;
    appendCollectingAlbums(after, DeviceProfile("9.0", "iPhone7,2"));

    EXPECT_EQ(screenshotsName(before, false), "屏幕截图");
    EXPECT_EQ(screenshotsName(after, false), "屏幕快照");
}

TEST(CollectingAlbums, StandBehindTheDefaultAlbumsOfACatalogue)
{
    LibraryBuilder library(ios9);
    const AlbumRow synced = library.album("Holiday").set("ZKIND", 1550);
    library.asset("IMG_0001.JPG").set("ZCAMERACAPTUREDEVICE", 1).in(synced);

    const Catalogue catalogue(library);

    EXPECT_EQ(kinds(catalogue.albums), (std::vector<int>{1, 3, 12, 12, 16, 9}));
    EXPECT_TRUE(catalogue.albums[2].isSmartAlbum);
    EXPECT_FALSE(catalogue.albums[3].isSmartAlbum);
}
