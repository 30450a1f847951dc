#include "support/archive_builder.h"
#include "support/source_folder.h"

#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using nlohmann::json;
using testing::HasSubstr;
using Index = EncryptionOptions::Index;

namespace fs = std::filesystem;

namespace {

/// A kind of encrypted backup, by the iOS that makes it.
struct Kind
{
    const char *name;
    const char *iosVersion;
    Schema schema;
    BackupIndexKind index;
    Index encryptedIndex;
    bool hasTwoDerivations;
};

const Kind kinds[] = {
    {"iOS8", "8.4", ios8, BackupIndexKind::Mbdb, Index::Plain, false},
    {"iOS9", "9.3.5", ios9, BackupIndexKind::Mbdb, Index::Plain, false},
    {"iOS10_0", "10.0.1", ios9, BackupIndexKind::Db, Index::RecordsOnly, false},
    {"iOS10_1", "10.1", ios9, BackupIndexKind::Db, Index::Whole, false},
    {"iOS10_2", "10.2", ios9, BackupIndexKind::Db, Index::Whole, true},
    {"iOS18", "18.1", ios18, BackupIndexKind::Db, Index::Whole, true},
    {"iOS26", "26.1", ios18, BackupIndexKind::Db, Index::Whole, true},
};

class ToolEncryptedBackup : public SourceFolder, public testing::WithParamInterface<Kind>
{
};

} // namespace

TEST_P(ToolEncryptedBackup, IsReadAsTheSameBackupUnencrypted)
{
    LibraryBuilder library(GetParam().schema);
    library.album("Trip");
    library.execute("pragma journal_mode = wal");
    library.asset("IMG_0001.JPG");
    BackupOptions options;
    options.index = GetParam().index;
    options.iosVersion = GetParam().iosVersion;
    options.encryption.index = GetParam().encryptedIndex;
    options.encryption.hasTwoDerivations = GetParam().hasTwoDerivations;
    const fs::path place = folder_ / "backup";
    const std::vector<std::vector<std::string>> commands = {
        {"albums"},          {"albums", "--json"}, {"photos"},    {"photos", "--jsonl"},
        {"photos", "--csv"}, {"info", "--json"},   {"statements"}};
    std::vector<ToolRun> expected;
    writeBackup(place, library, options);
    const auto run = [&](std::vector<std::string> arguments) {
        arguments.push_back(place);
        return runTool(arguments, {{"IOSPHOTO_BACKUP_PASSWORD", "correct horse"}});
    };
    for (const auto &command : commands) {
        expected.push_back(run(command));
        EXPECT_EQ(expected.back().status, 0) << expected.back();
    }
    fs::remove_all(place);
    options.isEncrypted = true;
    writeBackup(place, library, options);
    for (std::size_t i = 0; i < commands.size(); ++i) {
        ToolRun decrypted = run(commands[i]);
        if (commands[i].front() == "info") { // which says that it is encrypted
            json document = json::parse(decrypted.out);
            document["encryption"] = nullptr;
            decrypted.out = document.dump(2) + "\n";
            expected[i].out = json::parse(expected[i].out).dump(2) + "\n";
        }
        EXPECT_EQ(decrypted, expected[i]) << commands[i].front();
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, ToolEncryptedBackup, testing::ValuesIn(kinds),
                         [](const auto &kind) { return kind.param.name; });

class ToolEncryptedBackups : public SourceFolder
{
protected:
    fs::path encrypted(const char *name, const std::string &password) const
    {
        BackupOptions options;
        options.isEncrypted = true;
        options.encryption.password = password;
        return writeBackup(folder_ / name, library_, options);
    }
    fs::path passwordFile(const char *name, const std::string &password) const
    {
        writeFile(folder_ / name, password);
        return folder_ / name;
    }

    const Environment first_ = {{"IOSPHOTO_BACKUP_PASSWORD", "first"}};
};

TEST_F(ToolEncryptedBackups, AreReadInArchivesAndOutOfFoldersOfSeveral)
{
    encrypted("all/a", "first");
    writeBackup(folder_ / "all/b", library_);
    for (const ArchiveKind &packing : {zip, tar}) {
        const fs::path archive = packed(folder_ / "all/a", folder_ / "packed", packing);
        expectWhole(runTool({"albums", archive}, first_));
        const fs::path both = packed(folder_ / "all", folder_ / "both", packing, "all");
        expectWhole(runTool({"albums", both / "all/a"}, first_));
    }
    expectWhole(runTool({"albums", folder_ / "all/a"}, first_));
}

TEST_F(ToolEncryptedBackups, OfTwoPasswordsAreCompared)
{
    const fs::path a = encrypted("a", "first");
    const fs::path b = encrypted("b", "second");
    const std::string first = passwordFile("1", "first");
    const std::string second = passwordFile("2", "second");
    for (const auto &[one, other] :
         std::map<std::string, std::string>{{first, second}, {second, first}}) {
        const ToolRun run =
            runTool({"diff", a, b, "--password-file", one, "--password-file", other});
        EXPECT_EQ(run.out, "no difference\n");
        EXPECT_EQ(run.status, 0) << run.error;
    }
    const ToolRun wrong = runTool({"diff", a, b, "--password-file", first});
    expectFailure(wrong, "no password given is that of the encrypted backup " + quoted(b), 6);
}

TEST_F(ToolEncryptedBackups, AreComparedWithOnesThatAreNot)
{
    const fs::path a = encrypted("a", "first");
    const fs::path b = writeBackup(folder_ / "b", library_);
    for (const auto &[one, other] : std::map<fs::path, fs::path>{{a, b}, {b, a}})
        EXPECT_EQ(runTool({"diff", one, other}, first_).out, "no difference\n");
}

TEST_F(ToolEncryptedBackups, AreShownAsSuchInInfo)
{
    const fs::path a = encrypted("a", "first");
    EXPECT_THAT(runTool({"info", a}, first_).out,
                HasSubstr("Encrypted    yes; 300 rounds make the key of the password; the keys of "
                          "protection classes 11 never leave the device\n"));
    const json document = json::parse(runTool({"info", a, "--json"}, first_).out);
    EXPECT_EQ(document["encryption"], json({{"rounds", 300}, {"classesOfDevice", {11}}}));
    EXPECT_EQ(json::parse(runTool({"info", library_.path(), "--json"}).out)["encryption"], nullptr);
}

TEST_F(ToolEncryptedBackups, LeaveNothingDecryptedBehind)
{
    const fs::path a = encrypted("a", "first");
    const fs::path temporary = folder_ / "temporary";
    fs::create_directory(temporary);
    Environment environment = first_;
    environment["TMPDIR"] = temporary;
    expectWhole(runTool({"albums", a}, environment));
    EXPECT_TRUE(fs::is_empty(temporary));
}

TEST_F(ToolEncryptedBackups, KeepEveryByte)
{
    const fs::path a = encrypted("a", "first");
    const auto before = allOf(a);
    expectWhole(runTool({"albums", a}, first_));
    EXPECT_EQ(allOf(a), before);
}
