#include "support/archive_builder.h"
#include "support/backup_builder.h"
#include "support/database.h"
#include "support/real_libraries.h"
#include "support/run_tool.h"
#include "support/schema.h"
#include "support/temporary_folder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using nlohmann::json;

class ToolOnRealLibrary : public testing::TestWithParam<RealLibrary>
{
protected:
    void SetUp() override
    {
        const std::filesystem::path source = folderOf(GetParam());
        if (!exists(source))
            GTEST_SKIP() << "the real libraries are not there";
        for (const char *file : {"Photos.sqlite", "Photos.sqlite-wal"})
            writeFile(folder_ / file, readFile(source / file));
    }

    std::string database() const { return (folder_ / "Photos.sqlite").string(); }

    /// The rows that a script finds in the database; -1 where it fails.
    int rowsOf(const std::string &script) const
    {
        int rows = 0;
        const iosphoto::SqliteConnection connection = openDatabase(database());
        const auto countRow = [](void *count, int, char **, char **) {
            ++*static_cast<int *>(count);
            return 0;
        };
        const int result = sqlite3_exec(connection.get(), script.c_str(), countRow, &rows, nullptr);
        return result == SQLITE_OK ? rows : -1;
    }

    /// The document that a command prints of the library, as the expected catalogue was read.
    json documentOf(const std::vector<std::string> &command) const
    {
        std::vector<std::string> all = command;
        all.insert(all.end(), {database(), "--json", "--ios", GetParam().iosVersion, "--product",
                               "iPhone14,2", "--quiet"});
        return json::parse(runTool(all).out);
    }

    static json expectedAlbums()
    {
        std::filesystem::path file = folderOf(GetParam());
        file = file.parent_path() / "expected" / file.filename().concat(".json");
        return json::parse(std::ifstream(file))["albums"];
    }

    TemporaryFolder folder_;
};

TEST_P(ToolOnRealLibrary, AlbumsAreThoseOfTheCatalogue)
{
    json expected = json::array();
    for (const json &album : expectedAlbums())
        expected.push_back({album["albumIndex"], album["albumKind"], album["albumName"],
                            album["albumCount"], album["photos"].size()});
    const json document = documentOf({"albums"});
    json shown = json::array();
    for (const json &album : document["albums"])
        shown.push_back({album["index"], album["kindCode"], album["name"], album["count"],
                         album["photoCount"]});
    EXPECT_EQ(shown, expected);
}

TEST_P(ToolOnRealLibrary, PhotosAreTheRecordsOfTheCatalogueEachOnce)
{
    std::map<std::string, json> expected; // by uuid
    for (const json &album : expectedAlbums())
        for (const json &photo : album["photos"]) {
            json &merged = expected[photo["uuid"]];
            for (const char *field : {"fileName", "directory", "width", "height", "fileSize"})
                merged[field] = photo[field];
            for (const char *flag : {"isVideo", "isSelfie", "isFavorite", "isHidden", "isDeleted"})
                merged[flag] = photo[flag].get<bool>() || merged.value(flag, false);
            merged["albums"].push_back(album["albumIndex"]);
        }

    const json document = documentOf({"photos", "--frames"});

    EXPECT_EQ(document["photos"].size(), expected.size());
    for (const json &photo : document["photos"]) {
        const json &merged = expected[photo["uuid"]];
        json shown = json::object();
        for (const auto &[field, value] : merged.items())
            shown[field] = photo[field];
        json &albums = shown["albums"] = json::array();
        for (const json &album : photo["albums"])
            albums.push_back(album["index"]);
        EXPECT_EQ(shown, merged) << photo["uuid"];
    }
}

TEST_P(ToolOnRealLibrary, StatementsRun)
{
    const ToolRun run = runTool({"statements", database(), "--quiet"});
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
    EXPECT_GT(rowsOf(run.out), 3) << run.out; // the lookups find a row each
}

TEST_P(ToolOnRealLibrary, UsualEntityNumbersAreThoseOfTheLibrary)
{
    const ToolRun run = runTool({"statements", "--ios", GetParam().iosVersion});
    EXPECT_EQ(run.status, 0);
    EXPECT_GT(rowsOf(run.out), 3) << run.out;
}

TEST_P(ToolOnRealLibrary, DoesNotDifferFromItself)
{
    const ToolRun run = runTool({"diff", database(), database(), "--ios", GetParam().iosVersion,
                                 "--product", "iPhone14,2"});
    EXPECT_EQ(run.out, "no difference\n");
    EXPECT_EQ(run.status, 0);
}

TEST_P(ToolOnRealLibrary, ReadsItsEncryptedBackupAsThePlainOne)
{
    const auto write = [&](const std::string &name, bool isEncrypted) {
        BackupOptions options;
        options.iosVersion = GetParam().iosVersion;
        options.isEncrypted = isEncrypted;
        BackupBuilder backup(folder_ / name / "backup", options);
        backup.add(mediaDatabase, readFile(database()));
        backup.add(mediaLog, readFile(database() + "-wal"));
        backup.finish();
        return packed(folder_ / name, folder_ / name / "packed", zip);
    };
    const std::filesystem::path plain = write("plain", false);
    const std::filesystem::path encrypted = write("encrypted", true);
    const auto outputOf = [](std::vector<std::string> command,
                             const std::filesystem::path &source) {
        command.push_back(source);
        ToolRun run = runTool(command, {{"IOSPHOTO_BACKUP_PASSWORD", "correct horse"}});
        EXPECT_NE(run.out, "");
        for (std::size_t at = 0; (at = run.out.find(source, at)) != std::string::npos;)
            run.out.replace(at, source.string().size(), "SOURCE");
        return run.out;
    };
    for (const auto &command :
         std::vector<std::vector<std::string>>{{"albums"},
                                               {"albums", "--json"},
                                               {"albums", "--csv"},
                                               {"photos"},
                                               {"photos", "--json", "--with-left-out"},
                                               {"photos", "--jsonl", "--frames"},
                                               {"statements"}})
        for (const char *part : {"", "/backup"})
            EXPECT_EQ(outputOf(command, encrypted.string() + part),
                      outputOf(command, plain.string() + part));
    EXPECT_EQ(outputOf({"diff", plain.string()}, encrypted), "no difference\n");
}

INSTANTIATE_TEST_SUITE_P(Generations, ToolOnRealLibrary, testing::ValuesIn(realLibraries),
                         SchemaName());
