#include "support/case_name.h"
#include "support/expect_failure.h"
#include "support/two_snapshots.h"

#include <functional>

using namespace iosphoto::test;
using testing::HasSubstr;

namespace {

/// What happened to a photo between two snapshots.
struct PhotoStory
{
    const char *title;
    const char *row;     ///< of the table
    const char *summary; ///< below it
    std::function<void(AssetRow &, AssetRow &)> change;

    std::string name() const { return title; }
};

void PrintTo(const PhotoStory &story, std::ostream *out)
{
    *out << story.title;
}

const PhotoStory photoStories[] = {
    {"Trashed", "trashed  DCIM/100APPLE/IMG_0002.JPG", "1 trashed",
     [](AssetRow &, AssetRow &now) { now.trashedAt(TwoSnapshots::justNow()); }},
    {"Restored", "restored  DCIM/100APPLE/IMG_0002.JPG", "1 restored",
     [](AssetRow &old, AssetRow &) { old.trashedAt(TwoSnapshots::justNow()); }},
    {"Edited", "edited  DCIM/100APPLE/IMG_0002.JPG", "1 edited",
     [](AssetRow &, AssetRow &now) { now.set("ZHASADJUSTMENTS", 1); }},
    {"EditUndone", "edited  DCIM/100APPLE/IMG_0002.JPG  edit undone", "1 edited",
     [](AssetRow &old, AssetRow &) { old.set("ZHASADJUSTMENTS", 1); }},
    {"EditedAgainLater", "edited  DCIM/100APPLE/IMG_0002.JPG  edited again", "1 edited",
     [](AssetRow &old, AssetRow &now) {
         old.set("ZHASADJUSTMENTS", 1);
         now.set("ZHASADJUSTMENTS", 1).set("ZMODIFICATIONDATE", 600000000);
     }},
    {"CroppedAgain", "edited  DCIM/100APPLE/IMG_0002.JPG  edited again", "1 edited",
     [](AssetRow &old, AssetRow &now) {
         old.set("ZHASADJUSTMENTS", 1);
         now.set("ZHASADJUSTMENTS", 1).set("ZWIDTH", 100);
     }},
    {"EditedAgainToAnotherSize", "edited  DCIM/100APPLE/IMG_0002.JPG  edited again", "1 edited",
     [](AssetRow &old, AssetRow &now) {
         old.set("ZHASADJUSTMENTS", 1);
         now.set("ZHASADJUSTMENTS", 1).set("ZORIGINALFILESIZE", 5);
     }},
    {"MadeFavorite", "changed  DCIM/100APPLE/IMG_0002.JPG  now a favorite", "1 changed",
     [](AssetRow &, AssetRow &now) { now.set("ZFAVORITE", 1); }},
    {"MadeNoFavorite", "changed  DCIM/100APPLE/IMG_0002.JPG  no longer a favorite", "1 changed",
     [](AssetRow &old, AssetRow &) { old.set("ZFAVORITE", 1); }},
    {"Hidden", "changed  DCIM/100APPLE/IMG_0002.JPG  now hidden", "1 changed",
     [](AssetRow &, AssetRow &now) { now.set("ZHIDDEN", 1); }},
    {"Shown", "changed  DCIM/100APPLE/IMG_0002.JPG  no longer hidden", "1 changed",
     [](AssetRow &old, AssetRow &) { old.set("ZHIDDEN", 1); }},
    {"Renamed", "changed  DCIM/100APPLE/Party.JPG  was named IMG_0002.JPG", "1 changed",
     [](AssetRow &, AssetRow &now) { now.set("ZFILENAME", "Party.JPG"); }},
    {"RenamedAcrossLines", "changed  DCIM/100APPLE/Party\\n🎉.JPG  was named IMG_0002.JPG",
     "1 changed", [](AssetRow &, AssetRow &now) { now.set("ZFILENAME", "Party\n🎉.JPG"); }},
    {"Dated", "changed  DCIM/100APPLE/IMG_0002.JPG  has another time of creation", "1 changed",
     [](AssetRow &, AssetRow &now) { now.set("ZDATECREATED", 1000); }},
    {"SeveralThings",
     "edited, changed  DCIM/100APPLE/Party.JPG  now a favorite, was named IMG_0002.JPG",
     "1 edited, 1 changed",
     [](AssetRow &, AssetRow &now) {
         now.set("ZHASADJUSTMENTS", 1).set("ZFAVORITE", 1).set("ZFILENAME", "Party.JPG");
     }},
    {"FavoriteHidden", "changed  DCIM/100APPLE/IMG_0002.JPG  now hidden", "1 changed",
     [](AssetRow &old, AssetRow &now) {
         old.set("ZFAVORITE", 1);
         now.set("ZFAVORITE", 1).set("ZHIDDEN", 1);
     }},
    {"FavoriteTrashed", "trashed  DCIM/100APPLE/IMG_0002.JPG", "1 trashed",
     [](AssetRow &old, AssetRow &now) {
         old.set("ZFAVORITE", 1);
         now.set("ZFAVORITE", 1).trashedAt(TwoSnapshots::justNow());
     }},
};

std::string firstLine(const std::string &text)
{
    return text.substr(0, text.find('\n'));
}

/// The table's rows without its heading, and what stands below.
std::string belowHeading(const ToolRun &run)
{
    EXPECT_EQ(firstLine(run.out).substr(0, 6), "CHANGE");
    return run.out.substr(firstLine(run.out).size() + 1);
}

} // namespace

class ToolDiffOfPhoto : public testing::TestWithParam<PhotoStory>
{
};

TEST_P(ToolDiffOfPhoto, TellsWhatHappened)
{
    TwoSnapshots phone;
    std::vector<AssetRow> photos;
    for (LibraryBuilder *library : {&phone.before, &phone.after}) {
        library->asset("IMG_0001.JPG");
        photos.push_back(library->asset("IMG_0002.JPG"));
        library->asset("IMG_0003.JPG");
    }
    GetParam().change(photos[0], photos[1]);

    const ToolRun run = phone.diff();

    EXPECT_EQ(belowHeading(run), std::string(GetParam().row) + "\n\n" + GetParam().summary + "\n");
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 1);
}

INSTANTIATE_TEST_SUITE_P(Stories, ToolDiffOfPhoto, testing::ValuesIn(photoStories), NameOfCase());

TEST(ToolDiff, OfLibrariesThatAreTheSameIsAnEmptyOne)
{
    TwoSnapshots phone;
    for (LibraryBuilder *library : {&phone.before, &phone.after})
        library->asset("IMG_0001.JPG").in(library->album("Trip")).set("ZFAVORITE", 1);
    EXPECT_EQ(phone.diff(), (ToolRun{"no difference\n", "", 0}));
    EXPECT_EQ(phone.diff({"--jsonl"}), (ToolRun{"", "", 0}));
}

TEST(ToolDiff, OfALibraryWithItselfIsEmpty)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG").in(library.album("Trip")).set("ZHIDDEN", 1);
    const ToolRun run = runTool(
        {"diff", library.path(), library.path(), "--ios", "15.0", "--product", "iPhone14,2"});
    EXPECT_EQ(run, (ToolRun{"no difference\n", "", 0}));
}

TEST(ToolDiff, ChangeOfModificationTimeAloneIsNoEdit)
{
    TwoSnapshots phone;
    phone.before.asset("IMG_0001.JPG");
    phone.after.asset("IMG_0001.JPG").set("ZMODIFICATIONDATE", 600000000);
    EXPECT_EQ(phone.diff(), (ToolRun{"no difference\n", "", 0}));
}

TEST(ToolDiff, NewPhotosComeInTheOrderOfTheLibraryAndGonePhotosBehindThem)
{
    TwoSnapshots phone;
    phone.before.asset("IMG_0001.JPG");
    phone.before.asset("IMG_0002.JPG");
    phone.before.asset("IMG_0003.JPG").trashedAt(TwoSnapshots::justNow());
    phone.after.asset("IMG_0001.JPG");
    phone.after.asset("IMG_0004.JPG").set("ZUUID", "F");
    phone.after.asset("IMG_0005.JPG").set("ZUUID", "C");
    EXPECT_EQ(phone.diff(), (ToolRun{"CHANGE  FILE                        WHAT\n"
                                     "new     DCIM/100APPLE/IMG_0004.JPG\n"
                                     "new     DCIM/100APPLE/IMG_0005.JPG\n"
                                     "gone    DCIM/100APPLE/IMG_0002.JPG\n"
                                     "gone    DCIM/100APPLE/IMG_0003.JPG  gone from the trash\n"
                                     "\n"
                                     "2 new, 2 gone\n",
                                     "", 1}));
}

TEST(ToolDiff, PhotosAreMatchedWhateverTheirOrder)
{
    TwoSnapshots phone;
    phone.before.asset("IMG_0001.JPG").set("ZUUID", "X");
    phone.before.asset("IMG_0002.JPG").set("ZUUID", "Y");
    phone.after.asset("IMG_0002.JPG").set("ZUUID", "Y");
    phone.after.asset("IMG_0001.JPG").set("ZUUID", "X").set("ZFAVORITE", 1);
    for (LibraryBuilder *library : {&phone.before, &phone.after})
        library->execute("update ZASSET set ZDATECREATED = 7");
    EXPECT_EQ(belowHeading(phone.diff()),
              "changed  DCIM/100APPLE/IMG_0001.JPG  now a favorite\n\n1 changed\n");
}

TEST(ToolDiff, PhotosWithoutUuidAreMatchedByFolderAndName)
{
    TwoSnapshots phone;
    for (LibraryBuilder *library : {&phone.before, &phone.after}) {
        library->asset("IMG_0001.JPG").set("ZUUID", nullptr);
        library->asset("IMG_0001.JPG").set("ZUUID", nullptr).set("ZDIRECTORY", "DCIM/101APPLE");
    }
    phone.before.execute("update ZASSET set ZFAVORITE = 1 where Z_PK = 2");
    phone.after.asset("IMG_0003.JPG").set("ZUUID", nullptr);
    EXPECT_EQ(belowHeading(phone.diff()),
              "changed  DCIM/101APPLE/IMG_0001.JPG  no longer a favorite\n"
              "new      DCIM/100APPLE/IMG_0003.JPG\n\n1 new, 1 changed\n");
}

TEST(ToolDiff, PhotosThatMovedBetweenAlbums)
{
    TwoSnapshots phone;
    for (LibraryBuilder *library : {&phone.before, &phone.after}) {
        const AlbumRow trip = library->album("Trip");
        const AlbumRow party = library->album("Party\n🎉");
        AssetRow photo = library->asset("IMG_0001.JPG");
        photo.in(library == &phone.before ? trip : party);
    }
    EXPECT_EQ(phone.diff(),
              (ToolRun{"CHANGE  FILE                        WHAT\n"
                       "moved   DCIM/100APPLE/IMG_0001.JPG  added to Party\\n🎉, removed from "
                       "Trip\n\n1 moved\n",
                       "", 1}));
}

TEST(ToolDiff, TrashThatTakesAPhotoOutOfItsAlbumsIsNoMove)
{
    TwoSnapshots phone;
    phone.before.asset("IMG_0001.JPG").in(phone.before.album("Trip"));
    phone.after.asset("IMG_0001.JPG").in(phone.after.album("Trip")).trashedAt(phone.justNow());
    EXPECT_EQ(belowHeading(phone.diff()), "trashed  DCIM/100APPLE/IMG_0001.JPG\n\n1 trashed\n");
}

TEST(ToolDiff, AlbumsThatAreNewGoneAndRenamed)
{
    TwoSnapshots phone;
    phone.before.album("Trip");
    phone.before.album("Old").set("ZUUID", "OLD");
    phone.after.album("Summer");
    phone.after.album("New").set("ZUUID", "NEW");
    EXPECT_EQ(phone.diff(), (ToolRun{"CHANGE         FILE    WHAT\n"
                                     "album renamed  Summer  was named Trip\n"
                                     "album new      New\n"
                                     "album gone     Old\n\n"
                                     "albums: 1 new, 1 gone, 1 renamed\n",
                                     "", 1}));
}

TEST(ToolDiff, UpdateFromIos7IsNoDifference)
{
    LibraryBuilder before(ios7);
    before.cameraRollAsset("IMG_0001.JPG").in(before.album("Trip"));
    LibraryBuilder after(ios8);
    after.album("Untitled").set("ZTITLE", nullptr);
    after.asset("IMG_0001.JPG").in(after.album("Trip"));
    const ToolRun run = runTool({"diff", before.path(), after.path()});
    EXPECT_EQ(run.out.find("IMG_0001"), std::string::npos) << run.out;
    EXPECT_EQ(run.out.find("Trip"), std::string::npos) << run.out;
}

TEST(ToolDiff, LibrariesOfTwoPhonesAreNoticed)
{
    TwoSnapshots phone;
    phone.before.asset("IMG_0001.JPG").set("ZUUID", "X");
    phone.after.asset("IMG_0001.JPG").set("ZUUID", "Y");
    const ToolRun run = phone.diff();
    EXPECT_THAT(run.out, HasSubstr("\n1 new, 1 gone\n"));
    EXPECT_EQ(run.error, "iosphoto: " + iosphoto::test::quoted(phone.before.path()) + " and " +
                             iosphoto::test::quoted(phone.after.path()) +
                             " have no photo in common; are they of one phone?\n");
    EXPECT_EQ(run.status, 1);
}

TEST(ToolDiff, OfAnEmptyLibraryHasNothingToNotice)
{
    TwoSnapshots phone;
    phone.after.asset("IMG_0001.JPG");
    const ToolRun run = phone.diff();
    EXPECT_THAT(run.out, HasSubstr("\n1 new\n"));
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 1);
}

TEST(ToolDiff, WhatIsAssumedIsSaidOfBoth)
{
    const TwoSnapshots phone;
    const ToolRun run = runTool({"diff", phone.before.path(), phone.after.path()});
    EXPECT_EQ(run.out, "no difference\n");
    EXPECT_THAT(run.error, HasSubstr("iosphoto: A: reading as iOS 17 (the newest with these"));
    EXPECT_THAT(run.error, HasSubstr("iosphoto: B: reading as iOS 17 (the newest with these"));
    EXPECT_EQ(run.status, 0);
}
