#include "support/album_contents.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

constexpr AlbumKind::Code collectedKinds[] = {AlbumKind::Panoramas, AlbumKind::Screenshots,
                                              AlbumKind::Portrait, AlbumKind::Selfies};

/// Makes `asset` a panorama with depth, taken with the front camera.
void makeSelfiePanorama(AssetRow asset)
{
    asset.set("ZKINDSUBTYPE", 1).set("ZDEPTHTYPE", 1).set("ZCAMERACAPTUREDEVICE", 1);
}

/// A letter for each of the flags that go with those kinds.
std::string flags(const CPhotoData &photo)
{
    std::string text;
    text += photo.isPanorama ? 'p' : '-';
    text += photo.isScreenshot ? 's' : '-';
    text += photo.isPortrait ? 'd' : '-';
    text += photo.isSelfie ? 'f' : '-';
    return text;
}

} // namespace

TEST(CollectingAlbums, CopiesCarryTheFlagsThatWereSetSoFar)
{
    LibraryBuilder library(ios15);
    const AlbumRow holiday = library.album("Holiday").set("ZKIND", 1);
    makeSelfiePanorama(library.asset("IMG_0001.JPG").in(holiday));

    const AlbumContents contents(library);

    EXPECT_EQ(flags(contents.photo(holiday)), "p-df");
    EXPECT_EQ(flags(*contents.plain(AlbumKind::Panoramas)->photos.at(0)), "p---");
    EXPECT_EQ(flags(*contents.plain(AlbumKind::Portrait)->photos.at(0)), "p-d-");
    EXPECT_EQ(flags(*contents.plain(AlbumKind::Selfies)->photos.at(0)), "p-df");
}

TEST(CollectingAlbums, CopiesBearNameAndUuidOfTheAlbumThatCollects)
{
    LibraryBuilder library(ios15);
    const AlbumRow holiday = library.album("Holiday").set("ZKIND", 1);
    AssetRow asset = library.asset("IMG_0001.JPG").in(holiday);
    makeSelfiePanorama(asset);
    OwningManager manager(library);
    manager.prepare();
    CAlbumGroup target;
    target.albumKind = AlbumKind::Selfies;
    target.albumName = QStringLiteral("Faces");
    target.albumUuid = "uuid of Faces";
    manager.albums.push_back(target);
    manager.GetPhotoGroups();

    manager.GetPhotoDatas();

    const CPhotoData &copy = *manager.plain(AlbumKind::Selfies)->photos.at(0);
    EXPECT_EQ(copy.albumName, QStringLiteral("Faces"));
    EXPECT_EQ(copy.albumUuid, "uuid of Faces");
    EXPECT_EQ(copy.uuid, asset.uuid());
    const CPhotoData &original = *manager.albums.back().photos.at(0);
    EXPECT_EQ(original.albumName, QStringLiteral("Holiday"));
    EXPECT_EQ(original.albumUuid, holiday.uuid());
}

TEST(CollectingAlbums, TakeNothingFromAlbumsMadeOnTheDevice)
{
    LibraryBuilder library(ios15);
    const AlbumRow made = library.album("Holiday");
    const AlbumRow stream = library.photoStream();
    makeSelfiePanorama(library.asset("IMG_0001.JPG").in(made).in(stream));

    const AlbumContents contents(library);

    EXPECT_EQ(flags(contents.photo(made)), "----");
    EXPECT_EQ(flags(contents.photo(stream)), "----");
    for (const AlbumKind::Code kind : collectedKinds)
        EXPECT_EQ(files(contents.plain(kind)), Files()) << kind;
}

TEST(CollectingAlbums, AreFilledOnceForEachAlbumThatHoldsTheAsset)
{
    LibraryBuilder library(ios15);
    const AlbumRow holiday = library.album("Holiday").set("ZKIND", 1);
    const AlbumRow friends = library.album("Friends").set("ZKIND", 0);
    makeSelfiePanorama(library.asset("IMG_0001.JPG").in(holiday).in(friends));
    const AlbumContents contents(library);
    EXPECT_EQ(files(contents.plain(AlbumKind::Selfies)), (Files{"IMG_0001.JPG", "IMG_0001.JPG"}));
}

TEST(CollectingAlbums, ShowPhotosOfAllAlbumsNewestFirst)
{
    LibraryBuilder library(ios15);
    const AlbumRow holiday = library.album("Holiday").set("ZKIND", 1);
    const AlbumRow friends = library.album("Friends").set("ZKIND", 1);
    makeSelfiePanorama(library.asset("IMG_0001.JPG").in(friends));
    makeSelfiePanorama(library.asset("IMG_0002.JPG").in(holiday));
    makeSelfiePanorama(library.asset("IMG_0003.JPG").in(friends));
    const AlbumContents contents(library);
    EXPECT_EQ(files(contents.plain(AlbumKind::Panoramas)),
              (Files{"IMG_0001.JPG", "IMG_0002.JPG", "IMG_0003.JPG"}));
}

TEST(CollectingAlbums, FlagsAreSetWithoutThem)
{
    LibraryBuilder library(ios15);
    makeSelfiePanorama(library.asset("IMG_0001.JPG").in(library.album("Holiday").set("ZKIND", 1)));
    OwningManager manager(library);
    manager.prepare();
    manager.GetPhotoGroups();

    manager.GetPhotoDatas();

    EXPECT_EQ(flags(*manager.albums.back().photos.at(0)), "p-df");
    for (const AlbumKind::Code kind : collectedKinds)
        EXPECT_EQ(files(manager.smart(kind)), Files()) << kind;
}

TEST(CollectingAlbums, OnlyTheFirstOfAKindCollects)
{
    LibraryBuilder library(ios15);
    makeSelfiePanorama(library.asset("IMG_0001.JPG").in(library.album("Holiday").set("ZKIND", 1)));
    OwningManager manager(library);
    manager.prepare();
    const std::size_t first = manager.albums.size();
    for (int i = 0; i < 2; ++i)
        appendCollectingAlbums(manager.albums, {manager.iosVersion, manager.productType});
    manager.GetPhotoGroups();

    manager.GetPhotoDatas();

    const auto isSelfies = [](const CAlbumGroup &album) {
        return album.albumKind == AlbumKind::Selfies && !album.isSmartAlbum;
    };
    const auto begin = manager.albums.begin() + static_cast<std::ptrdiff_t>(first);
    const auto one = std::find_if(begin, manager.albums.end(), isSelfies);
    const auto other = std::find_if(one + 1, manager.albums.end(), isSelfies);
    ASSERT_NE(other, manager.albums.end());
    EXPECT_EQ(files(&*one), (Files{"IMG_0001.JPG"}));
    EXPECT_EQ(files(&*other), Files());
}

TEST(CollectingAlbums, PanoramasNeedADeviceThatTakesThem)
{
    LibraryBuilder library(ios15);
    const AlbumRow holiday = library.album("Holiday").set("ZKIND", 1);
    library.asset("IMG_0001.JPG").set("ZKINDSUBTYPE", 1).in(holiday);
    const std::pair<const char *, bool> models[] = {
        {"iPhone3,1", true}, {"iPhone2,1", false}, {"iPad1,1", true}, {"iPod9,1", false}};
    for (const auto &[model, takesPanoramas] : models) {
        SCOPED_TRACE(model);
        const AlbumContents contents(library, "17.4", model);
        EXPECT_EQ(contents.photo(holiday).isPanorama, takesPanoramas);
        EXPECT_EQ(files(contents.plain(AlbumKind::Panoramas)).size(), takesPanoramas ? 1U : 0U);
    }
}

TEST(CollectingAlbums, Ios7TellsNoKindsOnOlderModels)
{
    LibraryBuilder library(ios7SubTypes);
    const AlbumRow holiday = library.album("Holiday").set("ZKIND", 1);
    library.asset("IMG_0001.JPG").set("ZKINDSUBTYPE", 1).in(holiday);
    library.asset("IMG_0002.PNG").set("ZKINDSUBTYPE", 10).set("ZSAVEDASSETTYPE", 256).in(holiday);

    const AlbumContents newer(library, "7.1", "iPhone4,1");
    EXPECT_EQ(newer.result, 2);
    EXPECT_EQ(files(newer.plain(AlbumKind::Panoramas)), (Files{"IMG_0001.JPG"}));
    EXPECT_EQ(files(newer.plain(AlbumKind::Screenshots)), (Files{"IMG_0002.PNG"}));

    const AlbumContents older(library, "7.1", "iPhone3,1");
    EXPECT_EQ(older.result, 2);
    EXPECT_EQ(files(older.plain(AlbumKind::Panoramas)), Files());
    EXPECT_EQ(files(older.plain(AlbumKind::Screenshots)), Files());
    EXPECT_EQ(flags(older.photo(holiday)), "----");
}

TEST(CollectingAlbums, StandBesideTheSmartAlbumsOfTheirKindsInTheCatalogue)
{
    LibraryBuilder library(ios9);
    library.asset("IMG_0001.JPG").set("ZCAMERACAPTUREDEVICE", 1);
    library.asset("IMG_0002.JPG")
        .synced()
        .set("ZCAMERACAPTUREDEVICE", 1)
        .in(library.album("Holiday").set("ZKIND", 1));

    const Catalogue catalogue(library);

    EXPECT_EQ(files(catalogue.smart(AlbumKind::Selfies)), (Files{"IMG_0001.JPG"}));
    EXPECT_EQ(files(catalogue.plain(AlbumKind::Selfies)), (Files{"IMG_0002.JPG"}));
}
