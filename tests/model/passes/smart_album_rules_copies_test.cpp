#include "model/clock.h"
#include "model/core_data_time.h"
#include "support/camera_roll_run.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

using Kind = AlbumKind;

/// The flags that the rules themselves set, in the order in which they do.
std::string flagsOf(const CPhotoData &photo)
{
    constexpr std::pair<bool CPhotoData::*, const char *> flags[] = {
        {&CPhotoData::isDeleted, "deleted "},   {&CPhotoData::isPanorama, "panorama "},
        {&CPhotoData::isVideo, "video "},       {&CPhotoData::isTimelapse, "timelapse "},
        {&CPhotoData::isAnimated, "animated "}, {&CPhotoData::isPortrait, "portrait "},
        {&CPhotoData::isSelfie, "selfie "},     {&CPhotoData::isFavorite, "favorite "},
    };
    std::string text;
    for (const auto &[flag, name] : flags)
        if (photo.*flag)
            text += name;
    return text;
}

/// An asset that every rule but those of time-lapses and screenshots wants.
AssetRow manySided(LibraryBuilder &library)
{
    return library.asset("A.DNG")
        .video()
        .set("ZKINDSUBTYPE", 1)
        .set("ZPACKEDBADGEATTRIBUTES", 6)
        .set("ZAVALANCHEPICKTYPE", 16)
        .set("ZVIDEOCPDURATIONTIMESCALE", 600)
        .set("ZPLAYBACKSTYLE", 2)
        .set("ZDEPTHTYPE", 1)
        .set("ZCAMERACAPTUREDEVICE", 1)
        .set("ZFAVORITE", 1);
}

constexpr std::uint32_t now = 1700000000;
constexpr std::int64_t yesterday = now - coreDataEpoch - 24 * 60 * 60;

} // namespace

TEST(SmartAlbumCopies, CarryTheFlagsOfTheirOwnAndTheEarlierRules)
{
    LibraryBuilder library(ios15);
    manySided(library);

    const CameraRollRun run(library);
    const auto flags = [&](Kind::Code kind) { return flagsOf(run.photo(kind, "A.DNG")); };

    EXPECT_EQ(flags(Kind::Panoramas), "panorama ");
    EXPECT_EQ(flags(Kind::Raw), "panorama ");
    EXPECT_EQ(flags(Kind::Videos), "panorama video ");
    EXPECT_EQ(flags(Kind::Bursts), "panorama video ");
    EXPECT_EQ(flags(Kind::LivePhotos), "panorama video ");
    EXPECT_EQ(flags(Kind::Animated), "panorama video animated ");
    EXPECT_EQ(flags(Kind::Portrait), "panorama video animated portrait ");
    EXPECT_EQ(flags(Kind::Selfies), "panorama video animated portrait selfie ");
    EXPECT_EQ(flags(Kind::Favorites), "panorama video animated portrait selfie favorite ");
    EXPECT_EQ(flags(Kind::CameraRoll), "panorama video animated portrait selfie favorite ");
}

TEST(SmartAlbumCopies, CarryEverythingThatTheRowSaysByItself)
{
    LibraryBuilder library(ios15);
    manySided(library).set("ZAVALANCHEUUID", "burst").set("ZHASADJUSTMENTS", 1);

    const CameraRollRun run(library);
    const CPhotoData &first = run.photo(Kind::Panoramas, "A.DNG");

    EXPECT_TRUE(first.isRaw);
    EXPECT_TRUE(first.isBurst);
    EXPECT_EQ(first.isBurstPick, 1);
    EXPECT_EQ(first.burstUuid.toStdString(), "burst");
    EXPECT_TRUE(first.isLivePhoto);
    EXPECT_TRUE(first.isEdited);
    EXPECT_EQ(first.assetId, 1);
    EXPECT_EQ(first.dateText.toStdString(), "2020-01-05");
}

TEST(SmartAlbumCopies, OfATrashedAssetDoNotSayWhatLaterRulesFind)
{
    const StoppedClock clock(now);
    LibraryBuilder library(ios15);
    manySided(library).trashedAt(yesterday);

    const CameraRollRun run(library);

    EXPECT_EQ(run.shownIn("A.DNG"), (Kinds{Kind::RecentlyDeleted, Kind::Raw}));
    EXPECT_EQ(flagsOf(run.photo(Kind::RecentlyDeleted, "A.DNG")), "deleted ");
    EXPECT_EQ(flagsOf(run.photo(Kind::Raw, "A.DNG")), "deleted panorama ");
}

TEST(SmartAlbumCopies, AreRecordsOfTheirOwn)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG").set("ZFAVORITE", 1);

    const CameraRollRun run(library);

    EXPECT_NE(&run.photo(Kind::Favorites, "A.JPG"), &run.photo("A.JPG"));
    EXPECT_EQ(run.photo(Kind::Favorites, "A.JPG").albumName.toStdString(), "个人收藏");
    EXPECT_EQ(run.photo("A.JPG").albumName.toStdString(), "相机胶卷");
}

TEST(SmartAlbums, ThatDoNotCollectByRuleStayEmpty)
{
    const StoppedClock clock(now);
    LibraryBuilder library(ios15);
    library.asset("A.JPG").trashedAt(yesterday);
    manySided(library);

    const CameraRollRun run(library);

    EXPECT_EQ(files(run.smart(Kind::AllDeleted)), Files{});
    EXPECT_EQ(files(run.plain(Kind::PhotoLibrary)), Files{});
}
