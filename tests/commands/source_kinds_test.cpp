#include "support/archive_builder.h"
#include "support/case_name.h"
#include "support/source_folder.h"

using namespace iosphoto::test;

namespace fs = std::filesystem;

namespace {

/// A place that the tool finds a library in: where it lies below the folder that the user names.
struct MediaPlace
{
    const char *database;
    const char *named = "";

    std::string name() const { return std::string(database) + " by " + named; }
};

std::ostream &operator<<(std::ostream &stream, const MediaPlace &place)
{
    return stream << place.name();
}

} // namespace

class ToolMediaFolder : public SourceFolder, public testing::WithParamInterface<MediaPlace>
{
protected:
    fs::path put() const { return putMedia(folder_ / "phone", GetParam().database); }
};

TEST_P(ToolMediaFolder, IsReadLikeItsDatabase)
{
    expectWhole(albums(put() / GetParam().named));
}

TEST_P(ToolMediaFolder, StaysAsItWas)
{
    put();
    fs::remove(folder_ / "phone" / (std::string(GetParam().database) + "-shm"));
    const auto before = allOf(folder_.path());
    albums(folder_ / "phone" / GetParam().named);
    EXPECT_EQ(allOf(folder_.path()), before);
}

TEST_P(ToolMediaFolder, OfTheSystemIsPassedOver)
{
    put();
    putMedia(folder_ / "phone/private/var/mobile",
             "Library/Photos/Libraries/Syndication.photoslibrary/database/Photos.sqlite");
    expectWhole(albums(folder_ / "phone" / GetParam().named));
    expectWhole(albums(packed(folder_ / "phone", folder_ / "all", zip)));
}

INSTANTIATE_TEST_SUITE_P(Places, ToolMediaFolder,
                         testing::Values(MediaPlace{"PhotoData/Photos.sqlite"},
                                         MediaPlace{"PhotoData/Photos.sqlite", "PhotoData"},
                                         MediaPlace{"PhotoData/Photos.sqlite", "PhotoData/"},
                                         MediaPlace{"Media/PhotoData/Photos.sqlite"},
                                         MediaPlace{"mobile/Media/PhotoData/Photos.sqlite"},
                                         MediaPlace{"var/mobile/Media/PhotoData/Photos.sqlite"},
                                         MediaPlace{
                                             "private/var/mobile/Media/PhotoData/Photos.sqlite"},
                                         MediaPlace{"Photos.sqlite"}),
                         NameOfCase());

class ToolBackupFolder : public SourceFolder, public testing::WithParamInterface<BackupIndexKind>
{
protected:
    BackupOptions options() const
    {
        BackupOptions options;
        options.index = GetParam();
        return options;
    }
};

TEST_P(ToolBackupFolder, IsReadLikeItsDatabase)
{
    expectWhole(albums(writeBackup(folder_ / "backup", library_, options())));
}

TEST_P(ToolBackupFolder, IsFoundByItsStoredDatabase)
{
    writeBackup(folder_ / "backup", library_, options());
    expectWhole(albums(BackupBuilder(folder_ / "backup", options()).stored(mediaDatabase)));
}

TEST_P(ToolBackupFolder, IsFoundAsTheOnlyOneInAFolder)
{
    writeBackup(folder_ / "Backup/00008110-0001", library_, options());
    expectWhole(albums(folder_ / "Backup"));
}

TEST_P(ToolBackupFolder, StaysAsItWas)
{
    writeBackup(folder_ / "backup", library_, options());
    const auto before = allOf(folder_.path());
    albums(folder_ / "backup");
    EXPECT_EQ(allOf(folder_.path()), before);
}

INSTANTIATE_TEST_SUITE_P(Indexes, ToolBackupFolder,
                         testing::Values(BackupIndexKind::Db, BackupIndexKind::Mbdb));

class ToolArchive : public SourceFolder, public testing::WithParamInterface<ArchiveKind>
{
protected:
    /// Reads a folder's archive, in which everything is below `top`.
    ToolRun albumsPacked(const fs::path &folder, const std::string &top = "") const
    {
        return albums(packed(folder, folder_ / "archive", GetParam(), top));
    }
};

TEST_P(ToolArchive, OfADatabase)
{
    expectWhole(albumsPacked(putMedia(folder_ / "phone", "my.sqlite")));
}

TEST_P(ToolArchive, OfADatabaseWithTheNotesOfAMac)
{
    const fs::path folder = putMedia(folder_ / "phone", "my.sqlite");
    fs::create_directory(folder / "__MACOSX");
    writeFile(folder / "__MACOSX/._my.sqlite", "notes");
    expectWhole(albumsPacked(folder));
}

TEST_P(ToolArchive, OfAMediaFolder)
{
    expectWhole(albumsPacked(putMedia(folder_ / "Media")));
}

TEST_P(ToolArchive, OfAFileSystemInAFolderOfAnyName)
{
    putMedia(folder_ / "phone/private/var/mobile/Media");
    expectWhole(albumsPacked(folder_ / "phone", "./дело 7/filesystem1"));
}

TEST_P(ToolArchive, OfABackup)
{
    expectWhole(albumsPacked(writeBackup(folder_ / "backup", library_), "Backup/0001"));
}

TEST_P(ToolArchive, IsToldByItsContent)
{
    const fs::path archive = packed(putMedia(folder_ / "Media"), folder_ / "archive", GetParam());
    fs::rename(archive, folder_ / "Photos.sqlite");
    expectWhole(albums(folder_ / "Photos.sqlite"));
}

TEST_P(ToolArchive, StaysAsItWasAndLeavesNothing)
{
    const fs::path archive =
        packed(writeBackup(folder_ / "backup", library_), folder_ / "archive", GetParam());
    const auto before = allOf(folder_.path());
    const TemporaryFolder temporary;
    expectWhole(runTool({"albums", archive.string()}, {{"TMPDIR", temporary.path().string()}}));
    EXPECT_EQ(allOf(folder_.path()), before);
    EXPECT_TRUE(fs::is_empty(temporary.path()));
}

INSTANTIATE_TEST_SUITE_P(Kinds, ToolArchive, testing::ValuesIn(allArchiveKinds), NameOfCase());
