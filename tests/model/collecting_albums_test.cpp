#include "support/album_contents.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

/// A kind of photo that an album collects, and what makes an asset one.
struct Collected
{
    AlbumKind::Code kind;
    bool CPhotoData::*flag;
};

constexpr Collected panoramas = {AlbumKind::Panoramas, &CPhotoData::isPanorama};
constexpr Collected screenshots = {AlbumKind::Screenshots, &CPhotoData::isScreenshot};
constexpr Collected portraits = {AlbumKind::Portrait, &CPhotoData::isPortrait};
constexpr Collected selfies = {AlbumKind::Selfies, &CPhotoData::isSelfie};
constexpr Collected everyKind[] = {panoramas, screenshots, portraits, selfies};

struct Columns
{
    const char *first;
    int firstValue;
    const char *second = nullptr;
    int secondValue = 0;

    void set(AssetRow asset) const
    {
        asset.set(first, firstValue);
        if (second != nullptr)
            asset.set(second, secondValue);
    }
};

struct CollectCase
{
    const char *name;
    Schema schema;
    Columns columns;
    Collected expected;
    bool isCollected;
};

std::ostream &operator<<(std::ostream &stream, const CollectCase &testCase)
{
    return stream << testCase.name;
}

} // namespace

class CollectingAlbum : public testing::TestWithParam<CollectCase>
{
};

TEST_P(CollectingAlbum, TakesACopyOfEachPhotoOfItsKind)
{
    const CollectCase &test = GetParam();
    LibraryBuilder library(test.schema);
    const AlbumRow holiday = library.album("Holiday").set("ZKIND", 1);
    test.columns.set(library.asset("IMG_0001.JPG").in(holiday));

    const AlbumContents contents(library);

    for (const Collected &collected : everyKind) {
        SCOPED_TRACE(collected.kind);
        const bool isCollected = test.isCollected && collected.kind == test.expected.kind;
        EXPECT_EQ(contents.photo(holiday).*collected.flag, isCollected);
        EXPECT_EQ(files(contents.plain(collected.kind)),
                  isCollected ? Files{"IMG_0001.JPG"} : Files());
        EXPECT_EQ(files(contents.smart(collected.kind)), Files());
    }
}

// clang-format off
constexpr CollectCase collectCases[] = {
    {"PanoramaIos7",        ios7SubTypes, {"ZKINDSUBTYPE", 1},                             panoramas,   true},
    {"PanoramaIos8",        ios8,         {"ZKINDSUBTYPE", 1},                             panoramas,   true},
    {"PanoramaIos18",       ios18,        {"ZKINDSUBTYPE", 1},                             panoramas,   true},
    {"OtherSubType",        ios18,        {"ZKINDSUBTYPE", 2},                             panoramas,   false},
    {"ScreenshotIos7",      ios7SubTypes, {"ZKINDSUBTYPE", 10, "ZSAVEDASSETTYPE", 256},    screenshots, true},
    {"ScreenshotIos9",      ios9,         {"ZKINDSUBTYPE", 10, "ZSAVEDASSETTYPE", 256},    screenshots, true},
    {"ScreenshotIos15",     ios15,        {"ZKINDSUBTYPE", 10, "ZSAVEDASSETTYPE", 256},    screenshots, true},
    {"ScreenshotOfCamera",  ios15,        {"ZKINDSUBTYPE", 10, "ZSAVEDASSETTYPE", 3},      screenshots, false},
    {"SyncedPhoto",         ios15,        {"ZKINDSUBTYPE", 0,  "ZSAVEDASSETTYPE", 256},    screenshots, false},
    {"DepthIos11",          ios11,        {"ZDEPTHSTATES", 2},                             portraits,   true},
    {"OtherDepthIos11",     ios11,        {"ZDEPTHSTATES", 1},                             portraits,   false},
    {"DepthIos14",          ios14,        {"ZDEPTHTYPE", 1},                               portraits,   true},
    {"DepthIos18",          ios18,        {"ZDEPTHTYPE", 1},                               portraits,   true},
    {"OtherDepthIos14",     ios14,        {"ZDEPTHTYPE", 2},                               portraits,   false},
    {"FrontCameraIos9",     ios9,         {"ZCAMERACAPTUREDEVICE", 1},                     selfies,     true},
    {"FrontCameraIos11",    ios11,        {"ZCAMERACAPTUREDEVICE", 1},                     selfies,     true},
    {"FrontCameraIos14",    ios14,        {"ZCAMERACAPTUREDEVICE", 1},                     selfies,     true},
    {"BackCamera",          ios14,        {"ZCAMERACAPTUREDEVICE", 0},                     selfies,     false},
    {"AnotherCamera",       ios14,        {"ZCAMERACAPTUREDEVICE", 2},                     selfies,     false},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Kinds, CollectingAlbum, testing::ValuesIn(collectCases),
                         [](const auto &test) { return std::string(test.param.name); });

namespace {

/// Makes `asset` a panorama with depth, taken with the front camera.
void makeSelfiePanorama(AssetRow asset)
{
    asset.set("ZKINDSUBTYPE", 1).set("ZDEPTHTYPE", 1).set("ZCAMERACAPTUREDEVICE", 1);
}

/// Which of the four flags are set, in the order in which they are.
std::string flags(const CPhotoData &photo)
{
    std::string text;
    for (const Collected &collected : everyKind)
        text += photo.*collected.flag ? '1' : '0';
    return text;
}

} // namespace

TEST(CollectingAlbums, CopiesCarryTheFlagsThatWereSetSoFar)
{
    LibraryBuilder library(ios15);
    const AlbumRow holiday = library.album("Holiday").set("ZKIND", 1);
    makeSelfiePanorama(library.asset("IMG_0001.JPG").in(holiday));

    const AlbumContents contents(library);

    EXPECT_EQ(flags(contents.photo(holiday)), "1011");
    EXPECT_EQ(flags(*contents.plain(AlbumKind::Panoramas)->photos.at(0)), "1000");
    EXPECT_EQ(flags(*contents.plain(AlbumKind::Portrait)->photos.at(0)), "1010");
    EXPECT_EQ(flags(*contents.plain(AlbumKind::Selfies)->photos.at(0)), "1011");
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

    EXPECT_EQ(flags(contents.photo(made)), "0000");
    EXPECT_EQ(flags(contents.photo(stream)), "0000");
    for (const Collected &collected : everyKind)
        EXPECT_EQ(files(contents.plain(collected.kind)), Files()) << collected.kind;
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

    EXPECT_EQ(flags(*manager.albums.back().photos.at(0)), "1011");
    for (const Collected &collected : everyKind)
        EXPECT_EQ(files(manager.smart(collected.kind)), Files()) << collected.kind;
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
    EXPECT_EQ(flags(older.photo(holiday)), "0000");
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
