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

#include <functional>

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
    library.cameraRollAsset("OTHER.AVI")
        .set("ZUNIFORMTYPEIDENTIFIER", "public.avi")
        .set("ZKIND", 1);
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
        const bool isWhole = lost.empty() && document["unknownReasons"].empty();
        EXPECT_EQ(run.status, isWhole ? 0 : 1) << run.error;
        EXPECT_EQ(document["isComplete"], isWhole);
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
        if (!run.error.empty() && !lost.empty()) { // or it tells rows apart, and no field
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

TEST(MissingColumnsOfADatabaseWithANumber, AreNotThoseOfAnOlderSchemaThatFits)
{
    LibraryBuilder library(ios11);
    library.madeBy(13308);
    library.asset("A.JPG").set("ZHIDDEN", 1);
    library.execute("alter table ZGENERICASSET drop column ZHIDDEN");
    const ToolRun run = runTool({"info", library.path(), "--json"});
    const json document = json::parse(run.out);
    EXPECT_EQ(document["iosVersion"], "13");
    EXPECT_EQ(document["unknownFields"], json({"isHidden"}));
    EXPECT_EQ(run.status, 1);
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
    EXPECT_THAT(run.error, HasSubstr("; look for a newer iosphoto, or run 'iosphoto info' on it "
                                     "and send what that prints to the makers\n"));
    EXPECT_THAT(run.out, HasSubstr(std::string("ZASSET.") + GetParam()));
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

TEST(EssentialEntities, OfWhichAColumnIsMissingAreNamedByIt)
{
    LibraryBuilder library(ios18);
    library.madeBy(270008501);
    library.execute("alter table Z_PRIMARYKEY drop column Z_SUPER");
    const ToolRun run = runTool({"photos", library.path()});
    EXPECT_THAT(run.error, HasSubstr("(no such column: Z_SUPER)"));
    EXPECT_EQ(run.status, 5);
}

namespace {

/// A column by which the catalogue leaves rows out.
struct TellingColumn
{
    const char *name;
    const char *table;
    const char *column;
    std::function<void(LibraryBuilder &)> addRow; ///< one that it leaves out
    std::vector<const char *> reasons;
    const char *line;
};

void PrintTo(const TellingColumn &column, std::ostream *out)
{
    *out << column.name;
}

const TellingColumn tellingColumns[] = {
    {"savedAs",
     "ZASSET",
     "ZSAVEDASSETTYPE",
     [](LibraryBuilder &library) { library.asset("A.JPG").set("ZSAVEDASSETTYPE", 4); },
     {"sharedAlbum", "referencedElsewhere"},
     "so photos of shared albums, photos referenced elsewhere and photos synced from a computer "
     "cannot be told from the user's own, and are listed as those"},
    {"trash",
     "ZASSET",
     "ZTRASHEDSTATE",
     [](LibraryBuilder &library) { library.asset("A.JPG").trashedAt(0); },
     {"trashedTooLong", "trashedWithoutDate"},
     "so deleted photos cannot be told from others, and are listed as those, also after 30 days"},
    {"trashDate",
     "ZASSET",
     "ZTRASHEDDATE",
     [](LibraryBuilder &library) { library.asset("A.JPG").trashedAt(0); },
     {"trashedTooLong", "trashedWithoutDate"},
     "so it is not known which photos have been in Recently Deleted for 30 days, and all are "
     "listed"},
    {"burst",
     "ZASSET",
     "ZAVALANCHEPICKTYPE",
     [](LibraryBuilder &library) {
         library.asset("A.JPG")
             .set("ZAVALANCHEUUID", "BURST")
             .set("ZAVALANCHEPICKTYPE", 2)
             .set("ZHIDDEN", 1);
     },
     {"burstFrame"},
     "so the frames of a burst cannot be put together, and each is listed by itself"},
    {"albumKind",
     "ZGENERICALBUM",
     "ZKIND",
     [](LibraryBuilder &library) { library.album("A").set("ZKIND", 3571); },
     {"shared", "project", "folder", "system"},
     "so albums of the system cannot be told from those of the user, and are listed as those"},
    {"albumTrash",
     "ZGENERICALBUM",
     "ZTRASHEDSTATE",
     [](LibraryBuilder &library) { library.album("A").set("ZTRASHEDSTATE", 1); },
     {"trashed"},
     "so deleted albums cannot all be told from others, and may be listed as those"},
};

} // namespace

class MissingTellingColumn : public testing::TestWithParam<TellingColumn>
{
protected:
    MissingTellingColumn()
    {
        library_.madeBy(18204);
        library_.asset("LISTED.JPG");
        GetParam().addRow(library_);
        library_.execute(std::string("alter table ") + GetParam().table + " drop column " +
                         GetParam().column);
    }

    std::string columnName() const
    {
        return std::string(GetParam().table) + "." + GetParam().column;
    }

    LibraryBuilder library_{ios18};
};

TEST_P(MissingTellingColumn, IsSaidWithWhatIsListedForWantOfIt)
{
    const ToolRun run = runTool({"photos", library_.path(), "--quiet"});
    EXPECT_THAT(run.error, HasSubstr("iosphoto: '" + library_.path() + "' has no " + columnName() +
                                     ", " + GetParam().line + "; look for a newer iosphoto\n"));
    EXPECT_EQ(run.status, 1);
}

TEST_P(MissingTellingColumn, MakesItsReasonsUnknownInDocuments)
{
    const json document = json::parse(runTool({"info", library_.path(), "--json"}).out);
    EXPECT_EQ(schemaComplaints("info", document), "");
    EXPECT_EQ(document["missingColumns"], json({columnName()}));
    EXPECT_EQ(document["unknownReasons"], json(GetParam().reasons));
    const bool isOfAlbums = GetParam().table == std::string("ZGENERICALBUM");
    const json &account = document["account"][isOfAlbums ? "albumsLeftOut" : "leftOut"];
    for (const char *const reason : GetParam().reasons)
        EXPECT_EQ(account[reason], nullptr) << reason;
    EXPECT_THAT(runTool({"info", library_.path()}).out, HasSubstr("  unknown\n"));
}

INSTANTIATE_TEST_SUITE_P(Columns, MissingTellingColumn, testing::ValuesIn(tellingColumns),
                         [](const auto &test) { return test.param.name; });

TEST(MissingTrash, MakesTheNumberOfWhatItLeavesOutUnknown)
{
    LibraryBuilder library(ios18);
    library.madeBy(18204);
    library.asset("A.JPG").trashedAt(0);
    library.execute("alter table ZASSET drop column ZTRASHEDSTATE");
    const json document = json::parse(runTool({"photos", library.path(), "--json"}).out);
    EXPECT_EQ(document["leftOut"], nullptr);
    EXPECT_EQ(schemaComplaints("photos", document), "");
}

TEST(MissingTitles, AreTheReasonWhyAlbumsAreLeftOut)
{
    LibraryBuilder library(ios18);
    library.madeBy(18204);
    const AlbumRow trip = library.album("Trip");
    library.asset("A.JPG").in(trip);
    library.execute("alter table ZGENERICALBUM drop column ZTITLE");
    const ToolRun run = runTool({"albums", library.path(), "--json"});
    const json document = json::parse(run.out);
    EXPECT_EQ(schemaComplaints("albums", document), "");
    EXPECT_EQ(document["albumsLeftOutByReason"]["unknownTitle"], 1);
    EXPECT_EQ(document["albumsLeftOutByReason"]["withoutTitle"], nullptr);
    EXPECT_THAT(run.error, HasSubstr("so the titles of albums are not known, and all albums that "
                                     "people or computers made are left out"));
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(runTool({"info", library.path()}).out,
                HasSubstr("- left out: of unknown title        1\n"));
}

namespace {

struct LostChoice
{
    std::vector<std::string> options;
    const char *column;
    const char *field;
};

void PrintTo(const LostChoice &choice, std::ostream *out)
{
    *out << testing::PrintToString(choice.options);
}

const LostChoice lostChoices[] = {
    {{"--favorite"}, "ZFAVORITE", "isFavorite"},
    {{"--hidden"}, "ZHIDDEN", "isHidden"},
    {{"--edited"}, "ZADJUSTMENTSSTATE", "isEdited"},
    {{"--deleted"}, "ZTRASHEDSTATE", "isDeleted"},
    {{"--within", "9", "--deleted"}, "ZTRASHEDDATE", "trashed"},
    {{"--kind", "favorite"}, "ZFAVORITE", "isFavorite"},
    {{"--kind", "live,animated"}, "ZPLAYBACKSTYLE", "isAnimated"},
    {{"--album", "favorites"}, "ZFAVORITE", "isFavorite"},
    {{"--album", "Recently Deleted"}, "ZTRASHEDSTATE", "isDeleted"},
    {{"--sort", "duration"}, "ZDURATION", "duration"},
};

} // namespace

class LostChoiceOfPhotos : public testing::TestWithParam<LostChoice>
{
};

TEST_P(LostChoiceOfPhotos, IsNoEmptyListButAnErrorThatNamesTheColumn)
{
    LibraryBuilder library(ios18);
    library.madeBy(18204);
    library.asset("A.JPG").set("ZFAVORITE", 1);
    library.execute(std::string("alter table ZASSET drop column ") + GetParam().column);
    std::vector<std::string> arguments = {"photos", library.path(), "--csv", "--quiet"};
    arguments.insert(arguments.end(), GetParam().options.begin(), GetParam().options.end());
    const ToolRun run = runTool(arguments);
    EXPECT_THAT(run.error, HasSubstr("iosphoto: " + GetParam().options.front() +
                                     " cannot choose, as " + GetParam().field + " is unknown: '" +
                                     library.path() + "' has no ZASSET." + GetParam().column +
                                     "; leave the option out, or look for a newer iosphoto\n"));
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.status, 1);
}

INSTANTIATE_TEST_SUITE_P(Options, LostChoiceOfPhotos, testing::ValuesIn(lostChoices),
                         [](const auto &test) { return "Option" + std::to_string(test.index); });

TEST_F(MissingColumns, LeaveOtherChoicesAsTheyAre)
{
    const ToolRun run = this->run("photos", {"--csv", "--fields", "fileName", "--name", "A*",
                                             "--kind", "photo", "--sort", "size"});
    EXPECT_EQ(run.out, "fileName\r\nA.JPG\r\n");
    EXPECT_EQ(run.status, 1);
}
