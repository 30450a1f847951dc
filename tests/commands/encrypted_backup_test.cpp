#include "support/archive_builder.h"
#include "support/source_folder.h"

#include <tuple>

using namespace iosphoto::test;
using testing::HasSubstr;
using Index = EncryptionOptions::Index;

namespace fs = std::filesystem;

namespace {

/// A kind of encrypted backup, by the iOS that makes it.
struct Kind
{
    const char *name;
    const char *iosVersion;
    BackupIndexKind index;
    Index encryptedIndex;
    bool hasTwoDerivations;
};

const Kind kinds[] = {
    {"iOS8", "8.4", BackupIndexKind::Mbdb, Index::Plain, false},
    {"iOS9", "9.3.5", BackupIndexKind::Mbdb, Index::Plain, false},
    {"iOS10_0", "10.0.1", BackupIndexKind::Db, Index::RecordsOnly, false},
    {"iOS10_1", "10.1", BackupIndexKind::Db, Index::Whole, false},
    {"iOS10_2", "10.2", BackupIndexKind::Db, Index::Whole, true},
    {"iOS18", "18.1", BackupIndexKind::Db, Index::Whole, true},
    {"iOS26", "26.1", BackupIndexKind::Db, Index::Whole, true},
};

class ToolEncryptedBackup : public SourceFolder, public testing::WithParamInterface<Kind>
{
};

} // namespace

TEST_P(ToolEncryptedBackup, IsReadAsTheSameBackupUnencrypted)
{
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
    writeBackup(place, library_, options);
    const auto run = [&](std::vector<std::string> arguments) {
        arguments.push_back(place);
        return runTool(arguments, {{"IOSPHOTO_BACKUP_PASSWORD", "correct horse"}});
    };
    for (const auto &command : commands)
        expected.push_back(run(command));
    fs::remove_all(place);
    options.isEncrypted = true;
    writeBackup(place, library_, options);
    for (std::size_t i = 0; i < commands.size(); ++i)
        EXPECT_EQ(run(commands[i]), expected[i]) << commands[i].front();
}

INSTANTIATE_TEST_SUITE_P(Kinds, ToolEncryptedBackup, testing::ValuesIn(kinds),
                         [](const auto &kind) { return kind.param.name; });
