// A database of no known schema is read as far as its columns go, and what they do not tell is
// said.
#include "schema/missing_columns.h"
#include "support/backup_builder.h"
#include "support/database.h"
#include "support/expect_failure.h"
#include "support/json_schema.h"
#include "support/query.h"
#include "support/run_on.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using iosphoto::tool::fieldsLostWith;
using iosphoto::tool::OptionalColumn;
using iosphoto::tool::optionalColumns;
using iosphoto::tool::TableOfColumns;
using nlohmann::json;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

std::string tableOf(const OptionalColumn &column, const Schema &schema)
{
    if (column.table == TableOfColumns::Attributes)
        return "ZADDITIONALASSETATTRIBUTES";
    return column.table == TableOfColumns::Albums ? "ZGENERICALBUM" : schema.assetTable();
}

bool hasColumn(LibraryBuilder &library, const std::string &table, const std::string &column)
{
    return library.number("select count(*) from pragma_table_info('" + table + "') where name = '" +
                          column + "'") > 0;
}

/// Photos of many kinds, none of them left out.
void fill(LibraryBuilder &library)
{
    const AlbumRow trip = library.album("Trip");
    const bool hasTrash = hasColumn(library, library.schema().assetTable(), "ZTRASHEDSTATE");
    const auto setIfThere = [&](AssetRow asset, const char *column, const Value &value) {
        if (hasColumn(library, library.schema().assetTable(), column) ||
            hasColumn(library, "ZADDITIONALASSETATTRIBUTES", column))
            asset.set(column, value);
    };
    library.cameraRollAsset("PLAIN.JPG").in(trip).set("ZORIGINALFILENAME", "ORIGINAL.JPG");
    setIfThere(library.cameraRollAsset("FAVORITE.JPG"), "ZFAVORITE", 1);
    setIfThere(library.cameraRollAsset("HIDDEN.JPG"), "ZHIDDEN", 1);
    setIfThere(library.cameraRollAsset("ANIMATED.GIF"), "ZPLAYBACKSTYLE", 2);
    setIfThere(library.cameraRollAsset("SELFIE.JPG"), "ZCAMERACAPTUREDEVICE", 1);
    setIfThere(library.cameraRollAsset("LIVE.JPG"), "ZVIDEOCPDURATIONTIMESCALE", 600);
    setIfThere(library.cameraRollAsset("SCREEN.PNG"), "ZKINDSUBTYPE", 10);
    setIfThere(library.cameraRollAsset("SLOW.MOV").video(), "ZKINDSUBTYPE", 101);
    setIfThere(library.cameraRollAsset("EDITED.JPG"), "ZHASADJUSTMENTS", 1);
    setIfThere(library.cameraRollAsset("EDITED18.JPG"), "ZADJUSTMENTSSTATE", 2);
    setIfThere(library.cameraRollAsset("PORTRAIT.JPG"), "ZDEPTHTYPE", 1);
    setIfThere(library.cameraRollAsset("PORTRAIT11.JPG"), "ZDEPTHSTATES", 2);
    setIfThere(library.cameraRollAsset("RAW.DNG"), "ZPACKEDBADGEATTRIBUTES", 6);
    library.cameraRollAsset("OLD.JPG").set("ZDATECREATED", -86400);
    library.cameraRollAsset("LONG.MOV").video().set("ZDURATION", 12.5);
    if (hasTrash)
        library.asset("TRASHED.JPG").trashedAt(readingTime - days);
}

std::vector<std::string> command(const LibraryBuilder &library, const std::string &name,
                                 const std::vector<std::string> &options)
{
    std::vector<std::string> all = {name,        library.path(),
                                    "--ios",     library.schema().iosVersion,
                                    "--product", library.schema().productType};
    all.insert(all.end(), options.begin(), options.end());
    return all;
}

/// The photos by file name, without their albums, which are made by the other facts.
json photosOf(const json &document)
{
    json photos = json::object();
    for (json photo : document.at("photos")) {
        photo.erase("albums");
        photos[photo["fileName"].get<std::string>()] = photo;
    }
    return photos;
}

const std::vector<std::string> asDocument = {"--json", "--frames", "--as-of", "2020-01-10"};

} // namespace

class MissingColumnOf : public testing::TestWithParam<Schema>
{
};

TEST_P(MissingColumnOf, TakesNothingButItsFieldsAway)
{
    LibraryBuilder whole(GetParam());
    fill(whole);
    const json expected = photosOf(json::parse(runTool(command(whole, "photos", asDocument)).out));
    int tried = 0;
    for (const OptionalColumn &column : optionalColumns()) {
        LibraryBuilder library(GetParam());
        fill(library);
        const std::string table = tableOf(column, GetParam());
        if (!hasColumn(library, table, column.name))
            continue;
        SCOPED_TRACE(table + "." + column.name);
        library.execute("alter table " + table + " drop column " + column.name);
        const ToolRun run = runTool(command(library, "photos", asDocument));
        if (run.status == 5) { // without it, it is whole for another iOS
            EXPECT_THAT(run.error, HasSubstr("; try --ios "));
            continue;
        }
        const json document = json::parse(run.out);
        const json lost = document["unknownFields"];
        if (!lost.empty()) {
            EXPECT_EQ(lost, json(fieldsLostWith({{table, &column}}, GetParam().iosVersion)));
        }
        EXPECT_EQ(run.status, lost.empty() ? 0 : 1) << run.error;
        EXPECT_EQ(document["isComplete"], lost.empty());
        json left = expected;
        for (json &photo : left)
            for (const json &key : lost)
                if (photo.contains(key.get<std::string>()))
                    photo[key.get<std::string>()] = nullptr;
        EXPECT_EQ(photosOf(document), left);
        EXPECT_EQ(schemaComplaints("photos", document), "");
        ++tried;
    }
    EXPECT_GT(tried, 15);
}

TEST_P(MissingColumnOf, MakesNoDifference)
{
    std::size_t tried = 0;
    for (const OptionalColumn &column : optionalColumns()) {
        LibraryBuilder whole(GetParam());
        LibraryBuilder library(GetParam());
        fill(whole);
        fill(library);
        const std::string table = tableOf(column, GetParam());
        if (!hasColumn(library, table, column.name))
            continue;
        SCOPED_TRACE(table + "." + column.name);
        library.execute("alter table " + table + " drop column " + column.name);
        std::vector<std::string> sources = {library.path(), whole.path()};
        std::swap(sources[0], sources[++tried % 2]);
        const ToolRun run = runTool({"diff", sources[0], sources[1], "--ios", GetParam().iosVersion,
                                     "--product", GetParam().productType, "--quiet"});
        if (run.status == 5) // without it, it is whole for another iOS
            continue;
        const auto lost = fieldsLostWith({{table, &column}}, GetParam().iosVersion);
        EXPECT_EQ(run.out, "no difference\n");
        EXPECT_EQ(run.status, run.error.empty() ? 0 : 3);
        if (!run.error.empty()) {
            EXPECT_THAT(
                run.error,
                HasSubstr("not compared, as a database lacks columns for them: " + lost.front()));
        }
    }
    EXPECT_GT(tried, 15);
}

// Together they have all columns.
INSTANTIATE_TEST_SUITE_P(Schemas, MissingColumnOf,
                         testing::Values(ios6, ios7SubTypes, ios8, ios11, ios18), SchemaName());

class MissingColumns : public testing::Test
{
protected:
    MissingColumns()
    {
        library_.madeBy(270008501);
        library_.asset("A.JPG").set("ZHIDDEN", 1);
        library_.asset("B.JPG");
        library_.execute("alter table ZASSET drop column ZHIDDEN;"
                         "alter table ZASSET drop column ZPACKEDBADGEATTRIBUTES");
    }

    ToolRun run(const std::string &command, const std::vector<std::string> &options = {}) const
    {
        std::vector<std::string> all = {command, library_.path(), "--quiet"};
        all.insert(all.end(), options.begin(), options.end());
        return runTool(all);
    }

    std::string line() const
    {
        return "iosphoto: '" + library_.path() +
               "' has no ZASSET.ZHIDDEN, ZASSET.ZPACKEDBADGEATTRIBUTES, so these fields are "
               "unknown, and albums that are made by them may be wrong: isHidden, isRaw, isProRes; "
               "look for a newer iosphoto\n";
    }

    LibraryBuilder library_{ios18};
};

TEST_F(MissingColumns, AreSaidInOneLine)
{
    const ToolRun run = this->run("photos", {"--csv", "--fields", "fileName,isHidden"});
    EXPECT_EQ(run.out, "fileName,isHidden\r\nA.JPG,\r\nB.JPG,\r\n");
    EXPECT_THAT(run.error, HasSubstr(line()));
    EXPECT_EQ(run.status, 1);
}

TEST_F(MissingColumns, MakeCountsUnknown)
{
    const ToolRun run = this->run("info", {"--json"});
    const json document = json::parse(run.out);
    EXPECT_EQ(schemaComplaints("info", document), "");
    EXPECT_EQ(document["unknownFields"], json({"isHidden", "isRaw", "isProRes"}));
    EXPECT_EQ(document["photoCount"], 2);
    EXPECT_THAT(document["counts"],
                Contains(json{{"kind", "hidden"}, {"count", nullptr}, {"bytes", nullptr}}));
    EXPECT_THAT(document["counts"],
                Contains(json{{"kind", "favorite"}, {"count", 0}, {"bytes", 0}}));
    EXPECT_THAT(this->run("info").out, HasSubstr("hidden  unknown  unknown\n"));
}

TEST_F(MissingColumns, AreNullInASqliteOutputToo)
{
    const std::string file = (library_.folder() / "out.db").string();
    EXPECT_EQ(run("photos", {"--sqlite", file}).status, 1);
    EXPECT_EQ(query(file, "select distinct isHidden, isRaw, isFavorite from photos"),
              (std::vector<std::vector<std::string>>{{"null", "null", "0"}}));
    EXPECT_EQ(query(file, "select unknownFields from library").at(0).at(0),
              R"(["isHidden","isRaw","isProRes"])");
}

TEST_F(MissingColumns, AreGivenToStatementsByViews)
{
    const json document = json::parse(run("statements", {"--json"}).out);
    EXPECT_EQ(schemaComplaints("statements", document), "");
    EXPECT_EQ(document["isComplete"], false);
    const std::string script = run("statements").out;
    EXPECT_THAT(script, HasSubstr("create temp view ZASSET as select *, null as ZHIDDEN"));
    execute(openDatabase(library_.path()), script);
}

TEST_F(MissingColumns, LeaveTheSourceAsItIs)
{
    run("info");
    EXPECT_EQ(library_.number("select count(*) from pragma_table_info('ZASSET') "
                              "where name = 'ZHIDDEN'"),
              0);
}

TEST(MissingColumnsOfADatabaseWithoutANumber, AreThoseOfTheNearestSchema)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG");
    library.execute("alter table ZASSET drop column ZFAVORITE");
    const ToolRun run = runTool({"info", library.path(), "--json"});
    EXPECT_EQ(json::parse(run.out)["unknownFields"], json({"isFavorite"}));
    EXPECT_THAT(run.error, HasSubstr("reading as iOS 17 (the nearest by its tables and columns)"));
    EXPECT_EQ(run.status, 1);
}

TEST(MissingColumnsOfABackup, AreThoseOfTheSystemThatItIsOf)
{
    LibraryBuilder library(ios14);
    library.asset("A.JPG");
    library.execute("alter table ZASSET drop column ZFAVORITE;"
                    "alter table ZADDITIONALASSETATTRIBUTES drop column ZCREATORBUNDLEID");
    BackupOptions options;
    options.iosVersion = "14.8";
    const TemporaryFolder folder;
    const std::string backup = writeBackup(folder / "backup", library, options).string();
    const ToolRun run = runTool({"photos", backup, "--json"});
    const json document = json::parse(run.out);
    EXPECT_EQ(document["iosVersion"], "14.8");
    EXPECT_EQ(document["unknownFields"], json({"isFavorite"}));
    EXPECT_EQ(document["photos"].size(), 1U);
    EXPECT_EQ(run.status, 1);
}

TEST(MissingColumnsThatTellNothing, AreNoLoss)
{
    LibraryBuilder library(ios18);
    library.madeBy(18204);
    library.asset("A.JPG");
    library.execute("alter table ZASSET drop column ZSORTTOKEN");
    const ToolRun run = runTool({"albums", library.path(), "--quiet"});
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
}

class EssentialColumn : public testing::TestWithParam<const char *>
{
};

TEST_P(EssentialColumn, ThatIsMissingIsNamed)
{
    LibraryBuilder library(ios18);
    library.madeBy(270008501);
    library.execute(std::string("alter table ZASSET drop column ") + GetParam());
    const ToolRun run = runTool({"info", library.path()});
    EXPECT_THAT(run.error, HasSubstr("whose schema is not known yet (no such column: "));
    EXPECT_THAT(run.error, HasSubstr(GetParam()));
    EXPECT_THAT(run.error, HasSubstr("'iosphoto info'"));
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.status, 5);
}

INSTANTIATE_TEST_SUITE_P(Columns, EssentialColumn,
                         testing::Values("Z_ENT", "ZUUID", "ZFILENAME", "ZDIRECTORY",
                                         "ZDATECREATED"),
                         [](const auto &test) { return std::string(test.param); });

TEST(EssentialTable, ThatIsMissingIsNamed)
{
    LibraryBuilder library(ios18);
    library.madeBy(270008501);
    library.execute("drop table Z_30ASSETS");
    const ToolRun run = runTool({"info", library.path()});
    EXPECT_THAT(run.error, HasSubstr("(no such table: Z_30ASSETS)"));
    EXPECT_EQ(run.status, 5);
}
