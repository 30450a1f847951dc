// Where in a folder or an archive the tool looks for a library, and what it says of the rest.
#include "support/archive_builder.h"
#include "support/source_folder.h"

using namespace iosphoto::test;
using testing::HasSubstr;

namespace fs = std::filesystem;

class ToolSourceSearch : public SourceFolder
{
};

TEST_F(ToolSourceSearch, FindsALibraryAtAnyDepth)
{
    putMedia(folder_ / "case/7/phone/files/private/var/mobile/Media");
    expectWhole(albums(folder_ / "case"));
}

TEST_F(ToolSourceSearch, FindsABackupAtAnyDepth)
{
    writeBackup(folder_ / "disk/Users/anna/Backup/0001", library_);
    expectWhole(albums(folder_ / "disk"));
}

TEST_F(ToolSourceSearch, FindsALoneDatabaseAtAnyDepth)
{
    putMedia(folder_ / "case/7/export", "Photos.sqlite");
    expectWhole(albums(folder_ / "case"));
}

TEST_F(ToolSourceSearch, DoesNotLookIntoThePhotoDataThatItFound)
{
    putMedia(putMedia(folder_ / "Media") / "PhotoData/old");
    const ToolRun run = albums(folder_ / "Media");
    expectWhole(run);
    EXPECT_THAT(run.error, testing::Not(HasSubstr("passed over")));
}

TEST_F(ToolSourceSearch, FollowsNoLinks)
{
    fs::create_directories(folder_ / "case");
    putMedia(folder_ / "elsewhere");
    fs::create_directory_symlink(folder_ / "elsewhere", folder_ / "case/link");
    fs::create_directory_symlink(folder_ / "case", folder_ / "case/loop");
    const ToolRun run = albums(folder_ / "case");
    expectFailure(run, quoted(folder_ / "case") + " holds no photo library", 4);
    EXPECT_THAT(run.error, HasSubstr("; passed over in the search for photo libraries: 2 links, "
                                     "which are not followed: " +
                                     quoted(folder_ / "case/link") + ", " +
                                     quoted(folder_ / "case/loop") + "\n"));
}

TEST_F(ToolSourceSearch, NamesLinksInAnArchive)
{
    const fs::path archive = folder_ / "links.tar";
    ArchiveBuilder(archive, tar)
        .addFolder(putMedia(folder_ / "Media"), "a/Media")
        .addLink("b/Photos.sqlite", "../a/Media/PhotoData/Photos.sqlite");
    const ToolRun run = albums(archive);
    expectWhole(run);
    EXPECT_THAT(run.error, HasSubstr("1 link, which is not followed: " +
                                     quoted(archive / "b/Photos.sqlite") + "\n"));
}

TEST_F(ToolSourceSearch, FollowsNoLinkThatIsCalledAsALibraryIs)
{
    putMedia(folder_ / "elsewhere");
    fs::create_directories(folder_ / "case/a");
    fs::create_symlink(folder_ / "elsewhere" / mediaDatabase, folder_ / "case/Photos.sqlite");
    fs::create_directory_symlink(folder_ / "elsewhere/PhotoData", folder_ / "case/a/PhotoData");
    const ToolRun run = albums(folder_ / "case");
    expectFailure(run, quoted(folder_ / "case") + " holds no photo library", 4);
    EXPECT_THAT(run.error, HasSubstr("2 links, which are not followed: " +
                                     quoted(folder_ / "case/Photos.sqlite") + ", " +
                                     quoted(folder_ / "case/a/PhotoData") + "\n"));
    expectFailure(albums(folder_ / "case/a"), quoted(folder_ / "case/a") + " holds no", 4);
}

TEST_F(ToolSourceSearch, FollowsALinkThatIsNamed)
{
    putMedia(folder_ / "elsewhere");
    fs::create_directories(folder_ / "case/a");
    fs::create_symlink(folder_ / "elsewhere" / mediaDatabase, folder_ / "case/Photos.sqlite");
    fs::create_directory_symlink(folder_ / "elsewhere/PhotoData", folder_ / "case/a/PhotoData");
    fs::create_directory_symlink(folder_ / "elsewhere", folder_ / "case/phone");
    for (const char *const link : {"Photos.sqlite", "a/PhotoData", "phone"})
        expectWhole(albums(folder_ / "case" / link));
}

TEST_F(ToolSourceSearch, NamesWhatItPassesOverInOneLineThatQuietHides)
{
    putMedia(folder_ / "case/phone/Media");
    putMedia(folder_ / "case/Library/Photos/Libraries/Syndication", "Photos.sqlite");
    for (const char *const name : {"a.zip", "b.tar.gz", "c.7z", "d.tar"})
        writeFile(folder_ / "case" / name, "");
    writeFile(folder_ / "case/notes.sqlite", "");
    const fs::path system = folder_ / "case/Library/Photos/Libraries/Syndication/Photos.sqlite";
    const std::string line =
        "iosphoto: passed over in the search for photo libraries: 4 archives, "
        "which can be named themselves: " +
        quoted(folder_ / "case/a.zip") + ", " + quoted(folder_ / "case/b.tar.gz") + ", " +
        quoted(folder_ / "case/c.7z") +
        " and more; 1 database of the "
        "system: " +
        quoted(system) + "; 1 database of another name: " + quoted(folder_ / "case/notes.sqlite") +
        "\n";
    EXPECT_THAT(albums(folder_ / "case").error, HasSubstr(line));
    const ToolRun quiet = runTool({"albums", (folder_ / "case").string(), "--quiet"});
    expectWhole(quiet);
    EXPECT_EQ(quiet.error, "");
}

TEST_F(ToolSourceSearch, NamesArchivesInAnArchive)
{
    putMedia(folder_ / "case/Media");
    writeFile(folder_ / "case/inner.zip", "");
    const fs::path archive = packed(folder_ / "case", folder_ / "case", zip);
    EXPECT_THAT(albums(archive).error, HasSubstr("1 archive, which has to be unpacked first: " +
                                                 quoted(archive / "inner.zip") + "\n"));
}

/// In a folder and in archives.
class ToolSearchOfEveryTree : public ToolSourceSearch,
                              public testing::WithParamInterface<const char *>
{
protected:
    /// `case` itself, or an archive of it.
    fs::path theCase() const
    {
        const std::string ending = GetParam();
        return ending.empty() ? folder_ / "case"
                              : packed(folder_ / "case", folder_ / "packed", {GetParam()});
    }
};

TEST_P(ToolSearchOfEveryTree, CountsALoneDatabaseBesideOtherLibraries)
{
    putMedia(folder_ / "case/phone/Media");
    putMedia(folder_ / "case/phone/Media", "Photos.sqlite");
    putMedia(folder_ / "case", "Photos.sqlite");
    const fs::path all = theCase();
    const ToolRun run = albums(all);
    expectFailure(run, quoted(all) + " holds 3 photo libraries, which iosphoto backups lists; ", 2);
    EXPECT_THAT(run.error, testing::AllOf(HasSubstr(quoted(all / "phone/Media") + " ("),
                                          HasSubstr(quoted(all / "Photos.sqlite") + " (")));
    expectWhole(albums(all / "Photos.sqlite"));
}

TEST_P(ToolSearchOfEveryTree, TakesTheFolderOfALibraryForThatOne)
{
    putMedia(folder_ / "case");
    putMedia(folder_ / "case", "Photos.sqlite");
    const fs::path all = theCase();
    const ToolRun run = albums(all);
    expectWhole(run);
    EXPECT_THAT(run.error, HasSubstr("1 other photo library: " + quoted(all / "Photos.sqlite")));
}

TEST_P(ToolSearchOfEveryTree, FindsLibrariesInAMediaFolder)
{
    putMedia(putMedia(folder_ / "case/phoneA/Media") / "phoneB/Media");
    writeBackup(folder_ / "case/phoneA/Media/0001", library_);
    const fs::path all = theCase();
    const ToolRun run = albums(all);
    expectFailure(run, quoted(all) + " holds 3 photo libraries, which iosphoto backups lists; ", 2);
    EXPECT_THAT(run.error,
                testing::AllOf(HasSubstr(quoted(all / "phoneA/Media/phoneB/Media") + " ("),
                               HasSubstr(quoted(all / "phoneA/Media/0001") + " (")));
    const ToolRun first = albums(all / "phoneA/Media");
    expectWhole(first);
    EXPECT_THAT(first.error, HasSubstr("2 other photo libraries: "));
}

TEST_P(ToolSearchOfEveryTree, TakesNoDatabaseWithoutPhotosForALibrary)
{
    writeBackup(folder_ / "case/0001", library_);
    writeFile(folder_ / "case/Photos.sqlite", "");
    const fs::path all = theCase();
    const ToolRun run = albums(all);
    expectWhole(run);
    EXPECT_THAT(run.error,
                HasSubstr("1 file that is no photo database: " + quoted(all / "Photos.sqlite")));
}

TEST_P(ToolSearchOfEveryTree, FindsADatabaseOfAnyNameWhereThereIsNoOther)
{
    putMedia(folder_ / "case/a", "my.sqlite");
    writeFile(folder_ / "case/Photos.sqlite", "");
    writeFile(folder_ / "case/other.sqlite", "");
    const fs::path all = theCase();
    const ToolRun run = albums(all);
    expectWhole(run);
    EXPECT_THAT(run.error, HasSubstr("2 files that are no photo databases: "));
}

TEST_P(ToolSearchOfEveryTree, NamesLibrariesInABackup)
{
    writeBackup(folder_ / "case/0001", library_);
    writeBackup(folder_ / "case/0001/old/0002", library_);
    const fs::path all = theCase();
    const ToolRun run = albums(all);
    expectWhole(run);
    EXPECT_THAT(run.error,
                HasSubstr("1 photo library in a backup: " + quoted(all / "0001/old/0002") + "\n"));
    expectWhole(albums(all / "0001/old/0002"));
}

TEST_P(ToolSearchOfEveryTree, FindsABackupAroundPhotoData)
{
    BackupOptions options;
    options.isEncrypted = true;
    writeBackup(folder_ / "case/0001", library_, options);
    putMedia(folder_ / "case/0001");
    const fs::path all = theCase();
    const ToolRun run = albums(all);
    expectFailure(run, quoted(all) + " holds 2 photo libraries, which iosphoto backups lists; ", 2);
    EXPECT_THAT(run.error, testing::AllOf(HasSubstr(quoted(all / "0001") + " ("),
                                          HasSubstr(quoted(all / "0001" / mediaDatabase) + " (")));
    expectFailure(albums(all / "0001"), quoted(all / "0001") + " is an encrypted backup", 6);
    expectWhole(albums(all / "0001" / mediaDatabase));
}

TEST_P(ToolSearchOfEveryTree, FindsABackupAroundAMediaFolder)
{
    writeBackup(folder_ / "case", library_);
    putMedia(folder_ / "case/Media");
    const fs::path all = theCase();
    const ToolRun run = runTool({"info", all.string(), "--json"});
    EXPECT_THAT(run.out, HasSubstr("\"backup\""));
    EXPECT_THAT(run.error,
                HasSubstr("1 photo library in a backup: " + quoted(all / "Media") + "\n"));
}

TEST_P(ToolSearchOfEveryTree, SaysThatFoldersAreTooDeep)
{
    std::string deep;
    for (int i = 0; i < 64; ++i)
        deep += "a/";
    putMedia(folder_ / "case/Media");
    putMedia(folder_ / "case" / deep / "Media");
    const fs::path all = theCase();
    const ToolRun run = albums(all);
    EXPECT_EQ(run.out, expected_.out);
    EXPECT_THAT(run.error, HasSubstr(quoted(all) + " has folders more than 64 deep, where photo "
                                                   "libraries are not searched for"));
    EXPECT_EQ(run.status, 1);
}

TEST_P(ToolSearchOfEveryTree, SaysNothingOfFoldersThatAreTooDeepElsewhere)
{
    std::string deep = "b/";
    for (int i = 0; i < 64; ++i)
        deep += "a/";
    putMedia(folder_ / "case/a/Media");
    putMedia(folder_ / "case" / deep / "Media");
    const ToolRun run = albums(theCase() / "a");
    expectWhole(run);
    EXPECT_THAT(run.error, testing::Not(HasSubstr("deep")));
}

INSTANTIATE_TEST_SUITE_P(Kinds, ToolSearchOfEveryTree, testing::Values("", "zip", "tar.gz"));

TEST_F(ToolSourceSearch, SaysWhatCannotBeReadBesideALibrary)
{
    putMedia(folder_ / "case/phone");
    const fs::path secret = folder_ / "case/secret";
    fs::create_directory(secret);
    fs::permissions(secret, fs::perms::none);
    const auto run = runToolAsPlainUser({"albums", (folder_ / "case").string()});
    fs::permissions(secret, fs::perms::owner_all);
    if (!run)
        GTEST_SKIP() << "no other user can run the tool here";
    EXPECT_EQ(run->out, expected_.out);
    EXPECT_THAT(run->error, HasSubstr("not all of " + quoted(folder_ / "case") + " was searched"));
    EXPECT_EQ(run->status, 1);
}

class ToolPathInArchive : public SourceFolder, public testing::WithParamInterface<const char *>
{
};

TEST_P(ToolPathInArchive, IsALibraryOfSeveral)
{
    writeBackup(folder_ / "all/phones/A", library_);
    putMedia(folder_ / "all/phones/B/Media");
    putMedia(folder_ / "all/phones/C", "my.sqlite");
    for (const ArchiveKind &kind : {zip, tar})
        expectWhole(albums(packed(folder_ / "all", folder_ / "all", kind) / GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Paths, ToolPathInArchive,
                         testing::Values("phones/A", "phones/A/", "./phones//A", "phones/B",
                                         "phones/B/Media", "phones/B/Media/PhotoData",
                                         "phones/B/Media/PhotoData/Photos.sqlite",
                                         "phones/A/12/12b144c0bd44f2b3dffd9186d3f9c05b917cee25",
                                         "phones/C", "phones/C/my.sqlite"));

TEST_F(ToolSourceSearch, RefusesAPathThatAnArchiveDoesNotHold)
{
    putMedia(folder_ / "all/A/Media");
    const fs::path archive = packed(folder_ / "all", folder_ / "all", zip);
    for (const char *const path : {"B", "A/Media/x", "../A"})
        expectFailure(albums(archive.string() + "/" + path),
                      "there is no '" + std::string(path) + "' in " + quoted(archive) +
                          "; check the path\n",
                      3);
}

TEST_F(ToolSourceSearch, RefusesAPathInAFileThatIsNoArchive)
{
    expectFailure(albums(library_.path() + "/A"),
                  "there is no 'A' in " + quoted(fs::path(library_.path())) + "; check the path\n",
                  3);
}

TEST_F(ToolSourceSearch, NamesTheArchiveInEvidence)
{
    putMedia(folder_ / "all/A/Media");
    const fs::path archive = packed(folder_ / "all", folder_ / "all", zip);
    const fs::path evidence = folder_ / "evidence.json";
    const ToolRun run =
        runTool({"albums", (archive / "A").string(), "--evidence", evidence.string()});
    expectWhole(run);
    EXPECT_THAT(readFile(evidence), HasSubstr("\"path\": \"" + archive.string() + "\""));
}
