// What is wrong with an encrypted backup, and what is said of it.
#include "support/database.h"
#include "support/hexadecimal.h"
#include "support/source_folder.h"

#include <QByteArray>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using nlohmann::json;
using testing::HasSubstr;

namespace fs = std::filesystem;

namespace {

class ToolDamagedEncryption : public SourceFolder
{
protected:
    ToolDamagedEncryption() { options_.isEncrypted = true; }

    ToolRun albumsOfBackup() const
    {
        return runTool({"albums", backup_.string(), "--quiet"},
                       {{"IOSPHOTO_BACKUP_PASSWORD", "correct horse"}});
    }
    ToolRun albumsWith(const std::function<void(KeyBagEntries &)> &alter)
    {
        options_.encryption.alterKeyBag = alter;
        writeBackup(backup_, library_, options_);
        return albumsOfBackup();
    }
    fs::path stored(const char *mediaPath) const
    {
        return BackupBuilder(backup_, options_).stored(mediaPath);
    }
    /// Replaces what the index says of a file.
    void changeRecord(const std::string &record, const std::string &mediaPath = mediaDatabase)
    {
        options_.encryption.index = EncryptionOptions::Index::Plain;
        writeBackup(backup_, library_, options_);
        const auto index = openDatabase(backup_ / "Manifest.db");
        execute(index, "update Files set file = " + record + " where relativePath = 'Media/" +
                           mediaPath + "'");
    }

    BackupOptions options_;
    const fs::path backup_ = folder_ / "backup";
    const std::string manifest_ = quoted(backup_ / "Manifest.plist");
};

std::string repeated(const std::string &text, int times)
{
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

std::string asBlob(const std::string &bytes)
{
    return "x'" + hexadecimal(bytes) + "'";
}

} // namespace

TEST_F(ToolDamagedEncryption, OfTheKeyBagIsSaidWithItsPart)
{
    expectFailure(albumsWith([](KeyBagEntries &entries) { entries.erase(entries.begin() + 5); }),
                  "cannot decrypt the backup: the keys in " + manifest_ +
                      " are damaged, as their part 'SALT' is missing or empty; copy the whole "
                      "backup again\n",
                  3);
    expectFailure(albumsWith([](KeyBagEntries &entries) { entries.push_back(entries.back()); }),
                  "cannot decrypt the backup: the keys in " + manifest_ +
                      " are damaged, as their part 'WPKY' is there twice; copy the whole backup "
                      "again\n",
                  3);
}

TEST_F(ToolDamagedEncryption, ThatAsksForEndlessRoundsIsRefusedWithTheNumber)
{
    for (const std::uint32_t rounds : {0U, 0x80000000U, 0xffffffffU})
        expectFailure(albumsWith([&](KeyBagEntries &entries) {
                          entries.at(6).second = bigEndian(rounds, 4);
                      }),
                      "cannot decrypt the backup: the part 'ITER' of the keys in " + manifest_ +
                          " asks for " + std::to_string(rounds) +
                          " rounds, and only 1 to 100000000",
                      3);
}

TEST_F(ToolDamagedEncryption, OfTheIndexIsSaid)
{
    writeBackup(backup_, library_, options_);
    const std::string index = readFile(backup_ / "Manifest.db");
    writeFile(backup_ / "Manifest.db", "x" + index.substr(1));
    expectFailure(albumsOfBackup(), "cannot read " + quoted(backup_ / "Manifest.db"), 3);
    writeFile(backup_ / "Manifest.db", index.substr(0, index.size() / 2));
    expectFailure(albumsOfBackup(), "cannot read " + quoted(backup_ / "Manifest.db"), 3);
    writeFile(backup_ / "Manifest.db", "");
    expectFailure(albumsOfBackup(), "cannot read " + quoted(backup_ / "Manifest.db"), 3);
}

TEST_F(ToolDamagedEncryption, OfTheDatabaseIsNoEmptyLibrary)
{
    const std::string database = "cannot decrypt " + quoted(stored(mediaDatabase)) +
                                 " (Media/PhotoData/Photos.sqlite on the phone): ";
    const std::string deep = "<plist version=\"1.0\">" + repeated("<array>", 10'000) +
                             repeated("</array>", 10'000) + "</plist>";
    for (const std::string &record :
         {asBlob(deep), std::string("null"), std::string("x''"), std::string("'text'"),
          asBlob("bplist00"), asBlob(std::string(4000, '\0'))}) {
        changeRecord(record);
        expectFailure(albumsOfBackup(), database + "the index of the backup does not say how", 3);
    }
    changeRecord(asBlob(archivedRecord(std::string(44, 'k'), 4096, 3)));
    expectFailure(albumsOfBackup(), database + "its key in the index of the backup is damaged", 3);
    changeRecord(asBlob(archivedRecord(std::string(7, 'k'), 4096, 3)));
    expectFailure(albumsOfBackup(), database + "its key in the index of the backup is damaged", 3);
    changeRecord(asBlob(archivedRecord(std::string(44, 'k'), 4096, 77)));
    expectFailure(albumsOfBackup(), database + "the backup has no key of its protection class 77",
                  3);
    changeRecord(asBlob(archivedRecord(std::string(44, 'k'), 4096, 11)));
    expectFailure(albumsOfBackup(),
                  database + "keys of its protection class 11 never leave the phone", 3);
}

TEST_F(ToolDamagedEncryption, OfTheLogLeavesTheRest)
{
    writeBackup(backup_, library_, options_);
    const std::string log = readFile(stored(mediaLog));
    writeFile(stored(mediaLog), log.substr(0, log.size() / 2));
    const ToolRun run = albumsOfBackup();
    EXPECT_THAT(run.out, HasSubstr("Trip"));
    EXPECT_THAT(run.error, HasSubstr(" (Media/PhotoData/Photos.sqlite-wal on the phone) is cut "
                                     "short: "));
    EXPECT_EQ(run.status, 1);
}

TEST_F(ToolDamagedEncryption, OfTheKeyOfTheLogMakesThatMissing)
{
    changeRecord(asBlob(archivedRecord(std::string(44, 'k'), 4096, 3)), mediaLog);
    const ToolRun run = albumsOfBackup();
    EXPECT_THAT(run.out, HasSubstr("Trip"));
    EXPECT_THAT(run.error,
                HasSubstr("cannot decrypt " + quoted(stored(mediaLog)) +
                          " (Media/PhotoData/Photos.sqlite-wal on the phone): its key in the "
                          "index of the backup is damaged; copy the whole backup again\n"));
    EXPECT_EQ(run.status, 1);
}

TEST_F(ToolDamagedEncryption, OfTheEndOfAFileIsSaid)
{
    writeBackup(backup_, library_, options_);
    std::string log = readFile(stored(mediaLog));
    log.back() ^= 1; // in the padding
    writeFile(stored(mediaLog), log);
    const ToolRun run = albumsOfBackup();
    EXPECT_EQ(run.out, expected_.out);
    EXPECT_THAT(run.error, HasSubstr("(Media/PhotoData/Photos.sqlite-wal on the phone) is damaged: "
                                     "its decrypted end is not what an encrypted file ends in"));
    EXPECT_EQ(run.status, 1);
}

TEST_F(ToolDamagedEncryption, OfTheKeyOfTheIndexIsSaid)
{
    const BackupEncryption encryption(options_.encryption);
    writeBackup(backup_, library_, options_);
    const auto base64 = [](const std::string &bytes) {
        return "<data>" + QByteArray::fromStdString(bytes).toBase64().toStdString() + "</data>";
    };
    writeFile(backup_ / "Manifest.plist",
              propertyList("<key>IsEncrypted</key><true/><key>BackupKeyBag</key>" +
                           base64(encryption.keyBag()) + "<key>ManifestKey</key>" +
                           base64(std::string(44, 'k'))));
    expectFailure(albumsOfBackup(),
                  "cannot decrypt the index of the backup: its key in " + manifest_ +
                      " is damaged; copy the whole backup again\n",
                  3);
}

TEST_F(ToolDamagedEncryption, LeavesNothingDecryptedBehind)
{
    changeRecord("null");
    const fs::path temporary = folder_ / "temporary";
    fs::create_directory(temporary);
    EXPECT_EQ(runTool({"albums", backup_.string()},
                      {{"IOSPHOTO_BACKUP_PASSWORD", "correct horse"}, {"TMPDIR", temporary}})
                  .status,
              3);
    EXPECT_TRUE(fs::is_empty(temporary));
}

TEST_F(ToolDamagedEncryption, OfASizeIsSaidAndDoesNotCount)
{
    const BackupEncryption encryption(options_.encryption);
    for (const std::int64_t size : {std::int64_t{-1}, std::int64_t{1} << 62}) {
        changeRecord(asBlob(encryption.record(mediaDatabase, size)));
        const ToolRun run = albumsOfBackup();
        EXPECT_EQ(run.out, expected_.out);
        EXPECT_THAT(run.error, HasSubstr("(Media/PhotoData/Photos.sqlite on the phone) "));
        EXPECT_EQ(run.status, 1);
    }
}

TEST_F(ToolDamagedEncryption, HasEvidenceOfWhatIsStoredAndOfWhatWasRead)
{
    writeBackup(backup_, library_, options_);
    const fs::path file = folder_ / "evidence.json";
    EXPECT_EQ(runTool({"albums", backup_.string(), "--evidence", file.string()},
                      {{"IOSPHOTO_BACKUP_PASSWORD", "correct horse"}})
                  .status,
              0);
    const json evidence = json::parse(readFile(file));
    std::map<std::string, json> read;
    for (const json &each : evidence["decrypted"])
        read[each["path"]] = each;
    ASSERT_EQ(read.size(), 3U);
    EXPECT_EQ(read.count((backup_ / "Manifest.db").string()), 1U);
    EXPECT_EQ(read[stored(mediaDatabase)]["size"], fs::file_size(library_.path()));
    for (const json &input : evidence["inputs"])
        if (const auto same = read.find(input["path"]); same != read.end()) {
            EXPECT_NE(same->second["sha256"], input["sha256"]);
        }
}
