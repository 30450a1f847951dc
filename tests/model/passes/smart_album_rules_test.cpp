#include "model/clock.h"
#include "model/core_data_time.h"
#include "support/camera_roll_run.h"
#include "support/case_name.h"

#include <gtest/gtest.h>

#include <utility>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

using Kind = AlbumKind;
using Columns = std::vector<std::pair<const char *, Value>>;

constexpr const char *uti = "ZUNIFORMTYPEIDENTIFIER";
constexpr const char *movie = "com.apple.quicktime-movie";

constexpr std::uint32_t now = 1700000000;
constexpr std::int64_t yesterday = now - coreDataEpoch - 24 * 60 * 60;

enum Trait {
    EveryAlbum = 1, ///< of the kind takes a copy, not only the first
    Nameless = 2,   ///< assets without a file name are taken
    Trashed = 4,    ///< trashed assets are taken
    Hidden = 8,     ///< hidden assets are taken
    NotInRoll = 16, ///< its assets are not in the Camera Roll
};

/// What makes an asset of iOS 15 one for a smart album, and which assets that album takes.
struct Rule
{
    const char *label;
    Kind::Code kind;
    bool CPhotoData::*flag;
    int traits;
    Columns columns;

    bool has(Trait trait) const { return (traits & trait) != 0; }
    std::string name() const { return label; }

    AssetRow asset(LibraryBuilder &library, const char *fileName = "IMG_0001.DNG") const
    {
        AssetRow row = library.asset(fileName);
        for (const auto &[column, value] : columns)
            row.set(column, value);
        return row;
    }
};

std::ostream &operator<<(std::ostream &stream, const Rule &rule)
{
    return stream << rule.label;
}

const Rule rules[] = {
    {"Trash",
     Kind::RecentlyDeleted,
     &CPhotoData::isDeleted,
     Trashed | Hidden | NotInRoll,
     {{"ZTRASHEDSTATE", 1}, {"ZTRASHEDDATE", yesterday}}},
    {"Hidden", Kind::Hidden, &CPhotoData::isHidden, Trashed | Hidden | NotInRoll, {{"ZHIDDEN", 1}}},
    {"Raw", Kind::Raw, &CPhotoData::isRaw, Trashed, {{"ZPACKEDBADGEATTRIBUTES", 6}}},
    {"ProRes", Kind::ProRes, &CPhotoData::isProRes, Trashed, {{"ZPACKEDBADGEATTRIBUTES", 8}}},
    {"Panorama", Kind::Panoramas, &CPhotoData::isPanorama, EveryAlbum, {{"ZKINDSUBTYPE", 1}}},
    {"Video", Kind::Videos, &CPhotoData::isVideo, EveryAlbum, {{uti, movie}}},
    {"TimeLapse",
     Kind::TimeLapse,
     &CPhotoData::isTimelapse,
     EveryAlbum,
     {{uti, movie}, {"ZKINDSUBTYPE", 102}}},
    {"SloMo", Kind::SloMo, &CPhotoData::isSlomo, EveryAlbum, {{uti, movie}, {"ZKINDSUBTYPE", 101}}},
    {"ScreenRecording",
     Kind::ScreenRecordings,
     &CPhotoData::isScreenRecording,
     EveryAlbum,
     {{uti, movie}, {"ZKINDSUBTYPE", 103}}},
    {"Burst", Kind::Bursts, &CPhotoData::isBurst, EveryAlbum, {{"ZAVALANCHEPICKTYPE", 16}}},
    {"LivePhoto",
     Kind::LivePhotos,
     &CPhotoData::isLivePhoto,
     EveryAlbum,
     {{"ZVIDEOCPDURATIONTIMESCALE", 600}}},
    {"Screenshot", Kind::Screenshots, &CPhotoData::isScreenshot, Nameless, {{"ZKINDSUBTYPE", 10}}},
    {"Animated", Kind::Animated, &CPhotoData::isAnimated, Nameless, {{"ZPLAYBACKSTYLE", 2}}},
    {"Portrait", Kind::Portrait, &CPhotoData::isPortrait, Nameless, {{"ZDEPTHTYPE", 1}}},
    {"Selfie", Kind::Selfies, &CPhotoData::isSelfie, Nameless, {{"ZCAMERACAPTUREDEVICE", 1}}},
    {"Favorite", Kind::Favorites, &CPhotoData::isFavorite, Nameless, {{"ZFAVORITE", 1}}},
};

} // namespace

class SmartAlbumRule : public testing::TestWithParam<Rule>
{
protected:
    const Rule &rule = GetParam();
    LibraryBuilder library{ios15};
    StoppedClock clock{now};

    std::size_t copies(const CameraRollRun &run, const char *fileName = "IMG_0001.DNG") const
    {
        return run.shownIn(fileName).count(rule.kind);
    }
};

TEST_P(SmartAlbumRule, FillsItsAlbumAndNoOther)
{
    rule.asset(library);
    Kinds expected = {rule.kind};
    if (!rule.has(NotInRoll))
        expected.insert(Kind::CameraRoll);
    EXPECT_EQ(CameraRollRun(library).shownIn("IMG_0001.DNG"), expected);
}

TEST_P(SmartAlbumRule, SetsItsFlagOnTheCopyAndInTheCameraRoll)
{
    rule.asset(library);
    library.asset("other.jpg");

    const CameraRollRun run(library);

    EXPECT_TRUE(run.photo(rule.kind, "IMG_0001.DNG").*rule.flag);
    if (!rule.has(NotInRoll)) {
        EXPECT_TRUE(run.photo("IMG_0001.DNG").*rule.flag);
    }
    EXPECT_FALSE(run.photo("other.jpg").*rule.flag);
}

TEST_P(SmartAlbumRule, LabelsItsCopiesWithTheirAlbum)
{
    rule.asset(library);
    OwningManager manager(library);
    manager.SetDefaultAlbum();
    for (CAlbumGroup &album : manager.albums)
        album.albumUuid = "uuid " + std::to_string(album.albumKind);

    readCameraRoll(manager);

    const CAlbumGroup &album = *manager.smart(rule.kind);
    ASSERT_EQ(album.photos.size(), 1U);
    EXPECT_EQ(album.photos[0]->albumName.toStdString(), album.albumName.toStdString());
    EXPECT_EQ(album.photos[0]->albumUuid, album.albumUuid);
}

TEST_P(SmartAlbumRule, FillsTheFirstOrEveryAlbumOfItsKind)
{
    rule.asset(library);
    OwningManager manager(library);
    manager.SetDefaultAlbum();
    manager.SetDefaultAlbum();
    const std::size_t half = manager.albums.size() / 2;

    readCameraRoll(manager);

    Kinds first;
    Kinds second;
    for (std::size_t i = 0; i < manager.albums.size(); ++i)
        if (manager.albums[i].isSmartAlbum && !manager.albums[i].photos.empty())
            (i < half ? first : second).insert(manager.albums[i].albumKind);
    EXPECT_EQ(first, Kinds{rule.kind});
    EXPECT_EQ(second, rule.has(EveryAlbum) ? Kinds{rule.kind} : Kinds{});
}

TEST_P(SmartAlbumRule, SetsItsFlagWhereNoAlbumOfItsKindIsSmart)
{
    rule.asset(library);
    OwningManager manager(library);
    manager.SetDefaultAlbum();
    for (CAlbumGroup &album : manager.albums)
        album.isSmartAlbum = album.isSmartAlbum && album.albumKind != rule.kind;

    readCameraRoll(manager);

    EXPECT_EQ(files(manager.plain(rule.kind)), Files{});
    ASSERT_EQ(manager.albums[0].photos.size(), rule.has(NotInRoll) ? 0U : 1U);
    if (!rule.has(NotInRoll)) {
        EXPECT_TRUE(manager.albums[0].photos[0]->*rule.flag);
    }
}

TEST_P(SmartAlbumRule, TakesAssetsWithoutAFileNameOnlyIfItMay)
{
    rule.asset(library, "");
    const CameraRollRun run(library);
    EXPECT_EQ(run.shownIn(""), rule.has(Nameless) ? Kinds{rule.kind} : Kinds{});
    EXPECT_EQ(run.rows, 1);
}

TEST_P(SmartAlbumRule, TakesTrashedAssetsOnlyIfItMay)
{
    rule.asset(library).trashedAt(yesterday);
    const CameraRollRun run(library);
    EXPECT_EQ(copies(run), rule.has(Trashed) ? 1U : 0U);
    EXPECT_EQ(run.shownIn("IMG_0001.DNG").count(Kind::RecentlyDeleted), 1U);
    EXPECT_EQ(run.shownIn("IMG_0001.DNG").count(Kind::CameraRoll), 0U);
}

TEST_P(SmartAlbumRule, TakesHiddenAssetsOnlyIfItMay)
{
    rule.asset(library).set("ZHIDDEN", 1);
    const CameraRollRun run(library);
    EXPECT_EQ(copies(run), rule.has(Hidden) ? 1U : 0U);
    EXPECT_EQ(run.shownIn("IMG_0001.DNG").count(Kind::Hidden), 1U);
    EXPECT_EQ(run.shownIn("IMG_0001.DNG").count(Kind::CameraRoll), 0U);
}

INSTANTIATE_TEST_SUITE_P(Rules, SmartAlbumRule, testing::ValuesIn(rules), NameOfCase());
