#include "support/catalogue.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

#include <cstring>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

/// Puts a mark before every text of the library's context.
class Marking : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        if (std::strcmp(context, "QDevPhotoDbMgr") != 0)
            return {};
        return QLatin1String("T:") + QString::fromUtf8(sourceText);
    }
    bool isEmpty() const override { return false; }
};

/// A host that has installed a translator.
class Translated : public testing::Test
{
protected:
    Translated() { QCoreApplication::installTranslator(&translator_); }
    ~Translated() override { QCoreApplication::removeTranslator(&translator_); }

private:
    int count_ = 1;
    char name_[5] = "test";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication application_{count_, arguments_};
    Marking translator_;
};

} // namespace

TEST_F(Translated, NamesOfTheBuiltInAlbums)
{
    QDevPhotoDbMgr manager("15.0", "iPhone14,2");
    manager.SetDefaultAlbum();
    EXPECT_EQ(albumNames(manager.albums),
              (AlbumNames{"T:相机胶卷", "T:照片图库", "T:视频", "T:自拍", "T:实况照片", "T:人像",
                          "T:全景照片", "T:延时摄影", "T:慢动作", "T:连拍快照", "T:屏幕快照",
                          "T:动图", "T:屏幕录制", "T:个人收藏", "T:最近删除", "T:所有删除测试",
                          "T:RAW", "T:ProRes", "T:已隐藏"}));
}

TEST_F(Translated, OlderNameOfScreenshots)
{
    QDevPhotoDbMgr manager("8.4", "iPhone14,2");
    manager.SetDefaultAlbum();
    const CAlbumGroup *screenshots = findAlbum(manager.albums, AlbumKind::Screenshots, true);
    ASSERT_NE(screenshots, nullptr);
    EXPECT_EQ(screenshots->albumName, QString::fromUtf8("T:屏幕截图"));
}

TEST_F(Translated, NamesOfAlbumsThatCollectAndOfThePhotoStreamButNotUsersTitles)
{
    LibraryBuilder library(ios15);
    library.photoStream();
    library.asset("IMG_0001.JPG")
        .set("ZDEPTHTYPE", 1)
        .set("ZKINDSUBTYPE", 1)
        .set("ZCAMERACAPTUREDEVICE", 1)
        .in(library.album("视频").set("ZKIND", 1));
    library.asset("IMG_0002.PNG")
        .set("ZKINDSUBTYPE", 10)
        .set("ZSAVEDASSETTYPE", 256)
        .in(library.album("Holiday").set("ZKIND", 1));
    library.asset("IMG_0003.JPG").in(library.photoStream());

    const Catalogue catalogue(library);

    for (const auto &[kind, name] : {std::make_pair(AlbumKind::Selfies, "T:自拍"),
                                     std::make_pair(AlbumKind::Portrait, "T:人像"),
                                     std::make_pair(AlbumKind::Panoramas, "T:全景照片"),
                                     std::make_pair(AlbumKind::Screenshots, "T:屏幕快照"),
                                     std::make_pair(AlbumKind::User, "视频")}) {
        const CAlbumGroup *album = catalogue.plain(kind);
        ASSERT_NE(album, nullptr) << name;
        EXPECT_EQ(album->albumName, QString::fromUtf8(name));
    }
    const CAlbumGroup *stream = catalogue.smart(AlbumKind::PhotoStream);
    ASSERT_NE(stream, nullptr);
    EXPECT_EQ(stream->albumName, QString::fromUtf8("T:我的照片流"));
}

TEST_F(Translated, AlbumNamesOfThePhotos)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG").set("ZFAVORITE", 1);
    library.asset("SYNC0002.JPG").synced();
    const Catalogue catalogue(library);
    EXPECT_EQ(catalogue.photo("IMG_0001.JPG").albumName, QString::fromUtf8("T:相机胶卷"));
    EXPECT_EQ(catalogue.photo(catalogue.photoLibrary(), "SYNC0002.JPG").albumName,
              QString::fromUtf8("T:照片图库"));
    EXPECT_EQ(catalogue.photo(catalogue.smart(AlbumKind::Favorites), "IMG_0001.JPG").albumName,
              QString::fromUtf8("T:个人收藏"));
}

TEST_F(Translated, UnknownDatesInEveryPass)
{
    LibraryBuilder library(ios15);
    const AlbumRow holiday = library.album("Holiday");
    library.asset("IMG_0001.JPG").in(holiday);
    library.asset("SYNC0002.JPG").synced();
    library.execute("update ZASSET set ZDATECREATED = -1e9, ZADDEDDATE = -1e9");
    const Catalogue catalogue(library);
    const QString unknown = QString::fromUtf8("T:未知");
    EXPECT_EQ(catalogue.photo("IMG_0001.JPG").dateText, unknown);
    EXPECT_EQ(catalogue.photo(catalogue.photoLibrary(), "SYNC0002.JPG").dateText, unknown);
    EXPECT_EQ(catalogue.photo(catalogue.named("Holiday"), "IMG_0001.JPG").dateText, unknown);
}

TEST_F(Translated, ImportedAlbumsAreKnownByTheirTranslatedTitles)
{
    LibraryBuilder library(ios15);
    library.album("电脑导入相机胶卷");
    library.album("电脑导入照片图库").set("ZKIND", 1);
    library.album("T:电脑导入照片图库").set("ZKIND", 1);
    library.album("T:电脑导入相机胶卷");

    const Catalogue catalogue(library);

    EXPECT_EQ(albumNames(catalogue.albums),
              (AlbumNames{"T:相机胶卷", "T:照片图库", "T:电脑导入相机胶卷", "T:电脑导入照片图库",
                          "电脑导入相机胶卷", "电脑导入照片图库", "T:最近删除"}));
}
