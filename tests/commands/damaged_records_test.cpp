// Backups whose property lists or index cannot be read, or that are not finished.
#include "support/case_name.h"
#include "support/source_folder.h"

using namespace iosphoto::test;
using testing::HasSubstr;

namespace fs = std::filesystem;

class ToolDamagedRecords : public SourceFolder
{
protected:
    static void cutShort(const fs::path &file) { fs::resize_file(file, fs::file_size(file) / 2); }

    const fs::path backup_ = folder_ / "backup";
};

class ToolDamagedRecord : public ToolDamagedRecords,
                          public testing::WithParamInterface<const char *>
{
};

TEST_P(ToolDamagedRecord, IsSaid)
{
    writeBackup(backup_, library_);
    cutShort(backup_ / GetParam());
    const ToolRun run = albums(backup_);
    EXPECT_EQ(run.out, expected_.out);
    EXPECT_THAT(run.error, HasSubstr("iosphoto: " + quoted(backup_ / GetParam()) +
                                     " cannot be read, so what it says of the device and the "
                                     "backup is missing; copy the whole backup again\n"));
    EXPECT_EQ(run.status, 1);
}

INSTANTIATE_TEST_SUITE_P(Lists, ToolDamagedRecord, testing::Values("Info.plist", "Manifest.plist"));

TEST_F(ToolDamagedRecords, LeaveOpenWhetherTheBackupIsEncrypted)
{
    BackupOptions options;
    options.isEncrypted = true;
    writeBackup(backup_, library_, options);
    cutShort(backup_ / "Manifest.plist");
    expectFailure(albums(backup_),
                  "cannot tell whether " + quoted(backup_) +
                      " is encrypted, as its Manifest.plist and Manifest.db cannot be read; copy "
                      "the whole backup again\n",
                  3);
}

TEST_F(ToolDamagedRecords, EncryptionThatIsANumber)
{
    writeBackup(backup_, library_);
    writeFile(backup_ / "Manifest.plist",
              propertyList("<key>IsEncrypted</key><integer>1</integer>"));
    expectFailure(albums(backup_),
                  "cannot decrypt " + quoted(backup_) +
                      ": its Manifest.plist holds no keys; copy the whole backup again\n",
                  3);
    writeFile(backup_ / "Manifest.plist",
              propertyList("<key>IsEncrypted</key><integer>0</integer>"));
    expectWhole(albums(backup_));
}

TEST_F(ToolDamagedRecords, StatusTellsTheDateWhenNothingElseDoes)
{
    writeBackup(backup_, library_);
    for (const char *name : {"Manifest.plist", "Info.plist"})
        writeFile(backup_ / name, propertyList(""));
    writeFile(backup_ / "Status.plist",
              propertyList("<key>Date</key><date>2019-01-02T03:04:05Z</date>"));
    const ToolRun run = albums(backup_);
    EXPECT_EQ(run.out, expected_.out);
    EXPECT_THAT(run.error, HasSubstr("2019-01-02 03:04"));
    EXPECT_EQ(run.status, 0);
}

class ToolDamagedIndex : public ToolDamagedRecords
{
protected:
    /// A backup whose index has some hundred entries, so that damage can hit any of its pages.
    fs::path backupWithLargeIndex() const
    {
        BackupBuilder builder(backup_);
        builder.add(library_);
        for (int i = 1000; i < 1300; ++i)
            builder.add("DCIM/" + std::to_string(i) + ".JPG", "x");
        builder.finish();
        return backup_ / "Manifest.db";
    }

    void expectReadWithWarning(const std::string &warning) const
    {
        const ToolRun run = albums(backup_);
        EXPECT_EQ(run.out, expected_.out);
        EXPECT_THAT(run.error, HasSubstr("iosphoto: " + quoted(backup_ / "Manifest.db") + warning));
        EXPECT_EQ(run.status, 1);
    }
};

TEST_F(ToolDamagedIndex, ThatIsCutShortIsSaidWithItsSize)
{
    const fs::path index = backupWithLargeIndex();
    const auto size = fs::file_size(index);
    cutShort(index);
    expectReadWithWarning(" is cut short: " + std::to_string(size / 2) + " of its " +
                          std::to_string(size) +
                          " bytes are there, so files of the photo library may be missing without "
                          "a word; the database was found by the name that every backup gives it; "
                          "copy the whole backup again\n");
}

TEST_F(ToolDamagedIndex, ThatLacksALittleIsSaidToBeCutShort)
{
    const fs::path index = backupWithLargeIndex();
    fs::resize_file(index, fs::file_size(index) - 100); // SQLite reads zeros there
    expectReadWithWarning(" is cut short: ");
}

TEST_F(ToolDamagedIndex, ThatIsEmptyIsSaid)
{
    fs::resize_file(backupWithLargeIndex(), 0);
    expectReadWithWarning(" is damaged, so files of the photo library may be missing");
}

TEST_F(ToolDamagedIndex, WithAPageOfGarbageIsSaid)
{
    const fs::path index = backupWithLargeIndex();
    constexpr std::size_t page = 4096;
    std::string content = readFile(index);
    for (std::size_t at = page; at < content.size(); at += page)
        content.replace(at, page, std::string(page, 'x'));
    writeFile(index, content);
    expectReadWithWarning(" is damaged, so files of the photo library may be missing");
}

TEST_F(ToolDamagedIndex, WithoutAHeaderIsSaidWhereTheBackupIsNotEncrypted)
{
    const fs::path index = backupWithLargeIndex();
    writeFile(index, std::string(5000, 'x'));
    expectReadWithWarning(" is damaged, so files of the photo library may be missing");
}

TEST_F(ToolDamagedIndex, OfABackupBeforeIos10IsSaidToo)
{
    BackupOptions options;
    options.index = BackupIndexKind::Mbdb;
    writeBackup(backup_, library_, options);
    fs::resize_file(backup_ / "Manifest.mbdb", fs::file_size(backup_ / "Manifest.mbdb") - 10);
    const ToolRun run = albums(backup_);
    EXPECT_EQ(run.out, expected_.out);
    EXPECT_THAT(run.error, HasSubstr(quoted(backup_ / "Manifest.mbdb") + " is damaged, so files"));
    EXPECT_EQ(run.status, 1);
}

TEST_F(ToolDamagedIndex, EndsTheCommandWhereTheDatabaseIsNotFoundEither)
{
    cutShort(backupWithLargeIndex());
    fs::remove(BackupBuilder(backup_).stored(mediaDatabase));
    expectFailure(albums(backup_),
                  "cannot read " + quoted(backup_ / "Manifest.db") + ": it is damaged; copy", 3);
}

/// What Status.plist says of a backup.
struct Status
{
    const char *label;
    const char *snapshotState;
    const char *backupState;
    const char *said; ///< null where the backup is finished

    std::string name() const { return label; }
};

std::ostream &operator<<(std::ostream &stream, const Status &status)
{
    return stream << status.label;
}

class ToolBackupStatus : public ToolDamagedRecords, public testing::WithParamInterface<Status>
{
};

TEST_P(ToolBackupStatus, IsSaidWhereItIsNotThatOfTheEnd)
{
    BackupOptions options;
    options.snapshotState = GetParam().snapshotState;
    options.backupState = GetParam().backupState;
    const ToolRun run = albums(writeBackup(backup_, library_, options));
    EXPECT_EQ(run.out, expected_.out);
    const std::string warning =
        GetParam().said == nullptr
            ? ""
            : "iosphoto: " + quoted(backup_) + " is not finished, as its Status.plist says ('" +
                  GetParam().said +
                  "'), so photos and changes may be missing; wait for its end, or make another\n";
    EXPECT_EQ(run.error.substr(run.error.find('\n') + 1), warning);
    EXPECT_EQ(run.status, GetParam().said == nullptr ? 0 : 1);
}

INSTANTIATE_TEST_SUITE_P(States, ToolBackupStatus,
                         testing::Values(Status{"Finished", "finished", "new", nullptr},
                                         Status{"Uploading", "uploading", "new", "uploading"},
                                         Status{"OfAnOldProgram", "", "new", nullptr},
                                         Status{"Empty", "", "empty", "empty"},
                                         Status{"Nothing", "", "", nullptr}),
                         NameOfCase());
