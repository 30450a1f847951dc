// Where in a folder or an archive the tool looks for a library.
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

TEST_F(ToolSourceSearch, DoesNotLookIntoWhatItFound)
{
    putMedia(putMedia(folder_ / "Media") / "DCIM/100APPLE");
    expectWhole(albums(folder_ / "Media"));
    expectWhole(albums(packed(folder_ / "Media", folder_ / "media", tar)));
}

TEST_F(ToolSourceSearch, FollowsNoLinks)
{
    fs::create_directories(folder_ / "case");
    putMedia(folder_ / "elsewhere");
    fs::create_directory_symlink(folder_ / "elsewhere", folder_ / "case/link");
    fs::create_directory_symlink(folder_ / "case", folder_ / "case/loop");
    expectFailure(albums(folder_ / "case"), quoted(folder_ / "case") + " holds no photo library",
                  4);
}

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
