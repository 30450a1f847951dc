#include "support/expect_failure.h"
#include "support/two_snapshots.h"

using namespace iosphoto::test;
using testing::HasSubstr;

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
    const ToolRun run = runTool({"diff", library.path(), library.path(), "--ios", "15.0",
                                 "--product", "iPhone14,2", "--quiet"});
    EXPECT_EQ(run, (ToolRun{"no difference\n", "", 0}));
}

TEST(ToolDiff, NumbersThatTheDatabaseAndTheCacheGiveAreNotCompared)
{
    TwoSnapshots phone;
    phone.before.asset("IMG_0001.JPG");
    phone.after.asset("IMG_0001.JPG").set("ZTHUMBNAILINDEX", 77);
    phone.after.execute("update ZADDITIONALASSETATTRIBUTES set ZASSET = 9; "
                        "update ZASSET set Z_PK = 9");
    EXPECT_EQ(phone.diff(), (ToolRun{"no difference\n", "", 0}));
}

TEST(ToolDiff, WhatIsLeftOutIsSaidNotToBeCompared)
{
    TwoSnapshots phone;
    phone.before.asset("IMG_0001.JPG");
    phone.after.asset("IMG_0001.JPG");
    phone.after.asset("IMG_0002.JPG").set("ZSAVEDASSETTYPE", 4);
    const ToolRun run = phone.diff();
    EXPECT_EQ(run.out, "no difference\n");
    EXPECT_THAT(run.error,
                HasSubstr("iosphoto: what the catalogues leave out is not compared, and A "
                          "has other numbers of it than B, as iosphoto info shows\n"));
    EXPECT_EQ(run.status, 0);
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
        library->execute("update ZASSET set ZDATECREATED = 7, ZMODIFICATIONDATE = 7, "
                         "ZADDEDDATE = 7");
    EXPECT_EQ(rowsAndSummary(phone.diff()),
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
    EXPECT_EQ(rowsAndSummary(phone.diff()),
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
    EXPECT_EQ(rowsAndSummary(phone.diff()), "trashed  DCIM/100APPLE/IMG_0001.JPG\n\n1 trashed\n");
}

TEST(ToolDiff, PhotoThatLeavesTheCameraRollIsMoved)
{
    for (const Value &savedAs : {Value(4), Value(2), Value(nullptr)}) {
        TwoSnapshots phone;
        phone.before.asset("IMG_0001.JPG").in(phone.before.album("Trip"));
        phone.after.asset("IMG_0001.JPG")
            .in(phone.after.album("Trip"))
            .set("ZSAVEDASSETTYPE", savedAs);
        EXPECT_EQ(rowsAndSummary(phone.diff()), "moved   DCIM/100APPLE/IMG_0001.JPG  removed from "
                                                "Camera Roll\n\n1 moved\n");
    }
}

TEST(ToolDiff, HiddenPhotoOfAnAlbumThatIsNotInTheCameraRollIsNoMove)
{
    TwoSnapshots phone;
    phone.before.asset("IMG_0001.JPG").in(phone.before.album("Trip"));
    phone.after.asset("IMG_0001.JPG").in(phone.after.album("Trip")).set("ZHIDDEN", 1);
    EXPECT_EQ(rowsAndSummary(phone.diff()),
              "changed  DCIM/100APPLE/IMG_0001.JPG  now hidden\n\n1 changed\n");
}

TEST(ToolDiff, PhotoThatStandsForABurstNoMoreIsNoMove)
{
    TwoSnapshots phone;
    for (LibraryBuilder *library : {&phone.before, &phone.after}) {
        const AlbumRow trip = library->album("Trip");
        const int pickType = library == &phone.before ? 16 : 2;
        for (const auto &[file, type] : {std::pair("A.JPG", pickType), std::pair("B.JPG", 16)})
            library->asset(file)
                .in(trip)
                .set("ZAVALANCHEUUID", "BURST")
                .set("ZAVALANCHEPICKTYPE", type);
    }
    EXPECT_EQ(rowsAndSummary(phone.diff()),
              "changed  DCIM/100APPLE/A.JPG  differs in isBurstPick\n\n1 changed\n");
}

TEST(ToolDiff, AlbumOfAnotherKindIsChanged)
{
    TwoSnapshots phone;
    phone.before.album("Trip");
    phone.after.album("Trip").set("ZKIND", 3);
    EXPECT_EQ(rowsAndSummary(phone.diff()),
              "album changed  Trip  is of another kind\n\nalbums: 1 changed\n");
}

TEST(ToolDiff, PhotosOfAnAlbumThatLostItsTitleAreNotSaidToBeGoneFromIt)
{
    TwoSnapshots phone;
    for (LibraryBuilder *library : {&phone.before, &phone.after}) {
        const bool isBefore = library == &phone.before;
        library->asset("IMG_0001.JPG")
            .in(library->album(isBefore ? "Trip" : ""))
            .in(library->album(isBefore ? "" : "Party"));
    }
    EXPECT_EQ(rowsAndSummary(phone.diff()), "album renamed  Untitled album  was named Trip\n"
                                            "album renamed  Party           was named Untitled "
                                            "album\n\nalbums: 2 renamed\n");
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
    EXPECT_EQ(run.out, "no difference\n");
    EXPECT_EQ(run.status, 0);
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
