// What info says of the write-ahead log.
#include "support/json_schema.h"
#include "support/library_builder.h"
#include "support/run_on.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace fs = std::filesystem;

class ToolInfoLog : public testing::Test
{
protected:
    /// From here on the log keeps what is changed.
    void beginLog()
    {
        library_.execute("pragma journal_mode = wal; pragma wal_autocheckpoint = 0");
    }

    ToolRun info(const std::vector<std::string> &more = {}) const
    {
        return runOn(library_, "info", more);
    }
    /// What is shown last.
    std::string shown() const
    {
        const std::string out = info().out;
        return out.substr(out.rfind("\n\n") + 2);
    }
    json log() const
    {
        const json document = json::parse(info({"--json"}).out);
        EXPECT_EQ(schemaComplaints("info", document), "");
        return document["log"];
    }
    std::vector<std::string> changes() const
    {
        std::vector<std::string> changes;
        const json log = this->log();
        for (const json &change : log["changes"])
            changes.push_back(change["change"].get<std::string>() + " " +
                              change["path"].get<std::string>());
        return changes;
    }

    LibraryBuilder library_{ios15};
};

TEST_F(ToolInfoLog, NoneEmptyAndNoLogAreThreeSentences)
{
    library_.asset("A.JPG");
    library_.close();
    EXPECT_EQ(shown(), "There is no write-ahead log (-wal).\n");
    EXPECT_EQ(log(), nullptr);

    writeFile(library_.path() + "-wal", "");
    EXPECT_EQ(shown(), "The write-ahead log (-wal) is empty: it has 0 bytes.\n");
    EXPECT_EQ(log()["state"], "empty");
    EXPECT_EQ(info().status, 0);

    writeFile(library_.path() + "-wal", "something else");
    EXPECT_EQ(shown(), "The -wal is no write-ahead log, so nothing of it is shown.\n");
    EXPECT_EQ(log()["state"], "no-log");
    EXPECT_EQ(info().status, 1);
}

TEST_F(ToolInfoLog, ListsPhotosThatAreAddedGoneTrashedAndRestored)
{
    library_.asset("GONE.JPG");
    AssetRow trashed = library_.asset("TRASHED.JPG");
    AssetRow restored = library_.asset("RESTORED.JPG").trashedAt(600'000'000);
    library_.asset("KEPT.JPG");
    beginLog();
    library_.execute("delete from ZASSET where ZFILENAME = 'GONE.JPG'");
    trashed.trashedAt(600'000'000);
    restored.set("ZTRASHEDSTATE", 0);
    library_.asset("ADDED\n.JPG");

    EXPECT_THAT(changes(),
                ElementsAre("restored DCIM/100APPLE/RESTORED.JPG",
                            "added DCIM/100APPLE/ADDED\n.JPG", "trashed DCIM/100APPLE/TRASHED.JPG",
                            "gone DCIM/100APPLE/GONE.JPG"));
    EXPECT_EQ(log()["changes"][3],
              json::parse(R"({"change": "gone", "uuid": "A0000000-0000-0000-0000-000000000001",
                              "path": "DCIM/100APPLE/GONE.JPG", "addedTo": [], "removedFrom": [],
                              "changedFacts": []})"));
    EXPECT_THAT(shown(), HasSubstr("added            DCIM/100APPLE/ADDED\\n.JPG "));
}

TEST_F(ToolInfoLog, ListsEditsMovesAndWhatElseDiffFinds)
{
    const AlbumRow trip = library_.album("Trip");
    AssetRow edited = library_.asset("EDITED.JPG");
    AssetRow moved = library_.asset("MOVED.JPG");
    AssetRow favorite = library_.asset("FAVORITE.JPG");
    AssetRow hidden = library_.asset("HIDDEN.JPG");
    beginLog();
    edited.set("ZHASADJUSTMENTS", 1);
    moved.in(trip);
    favorite.set("ZFAVORITE", 1);
    hidden.set("ZHIDDEN", 1);

    EXPECT_EQ(shown(), "IN THE LOG ONLY  FILE                        WHAT            UUID\n"
                       "edited           DCIM/100APPLE/EDITED.JPG                    " +
                           edited.uuid() +
                           "\n"
                           "moved            DCIM/100APPLE/MOVED.JPG     added to Trip   " +
                           moved.uuid() +
                           "\n"
                           "changed          DCIM/100APPLE/FAVORITE.JPG  now a favorite  " +
                           favorite.uuid() +
                           "\n"
                           "changed          DCIM/100APPLE/HIDDEN.JPG    now hidden      " +
                           hidden.uuid() + "\n");
    const json changes = log()["changes"];
    EXPECT_EQ(changes[0]["changedFacts"], json({"isEdited"}));
    EXPECT_EQ(changes[1]["addedTo"][0]["name"], "Trip");
    EXPECT_EQ(changes[2]["changedFacts"], json({"isFavorite"}));
}

TEST_F(ToolInfoLog, ListsEachChangeOfAPhoto)
{
    const AlbumRow trip = library_.album("Trip");
    AssetRow photo = library_.asset("A.JPG");
    beginLog();
    photo.in(trip).set("ZHASADJUSTMENTS", 1);
    EXPECT_THAT(changes(), ElementsAre("edited DCIM/100APPLE/A.JPG", "moved DCIM/100APPLE/A.JPG"));
    EXPECT_EQ(log()["changes"][0]["addedTo"], json::array());
    EXPECT_THAT(shown(), HasSubstr("edited, moved    DCIM/100APPLE/A.JPG  added to Trip"));
}

TEST_F(ToolInfoLog, ListsAlbumsAsDiffDoes)
{
    AlbumRow renamed = library_.album("Old");
    library_.asset("A.JPG").in(renamed);
    beginLog();
    renamed.set("ZTITLE", "Renamed");
    library_.album("New");

    EXPECT_THAT(shown(), HasSubstr("album renamed    Renamed  was named Old"));
    EXPECT_THAT(shown(), HasSubstr("album new        New "));
    const json albums = log()["albums"];
    ASSERT_EQ(albums.size(), 2U);
    EXPECT_EQ(albums[0]["change"], "renamed");
    EXPECT_EQ(albums[0]["before"]["name"], "Old");
    EXPECT_EQ(albums[1]["change"], "new");
    EXPECT_EQ(albums[1]["before"], nullptr);
    EXPECT_THAT(changes(), IsEmpty()) << "the photo is where it was";
}

TEST_F(ToolInfoLog, ListsFactsByWhichNoSnapshotsAreToldApart)
{
    AssetRow photo = library_.asset("A.JPG");
    beginLog();
    photo.set("ZTHUMBNAILINDEX", 77);
    EXPECT_THAT(changes(), ElementsAre("changed DCIM/100APPLE/A.JPG"));
    EXPECT_EQ(log()["changes"][0]["changedFacts"], json({"thumbnailIndex"}));
    EXPECT_THAT(shown(),
                HasSubstr("changed          DCIM/100APPLE/A.JPG  differs in thumbnailIndex "));
}

TEST_F(ToolInfoLog, ListsAnotherDayOfTheTrash)
{
    AssetRow photo = library_.asset("A.JPG").trashedAt(600'000'000);
    beginLog();
    photo.trashedAt(600'100'000);
    EXPECT_EQ(log()["changes"][0]["changedFacts"], json({"trashed", "goes", "daysLeft"}));
}

TEST_F(ToolInfoLog, SaysThatItChangesNothingThatIsShown)
{
    AssetRow photo = library_.asset("A.JPG");
    AssetRow ofASharedAlbum = library_.asset("B.JPG").set("ZSAVEDASSETTYPE", 4);
    AlbumRow folder = library_.album("Folder").set("ZKIND", 4000);
    beginLog();
    library_.execute("create table other (a)");
    photo.set("Z_OPT", 7);
    ofASharedAlbum.set("Z_OPT", 7);
    folder.set("ZTITLE", "Other");
    EXPECT_EQ(shown(), "The write-ahead log (-wal) changes nothing that is shown.\n");
    EXPECT_THAT(log()["changes"], IsEmpty());
    EXPECT_THAT(log()["albums"], IsEmpty());
    EXPECT_EQ(log()["isInOtherOrder"], false);
}

TEST_F(ToolInfoLog, SaysThatItChangesTheOrderOnly)
{
    library_.asset("A.JPG");
    library_.album("One");
    library_.album("Two");
    const auto order = [&] {
        std::string names;
        const json document = json::parse(runOn(library_, "albums", {"--json"}).out);
        for (const json &album : document["albums"])
            names += album["name"].get<std::string>() + ",";
        return names;
    };
    const std::string before = order();
    beginLog();
    library_.execute("update ZGENERICALBUM set Z_PK = Z_PK + 100 where ZTITLE = 'One'");
    ASSERT_NE(order(), before);
    EXPECT_EQ(
        shown(),
        "The write-ahead log (-wal) changes the order of albums or photos, or kinds or counts "
        "of albums and nothing else that is shown.\n");
    EXPECT_EQ(log()["isInOtherOrder"], true);
}

TEST_F(ToolInfoLog, ListsPhotosThatAreLeftOutInAnotherWay)
{
    library_.asset("KEPT.JPG");
    AssetRow now = library_.asset("NOW.JPG");
    AssetRow noLonger = library_.asset("NO_LONGER.JPG").set("ZSAVEDASSETTYPE", 4);
    AssetRow other = library_.asset("OTHER.JPG").set("ZFILENAME", nullptr);
    AssetRow favorite = library_.asset("FAVORITE.JPG").set("ZSAVEDASSETTYPE", 4);
    beginLog();
    now.set("ZSAVEDASSETTYPE", 4);
    noLonger.set("ZSAVEDASSETTYPE", 3);
    other.set("ZSAVEDASSETTYPE", 4);
    favorite.set("ZFAVORITE", 1);
    AssetRow added = library_.asset("ADDED.JPG").set("ZSAVEDASSETTYPE", 4);

    const std::string text = shown();
    EXPECT_THAT(text,
                HasSubstr("left out            DCIM/100APPLE/NOW.JPG        of a shared album "
                          "                                       " +
                          now.uuid()));
    EXPECT_THAT(text, HasSubstr("no longer left out  DCIM/100APPLE/NO_LONGER.JPG  of a shared "
                                "album "));
    EXPECT_THAT(text, HasSubstr("of a shared album; without the log: without a file name  " +
                                other.uuid()));
    EXPECT_THAT(text, HasSubstr("left out            DCIM/100APPLE/FAVORITE.JPG   of a shared "
                                "album; differs in isFavorite "));
    EXPECT_THAT(text, HasSubstr("left out            DCIM/100APPLE/ADDED.JPG      of a shared "
                                "album "));
    const json leftOut = log()["leftOut"];
    ASSERT_EQ(leftOut.size(), 5U);
    EXPECT_EQ(leftOut[1], json::parse(R"({"uuid": ")" + other.uuid() +
                                      R"(", "path": "DCIM/100APPLE/", "before": "withoutFileName",
                                         "after": "sharedAlbum",
                                         "changedFacts": ["leftOutBecause"]})"));
    EXPECT_EQ(leftOut[3]["uuid"], added.uuid());
    EXPECT_EQ(leftOut[3]["before"], nullptr);
    EXPECT_EQ(leftOut[4]["uuid"], noLonger.uuid());
    EXPECT_EQ(leftOut[4]["after"], nullptr);
}

TEST_F(ToolInfoLog, CountsTheRowsOfTheDatabaseWithoutItToo)
{
    library_.asset("KEPT.JPG");
    AssetRow photo = library_.asset("A.JPG").set("ZFILENAME", nullptr);
    AlbumRow folder = library_.album("Folder").set("ZKIND", 4000);
    beginLog();
    folder.set("ZTRASHEDSTATE", 1).set("ZKIND", 2);
    EXPECT_THAT(info().out, HasSubstr("IN THE DATABASE                  COUNT  WITHOUT THE LOG\n"
                                      "photos                               2                2\n"
                                      "- listed                             1                1\n"
                                      "- left out: without a file name      1                1\n"
                                      "albums                               1                1\n"
                                      "- listed                             0                0\n"
                                      "- left out: folder                   0                1\n"
                                      "- left out: in the trash             1                0\n"));
    EXPECT_EQ(shown(), "The write-ahead log (-wal) changes the numbers of rows in the database and "
                       "nothing else that is shown.\n");
    EXPECT_EQ(log()["without"]["account"]["albumsLeftOut"]["folder"], 1);
    photo.set("ZSAVEDASSETTYPE", 4);
    EXPECT_EQ(log()["without"]["account"]["leftOut"]["withoutFileName"], 1);
    EXPECT_EQ(log()["without"]["account"]["leftOut"]["sharedAlbum"], 0);
}

TEST_F(ToolInfoLog, ListsWhatTheTrashLeavesOutOnce)
{
    AssetRow trashed = library_.asset("A.JPG");
    AssetRow favorite = library_.asset("B.JPG").trashedAt(500'000'000);
    library_.asset("C.JPG");
    beginLog();
    trashed.trashedAt(500'000'000);
    favorite.set("ZORIGINALFILESIZE", 77);
    const json log = this->log();
    EXPECT_EQ(log["without"]["account"]["leftOut"]["trashedTooLong"], 1);
    EXPECT_THAT(changes(),
                ElementsAre("trashed DCIM/100APPLE/A.JPG", "changed DCIM/100APPLE/B.JPG"));
    EXPECT_THAT(log["leftOut"], IsEmpty()) << "they are among the changes";
}

TEST_F(ToolInfoLog, NamesTheSchemaThatIsNotInIt)
{
    library_.asset("A.JPG");
    library_.madeBy(15331, "19A346");
    beginLog();
    library_.madeBy(16320, "20A362");
    EXPECT_THAT(info().out,
                HasSubstr("Without the write-ahead log (-wal) the schema is iOS 15 to 17, "
                          "model 15331, build 19A346.\n"));
    EXPECT_EQ(log()["without"]["build"], "19A346");
    EXPECT_THAT(info().out, HasSubstr("changes the schema and nothing else that is shown.\n"));
}

TEST_F(ToolInfoLog, KnowsWhatTheTrashLeavesOut)
{
    constexpr std::int64_t longAgo = 500'000'000;
    AssetRow restored = library_.asset("RESTORED.JPG").trashedAt(longAgo);
    library_.asset("STAYS.JPG").trashedAt(longAgo);
    library_.asset("GOES.JPG").trashedAt(longAgo);
    library_.asset("KEPT.JPG");
    beginLog();
    restored.set("ZTRASHEDSTATE", 0);
    library_.execute("delete from ZASSET where ZFILENAME = 'GOES.JPG'");
    EXPECT_THAT(changes(),
                ElementsAre("restored DCIM/100APPLE/RESTORED.JPG", "gone DCIM/100APPLE/GOES.JPG"));
    EXPECT_THAT(shown(), HasSubstr("gone             DCIM/100APPLE/GOES.JPG      gone from the "
                                   "trash"));
}

TEST_F(ToolInfoLog, MatchesPhotosWithoutUuidByFolderAndName)
{
    library_.asset("GONE.JPG").set("ZUUID", nullptr);
    AssetRow trashed = library_.asset("TRASHED.JPG").set("ZUUID", nullptr);
    beginLog();
    library_.execute("delete from ZASSET where Z_PK = 1");
    library_.asset("ADDED.JPG").set("ZUUID", nullptr);
    trashed.trashedAt(600'000'000);
    EXPECT_THAT(changes(),
                ElementsAre("added DCIM/100APPLE/ADDED.JPG", "trashed DCIM/100APPLE/TRASHED.JPG",
                            "gone DCIM/100APPLE/GONE.JPG"));
}

TEST_F(ToolInfoLog, KnowsEachRecordOfAPhotoWithoutUuid)
{
    library_.asset("A.JPG").set("ZUUID", nullptr).set("ZFAVORITE", 1);
    AssetRow other = library_.asset("A.JPG").set("ZUUID", nullptr);
    beginLog();
    library_.execute("create table other (a)");
    EXPECT_THAT(changes(), IsEmpty());
    other.set("ZORIGINALFILESIZE", 77);
    EXPECT_THAT(changes(), ElementsAre("changed DCIM/100APPLE/A.JPG"));
}

TEST_F(ToolInfoLog, MayHoldTheWholeSchema)
{
    library_.asset("A.JPG");
    const TemporaryFolder folder;
    const std::string copy = (folder / "Photos.sqlite").string();
    library_.execute("attach '" + copy + "' as whole; pragma whole.journal_mode = wal");
    library_.execute("pragma whole.wal_autocheckpoint = 0");
    for (const char *table :
         {"ZASSET", "ZADDITIONALASSETATTRIBUTES", "ZGENERICALBUM", "Z_PRIMARYKEY", "Z_27ASSETS"})
        library_.execute(std::string("create table whole.") + table + " as select * from main." +
                         table);
    const ToolRun run = runTool({"info", copy, "--json", "--ios", "15", "--as-of", "2020-02-01"});

    ASSERT_EQ(run.status, 0) << run.error;
    const json log = json::parse(run.out)["log"];
    ASSERT_EQ(log["changes"].size(), 1U);
    EXPECT_EQ(log["changes"][0]["change"], "added");
    EXPECT_EQ(log["isCompared"], true);
}

TEST_F(ToolInfoLog, MayHoldAnotherSchema)
{
    LibraryBuilder library(ios14);
    library.asset("A.JPG");
    library.execute("pragma journal_mode = wal; pragma wal_autocheckpoint = 0");
    // What an update to iOS 15 makes of it.
    for (const char *table :
         {"ZASSET", "ZADDITIONALASSETATTRIBUTES", "ZGENERICALBUM", "Z_PRIMARYKEY"})
        library.execute(std::string("drop table ") + table);
    library_.asset("A.JPG");
    library_.asset("B.JPG");
    library_.close();
    library.execute("attach '" + library_.path() + "' as newer");
    for (const char *table :
         {"ZASSET", "ZADDITIONALASSETATTRIBUTES", "ZGENERICALBUM", "Z_PRIMARYKEY", "Z_27ASSETS"})
        library.execute(std::string("create table main.") + table + " as select * from newer." +
                        table);

    const ToolRun run = runTool({"info", library.path(), "--json", "--ios", "15.4"});

    ASSERT_EQ(run.status, 0) << run.error;
    const json log = json::parse(run.out)["log"];
    EXPECT_EQ(log["isCompared"], true);
    ASSERT_EQ(log["changes"].size(), 1U) << log;
    EXPECT_EQ(log["changes"][0]["path"], "DCIM/100APPLE/B.JPG");
}

TEST_F(ToolInfoLog, IsNotKnownWhereTheDatabaseAloneCannotBeRead)
{
    library_.asset("A.JPG");
    beginLog();
    library_.execute("create table other (a)"); // so the log holds the first page
    const TemporaryFolder folder;
    const std::string copy = (folder / "Photos.sqlite").string();
    constexpr std::size_t page = 4096;
    writeFile(copy, readFile(library_.path()).replace(0, page, page, 'x'));
    writeFile(copy + "-wal", readFile(library_.path() + "-wal"));

    const ToolRun run = runTool({"info", copy, "--as-of", "2020-02-01"});
    EXPECT_THAT(run.out,
                HasSubstr("\n\nWhat the write-ahead log (-wal) changes is not known: without "
                          "it the database cannot be read.\n"));
    EXPECT_EQ(run.status, 0) << run.error;
    const json log = json::parse(runTool({"info", copy, "--json"}).out)["log"];
    EXPECT_EQ(log["isCompared"], false);
    EXPECT_THAT(log["changes"], IsEmpty());
}

TEST_F(ToolInfoLog, OnTheOldestSchema)
{
    LibraryBuilder library(ios6);
    library.cameraRollAsset("KEPT.JPG");
    library.execute("pragma journal_mode = wal; pragma wal_autocheckpoint = 0");
    library.cameraRollAsset("ADDED.JPG");

    const ToolRun run = runTool({"info", library.path(), "--json"});

    ASSERT_EQ(run.status, 0) << run.error;
    const json changes = json::parse(run.out)["log"]["changes"];
    ASSERT_EQ(changes.size(), 1U);
    EXPECT_EQ(changes[0]["change"], "added");
    EXPECT_EQ(changes[0]["uuid"], "a0000000000000000000000000000002");
    EXPECT_EQ(changes[0]["path"], "DCIM/100APPLE/ADDED.JPG");
}

TEST_F(ToolInfoLog, TellsHowManyCommitsAreGood)
{
    library_.asset("A.JPG");
    beginLog();
    library_.execute("update ZASSET set ZFAVORITE = 1");
    library_.execute("update ZASSET set ZHIDDEN = 1");
    const json good = log();
    EXPECT_EQ(good["state"], "good");
    EXPECT_EQ(good["commits"], 2);
    EXPECT_EQ(good["commitsAtLeast"], 2);
    EXPECT_EQ(good["hasOpenChange"], false);

    const std::string bytes = readFile(library_.path() + "-wal");
    const TemporaryFolder folder;
    fs::copy_file(library_.path(), folder / "Photos.sqlite");
    writeFile(folder / "Photos.sqlite-wal", bytes.substr(0, bytes.size() - 1));
    const ToolRun run = runTool({"info", (folder / "Photos.sqlite").string(), "--json"});
    const json damaged = json::parse(run.out)["log"];
    EXPECT_EQ(damaged["state"], "damaged");
    EXPECT_EQ(damaged["commits"], 1);
    EXPECT_EQ(damaged["commitsAtLeast"], 2);
    EXPECT_EQ(damaged["changes"].size(), 1U);
    EXPECT_EQ(run.status, 1);
}
