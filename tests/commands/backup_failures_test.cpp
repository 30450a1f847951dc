#include "support/archive_builder.h"
#include "support/database.h"
#include "support/source_folder.h"

using namespace iosphoto::test;
using testing::HasSubstr;

namespace fs = std::filesystem;

class ToolBrokenBackup : public SourceFolder
{
protected:
    ToolRun albumsOf(const BackupOptions &options) const
    {
        return albums(writeBackup(backup_, library_, options));
    }
    std::string storedDatabase() const { return BackupBuilder(backup_).stored(mediaDatabase); }

    const fs::path backup_ = folder_ / "backup";
};

TEST_F(ToolBrokenBackup, Encrypted)
{
    BackupOptions options;
    options.isEncrypted = true;
    const std::string text = " is an encrypted backup and needs its password; name a file with it "
                             "by --password-file, or set IOSPHOTO_BACKUP_PASSWORD\n";
    expectFailure(albumsOf(options), quoted(backup_) + text, 6);
    const fs::path archive = packed(backup_, folder_ / "backup", zip);
    expectFailure(albums(archive), quoted(archive) + text, 6);
}

TEST_F(ToolBrokenBackup, EncryptedHasEvidenceOfWhatSaysSo)
{
    BackupOptions options;
    options.isEncrypted = true;
    writeBackup(backup_, library_, options);
    const fs::path evidence = folder_ / "evidence.json";
    const ToolRun run = runTool({"albums", backup_.string(), "--evidence", evidence.string()});
    EXPECT_EQ(run.status, 6);
    EXPECT_THAT(readFile(evidence), HasSubstr((backup_ / "Manifest.plist").string()));
}

TEST_F(ToolBrokenBackup, WithoutSomeOfItsPhotosIsHalfABackup)
{
    BackupOptions options;
    options.notStored = {"DCIM/100APPLE/IMG_0002.JPG"};
    BackupBuilder builder(backup_, options);
    builder.add(library_);
    for (const char *photo : {"DCIM/100APPLE/IMG_0001.JPG", "DCIM/100APPLE/IMG_0002.JPG"})
        builder.add(photo, "picture");
    builder.finish();
    const ToolRun run = runTool({"albums", backup_.string(), "--quiet"});
    EXPECT_THAT(run.out, HasSubstr("Camera Roll"));
    EXPECT_EQ(run.error, "iosphoto: " + quoted(backup_) +
                             " is half a backup: 1 of the 4 files of the photo library that "
                             "Manifest.db lists are missing; copy the whole backup again\n");
    EXPECT_EQ(run.status, 1);
}

TEST_F(ToolBrokenBackup, EncryptedWithoutAWordOfIt)
{
    BackupOptions options;
    options.isEncrypted = true;
    writeBackup(backup_, library_, options);
    fs::remove(backup_ / "Manifest.plist");
    expectFailure(albums(backup_),
                  "cannot read " + quoted(backup_ / "Manifest.db") +
                      ": it is not a SQLite database, or it is encrypted; copy the whole",
                  3);
}

TEST_F(ToolBrokenBackup, WithoutTheStoredDatabase)
{
    BackupOptions options;
    options.notStored = {mediaDatabase};
    expectFailure(albumsOf(options),
                  quoted(backup_) + " is half a backup: the stored file " +
                      quoted(backup_ / "12/12b144c0bd44f2b3dffd9186d3f9c05b917cee25") +
                      " of PhotoData/Photos.sqlite is not there; copy the whole backup again\n",
                  3);
}

TEST_F(ToolBrokenBackup, WithoutAPhotoLibrary)
{
    BackupOptions options;
    options.notListed = {mediaDatabase};
    expectFailure(albumsOf(options),
                  quoted(backup_) + " is a backup without a photo library: Manifest.db does not "
                                    "list PhotoData/Photos.sqlite; make one of the whole device\n",
                  4);
}

TEST_F(ToolBrokenBackup, WithoutTheStoredLog)
{
    BackupOptions options;
    options.notStored = {mediaLog};
    const ToolRun run = albumsOf(options);
    EXPECT_THAT(run.out, HasSubstr("Camera Roll"));
    EXPECT_NE(run.out, expected_.out);
    EXPECT_THAT(run.error,
                HasSubstr("iosphoto: the latest changes are missing: the stored file " +
                          quoted(backup_ / "5b/5be67ebea394dbff077ddf8bcc1e1f94b0d52dd7") +
                          " of PhotoData/Photos.sqlite-wal is not there; copy the whole"));
    EXPECT_EQ(run.status, 1);
}

TEST_F(ToolBrokenBackup, WithoutTheStoredLogIsNotSaidToHaveHadNone)
{
    BackupOptions options;
    options.notStored = {mediaLog};
    writeBackup(backup_, library_, options);
    EXPECT_THAT(runTool({"info", backup_.string()}).out,
                testing::AllOf(HasSubstr("The write-ahead log (-wal) is missing from the backup."),
                               testing::Not(HasSubstr("There is no write-ahead log"))));
}

TEST_F(ToolBrokenBackup, LogThatIsNotListedIsNotTaken)
{
    BackupOptions options;
    options.notListed = {mediaLog};
    const ToolRun run = albumsOf(options);
    EXPECT_THAT(run.out, HasSubstr("Camera Roll"));
    EXPECT_NE(run.out, expected_.out);
    EXPECT_EQ(run.status, 0);
}

TEST_F(ToolBrokenBackup, WithoutAnIndexIsReadByTheKnownNames)
{
    BackupOptions options;
    options.index = BackupIndexKind::None;
    writeBackup(backup_, library_, options);
    for (const fs::path &source : {backup_, packed(backup_, folder_ / "backup", tar)}) {
        const ToolRun run = albums(source);
        EXPECT_EQ(run.out, expected_.out);
        EXPECT_THAT(run.error, HasSubstr(quoted(source) + " has no Manifest.db, so files that "
                                                          "belong to its library may be missing"));
        EXPECT_EQ(run.status, 1);
    }
}

TEST_F(ToolBrokenBackup, WithoutAnIndexAndWithFlatNames)
{
    BackupOptions options;
    options.index = BackupIndexKind::Mbdb;
    writeBackup(backup_, library_, options);
    for (const char *name : {"Manifest.mbdb", "Manifest.plist", "Info.plist", "Status.plist"})
        fs::remove(backup_ / name);
    const ToolRun run = albums(backup_);
    EXPECT_EQ(run.out, expected_.out);
    EXPECT_EQ(run.status, 1);
}

TEST_F(ToolBrokenBackup, OneOfSeveralMustBeNamed)
{
    writeBackup(backup_ / "a", library_);
    BackupOptions encrypted;
    encrypted.isEncrypted = true;
    writeBackup(backup_ / "b", library_, encrypted);
    fs::create_directory(backup_ / "empty");
    const std::string known = " (Somebody's, iPhone14,2, iOS 17.4.1, 2023-11-14 22:13 UTC";
    expectFailure(albums(backup_),
                  quoted(backup_) +
                      " holds 2 backups, which iosphoto backups lists; name one of them: " +
                      quoted(backup_ / "a") + known + "), " + quoted(backup_ / "b") + known +
                      ", encrypted)\n",
                  2);
    const fs::path archive = packed(backup_, folder_ / "both", zip, "Backup");
    expectFailure(albums(archive),
                  quoted(archive) +
                      " holds 2 backups, which iosphoto backups lists; name one of them: " +
                      quoted(archive / "Backup/a") + known + "), " + quoted(archive / "Backup/b") +
                      known + ", encrypted)\n",
                  2);
    expectWhole(albums(archive / "Backup/a"));
}

TEST_F(ToolBrokenBackup, IndexThatNamesAFileOutsideTheBackup)
{
    writeBackup(backup_, library_);
    execute(openDatabase(backup_ / "Manifest.db"),
            "update Files set fileID = '../../etc/passwd' where flags = 1 "
            "and domain = 'CameraRollDomain' and relativePath like '%sqlite'");
    expectFailure(albums(backup_),
                  quoted(backup_ / "Manifest.db") +
                      " names a stored file '../../etc/passwd', which no backup has; copy",
                  3);
}

TEST_F(ToolBrokenBackup, IndexThatIsAnotherDatabase)
{
    writeBackup(backup_, library_);
    fs::copy_file(library_.path(), backup_ / "Manifest.db", fs::copy_options::overwrite_existing);
    expectFailure(albums(backup_),
                  "cannot read " + quoted(backup_ / "Manifest.db") +
                      ": no such table: Files; copy the whole backup again\n",
                  3);
}

TEST_F(ToolBrokenBackup, LatestIndexIsInItsOwnLog)
{
    writeBackup(backup_, library_);
    fs::rename(backup_ / "Manifest.db", folder_ / "m.db");
    iosphoto::SqliteConnection manifest = openDatabase(folder_ / "m.db");
    execute(manifest, "pragma journal_mode = wal; delete from Files");
    fs::copy_file(folder_ / "m.db", backup_ / "Manifest.db");
    fs::copy_file(folder_ / "m.db-wal", backup_ / "Manifest.db-wal");
    manifest.reset();
    const auto before = allOf(backup_);
    expectFailure(albums(backup_), quoted(backup_) + " is a backup without a photo library", 4);
    EXPECT_EQ(allOf(backup_), before);
}

TEST_F(ToolBrokenBackup, FolderThatIsNone)
{
    fs::create_directory(backup_);
    const std::string text = " holds no photo library: neither PhotoData/Photos.sqlite, such as in "
                             "the Media folder of a phone, nor the Manifest.db of a backup; name "
                             "another source\n";
    expectFailure(albums(backup_), quoted(backup_) + text, 4);
    writeFile(backup_ / "notes.txt", "x");
    const fs::path archive = packed(backup_, folder_ / "notes", zip);
    expectFailure(albums(archive), quoted(archive) + text, 4);
}

TEST_F(ToolBrokenBackup, LibraryOfTheSystemIsNotTaken)
{
    const fs::path system = folder_ / "Library/Photos/Libraries/Syndication.photoslibrary/database";
    putMedia(system, "Photos.sqlite");
    const fs::path archive = packed(folder_.path(), folder_ / "phone", tar);
    expectFailure(albums(archive), quoted(archive) + " holds no photo library", 4);
}

TEST_F(ToolBrokenBackup, LibraryBelowAFolderThatIsOnlyNamedLikeThatOfTheSystem)
{
    expectWhole(albums(putMedia(folder_ / "Library/Photos/Libraries/mine")));
}

/// A part of a backup that this user may not read, and what is said to be unreadable.
class ToolSecretBackup : public SourceFolder, public testing::WithParamInterface<const char *>
{
};

TEST_P(ToolSecretBackup, IsRefused)
{
    const fs::path backup = writeBackup(folder_ / "backup", library_);
    const fs::path secret = std::string(GetParam()).empty() ? backup : backup / GetParam();
    fs::permissions(secret, fs::perms::none);
    const auto run = runToolAsPlainUser({"albums", backup.string()});
    fs::permissions(secret, fs::perms::owner_all);
    if (!run)
        GTEST_SKIP() << "no other user can run the tool here";
    expectFailure(*run, "cannot read '" + secret.string(), 3);
    EXPECT_THAT(run->error,
                HasSubstr(": Permission denied; run as a user who may read it, or copy it first"));
}

INSTANTIATE_TEST_SUITE_P(Parts, ToolSecretBackup,
                         testing::Values("", "Manifest.db", "Info.plist", "12", "5b",
                                         "12/12b144c0bd44f2b3dffd9186d3f9c05b917cee25"));
