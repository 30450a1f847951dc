#include "support/archive_builder.h"
#include "support/csv_reader.h"
#include "support/json_schema.h"
#include "support/source_folder.h"

#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using nlohmann::json;
using testing::HasSubstr;

namespace fs = std::filesystem;

class ToolBackups : public SourceFolder
{
protected:
    ToolBackups()
    {
        writeBackup(old_, library_);
        BackupOptions options;
        options.isEncrypted = true;
        options.deviceName = "Work";
        options.lastBackup = 1'710'000'000; // 2024-03-09 16:00:00 UTC
        writeBackup(encrypted_, library_, options);
    }

    static ToolRun backups(const std::vector<std::string> &more)
    {
        std::vector<std::string> arguments = {"backups"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return runTool(arguments);
    }
    json documentOf(const fs::path &place) const
    {
        json document = json::parse(backups({place.string(), "--json"}).out);
        EXPECT_EQ(schemaComplaints("backups", document), "");
        return document;
    }

    const fs::path all_ = folder_ / "disk";
    const fs::path old_ = all_ / "a/b/00008110-0001";
    const fs::path encrypted_ = all_ / "00008110-0002";
};

TEST_F(ToolBackups, AreListedTheLatestFirst)
{
    const ToolRun run = backups({all_.string()});
    EXPECT_EQ(run.out,
              "DEVICE      MODEL       IOS     BACKED UP             ENCRYPTED   PHOTOS  PATH\n"
              "Work        iPhone14,2  17.4.1  2024-03-09 16:00 UTC  yes        unknown  " +
                  encrypted_.string() +
                  "\n"
                  "Somebody's  iPhone14,2  17.4.1  2023-11-14 22:13 UTC  no               1  " +
                  old_.string() + "\n");
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
}

TEST_F(ToolBackups, AreShownInChineseToo)
{
    EXPECT_THAT(backups({all_.string(), "--lang", "zh"}).out,
                testing::AllOf(HasSubstr("备份时间"), HasSubstr("未知"), HasSubstr("是")));
}

TEST_F(ToolBackups, StayATableOnANarrowTerminal)
{
    const std::string shown = runToolOnTerminal({"backups", all_.string()}, 80).out;
    EXPECT_THAT(shown, HasSubstr("DEVICE "));
    EXPECT_THAT(shown, HasSubstr("2023-11-14 "));
    EXPECT_THAT(shown, HasSubstr(old_.string() + "\n")) << "paths are the last to be cut";
    EXPECT_THAT(shown, HasSubstr("columns for which the terminal is too narrow: MODEL, IOS"));
}

TEST_F(ToolBackups, HavePathsThatAreCutOnANarrowTerminalWhereNothingElseHelps)
{
    const fs::path deep = all_ / std::string(100, 'd') / "00008110-0003";
    writeBackup(deep, library_);
    const std::string shown = runToolOnTerminal({"backups", all_.string()}, 80).out;
    EXPECT_THAT(shown, HasSubstr("d/00008110-0003\n"));
    EXPECT_THAT(shown, HasSubstr("PATH is cut"));
}

TEST_F(ToolBackups, AreRowsOfADocument)
{
    const json document = documentOf(all_);
    EXPECT_EQ(document["searched"],
              (json::array({{{"path", all_.string()}, {"pathBytes", nullptr}}})));
    EXPECT_EQ(document["isComplete"], true);
    EXPECT_EQ(document["libraries"].size(), 2U);
    EXPECT_EQ(document["libraries"][1], (json{{"path", old_.string()},
                                              {"pathBytes", nullptr},
                                              {"sourceKind", "backup"},
                                              {"deviceName", "Somebody's"},
                                              {"productType", "iPhone14,2"},
                                              {"iosVersion", "17.4.1"},
                                              {"build", "21E236"},
                                              {"backupDate", "2023-11-14T22:13:20Z"},
                                              {"isEncrypted", false},
                                              {"isFinished", true},
                                              {"assetRows", 1}}));
    EXPECT_EQ(document["libraries"][0]["isEncrypted"], true);
    EXPECT_EQ(document["libraries"][0]["assetRows"], nullptr);
}

TEST_F(ToolBackups, AreLinesOfJsonAndCsv)
{
    const std::string lines = backups({all_.string(), "--jsonl"}).out;
    const json first = json::parse(lines.substr(0, lines.find('\n')));
    EXPECT_EQ(schemaComplaints("backups-line", first), "");
    EXPECT_EQ(first, documentOf(all_)["libraries"][0]);
    const auto table = readCsv(backups({all_.string(), "--csv"}).out);
    ASSERT_EQ(table.size(), 2U);
    EXPECT_EQ(table[0].at("path"), encrypted_.string());
    EXPECT_EQ(table[1].at("assetRows"), "1");
}

TEST_F(ToolBackups, StandBesideOtherLibraries)
{
    const fs::path media = putMedia(all_ / "phone/Media");
    const json library = documentOf(all_)["libraries"].back();
    EXPECT_EQ(library["path"], media.string());
    EXPECT_EQ(library["sourceKind"], "media-folder");
    EXPECT_EQ(library["isEncrypted"], nullptr);
    EXPECT_EQ(library["assetRows"], 1);
    EXPECT_THAT(backups({all_.string()}).out, testing::ContainsRegex("no backup +1  .*Media\n"));
}

TEST_F(ToolBackups, CanBeInAnArchive)
{
    const fs::path archive = packed(all_, folder_ / "all", zip, "phones");
    const json document = documentOf(archive);
    const std::string path = document["libraries"][1]["path"];
    EXPECT_EQ(path, archive / "phones/a/b/00008110-0001");
    EXPECT_EQ(document["libraries"][1]["assetRows"], nullptr);
    expectWhole(albums(path));
}

TEST_F(ToolBackups, InAnArchiveThatLackFilesAreSaid)
{
    BackupOptions options;
    options.notStored = {mediaLog};
    writeBackup(all_ / "half", library_, options);
    options.notStored = {mediaDatabase};
    writeBackup(all_ / "empty", library_, options);
    const fs::path archive = packed(all_, folder_ / "all", tar);
    const ToolRun run = backups({archive.string()});
    EXPECT_THAT(run.error,
                testing::AllOf(HasSubstr("the latest changes are missing: the stored file '" +
                                         (archive / "half").string()),
                               HasSubstr(quoted(archive / "empty") + " is half a backup")));
    EXPECT_EQ(run.status, 1);
}

TEST_F(ToolBackups, InAnArchiveThatCannotBeTakenOutAreSaid)
{
    const fs::path archive = folder_ / "links.tar";
    ArchiveBuilder(archive, tar)
        .add("a.db", "x")
        .addHardLink("phone/PhotoData/Photos.sqlite", "a.db");
    const ToolRun run = backups({archive.string()});
    EXPECT_THAT(run.out, HasSubstr((archive / "phone").string() + "\n"));
    EXPECT_THAT(run.error, HasSubstr(quoted(archive / "phone/PhotoData/Photos.sqlite") +
                                     ": it is a link to another entry"));
    EXPECT_EQ(run.status, 1);
}

TEST_F(ToolBackups, AreNotFilesThatAreNoPhotoDatabases)
{
    writeFile(folder_ / "README.md", "read me");
    writeFile(folder_ / "empty.sqlite", "");
    expectFailure(backups({(folder_ / "README.md").string()}),
                  quoted(folder_ / "README.md") + " is not a SQLite database", 4);
    expectFailure(backups({(folder_ / "empty.sqlite").string()}),
                  quoted(folder_ / "empty.sqlite") + " is empty", 4);
    fs::create_directory(folder_ / "junk");
    for (const char *const name : {"junk/a.sqlite", "junk/b.sqlite"})
        fs::copy_file(folder_ / "empty.sqlite", folder_ / name);
    const fs::path archive = packed(folder_ / "junk", folder_ / "junk", tar);
    for (const fs::path &place : {folder_ / "junk", archive}) {
        const ToolRun run = backups({place.string()});
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.error,
                    HasSubstr("2 files that are no photo databases: " + quoted(place / "a.sqlite") +
                              ", " + quoted(place / "b.sqlite") + "\n"));
        EXPECT_EQ(run.status, 4);
    }
}

TEST_F(ToolBackups, StandBesideLoneDatabases)
{
    putMedia(all_, "Photos.sqlite");
    const json document = documentOf(all_);
    ASSERT_EQ(document["libraries"].size(), 3U);
    EXPECT_EQ(document["libraries"].back()["path"], (all_ / "Photos.sqlite").string());
    EXPECT_EQ(document["libraries"].back()["sourceKind"], "database");
}

TEST_F(ToolBackups, OfStandardInputHaveItsName)
{
    library_.execute("pragma wal_checkpoint(truncate)");
    const ToolRun run = runToolOnPipe(readFile(library_.path()), {"backups", "-", "--jsonl"});
    ASSERT_TRUE(json::accept(run.out)) << run.error;
    EXPECT_EQ(json::parse(run.out)["path"], "-");
    EXPECT_EQ(json::parse(run.out)["assetRows"], 1);
    expectFailure(runToolOnPipe("read me", {"backups", "-"}), "'-' is not a SQLite database", 4);
}

TEST_F(ToolBackups, ThatAreNotFinishedAreSaid)
{
    BackupOptions options;
    options.snapshotState = "uploading";
    writeBackup(all_ / "new", library_, options);
    const ToolRun run = backups({all_.string()});
    EXPECT_THAT(run.error, HasSubstr(quoted(all_ / "new") + " is not finished"));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(documentOf(all_)["isComplete"], false);
}

TEST_F(ToolBackups, ThatLackFilesAreSaid)
{
    BackupOptions options;
    options.notStored = {mediaLog};
    writeBackup(all_ / "half", library_, options);
    options.notStored = {mediaDatabase};
    writeBackup(all_ / "empty", library_, options);
    const ToolRun run = backups({all_.string()});
    EXPECT_THAT(run.out, testing::ContainsRegex("unknown  .*empty\n"));
    EXPECT_THAT(run.error,
                testing::AllOf(HasSubstr("the latest changes are missing: the stored file '" +
                                         (all_ / "half").string()),
                               HasSubstr(quoted(all_ / "empty") + " is half a backup")));
    EXPECT_EQ(run.status, 1);
}

TEST_F(ToolBackups, StayAsTheyWere)
{
    const auto before = allOf(all_);
    EXPECT_EQ(backups({all_.string()}).status, 0);
    EXPECT_EQ(allOf(all_), before);
}

TEST_F(ToolBackups, ThatAreNotThereAreSaidWithWhereTheyWereLookedFor)
{
    fs::create_directory(folder_ / "empty");
    const std::string text =
        "no backup and no other photo library was found; looked in " + quoted(folder_ / "empty");
    expectFailure(backups({(folder_ / "empty").string()}), text, 4);
    const ToolRun run = backups({(folder_ / "empty").string(), "--json"});
    EXPECT_EQ(json::parse(run.out)["libraries"], json::array());
    EXPECT_THAT(run.error, HasSubstr(text));
    EXPECT_EQ(run.status, 4);
    expectFailure(backups({(folder_ / "none").string()}), "cannot read " + quoted(folder_ / "none"),
                  3);
}

#ifdef __linux__
TEST_F(ToolBackups, HaveNoUsualPlaceOnLinux)
{
    expectFailure(backups({}),
                  "this system has no usual place for the backups of devices; name a folder", 2);
}
#endif

TEST_F(ToolBackups, InPlacesThatCannotBeReadAreSaid)
{
    const fs::path secret = all_ / "secret";
    fs::create_directory(secret);
    fs::permissions(secret, fs::perms::none);
    const auto run = runToolAsPlainUser({"backups", all_.string()});
    fs::permissions(secret, fs::perms::owner_all);
    if (!run)
        GTEST_SKIP() << "no other user can run the tool here";
    EXPECT_THAT(run->out, HasSubstr(old_.string()));
    EXPECT_THAT(run->error, HasSubstr("not all of " + quoted(all_) +
                                      " was searched for photo libraries, as not everything in it "
                                      "can be read (such places: 1), the first: cannot read " +
                                      "'" + secret.string()));
    EXPECT_EQ(run->status, 1);
}

TEST_F(ToolBackups, AreNamedInEvidence)
{
    const fs::path evidence = folder_ / "evidence.json";
    EXPECT_EQ(backups({all_.string(), "--evidence", evidence.string()}).status, 0);
    EXPECT_THAT(readFile(evidence),
                testing::AllOf(HasSubstr((old_ / "Info.plist").string()),
                               HasSubstr((encrypted_ / "Info.plist").string())));
}

TEST_F(ToolBackups, WhoseRecordsCannotBeReadAreListedByTheirPath)
{
    fs::permissions(encrypted_ / "Info.plist", fs::perms::none);
    const auto run = runToolAsPlainUser({"backups", all_.string(), "--json"});
    fs::permissions(encrypted_ / "Info.plist", fs::perms::owner_all);
    if (!run)
        GTEST_SKIP() << "no other user can run the tool here";
    const json libraries = json::parse(run->out)["libraries"];
    ASSERT_EQ(libraries.size(), 2U);
    EXPECT_EQ(libraries[1]["path"], encrypted_.string());
    EXPECT_EQ(libraries[1]["isEncrypted"], nullptr);
    EXPECT_THAT(run->error, HasSubstr("cannot read " + quoted(encrypted_ / "Info.plist")));
    EXPECT_EQ(run->status, 1);
}
