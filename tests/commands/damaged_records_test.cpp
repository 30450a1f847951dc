// Backups whose property lists cannot be read.
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
    expectFailure(albums(backup_), quoted(backup_) + " is an encrypted backup", 6);
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
