#include "support/backup_builder.h"
#include "support/expect_failure.h"
#include "support/json_schema.h"
#include "support/library_builder.h"

#include <nlohmann/json.hpp>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <sstream>

using namespace iosphoto::test;
using nlohmann::json;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;
using testing::UnorderedElementsAre;

namespace {

json statementsOf(const std::vector<std::string> &arguments)
{
    std::vector<std::string> command = {"statements", "--json"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return json::parse(runTool(command).out);
}

std::vector<std::string> linesWith(const std::string &text, const ToolRun &run)
{
    std::vector<std::string> found;
    std::istringstream lines(run.out);
    for (std::string line; std::getline(lines, line);)
        if (line.find(text) != std::string::npos)
            found.push_back(line);
    return found;
}

std::vector<std::string> fileNamesIn(const std::filesystem::path &folder)
{
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename());
    return names;
}

std::vector<std::string> names(const json &document)
{
    std::vector<std::string> names;
    for (const json &statement : document["statements"])
        names.push_back(statement["name"]);
    return names;
}

} // namespace

class ToolStatementsOfSchema : public testing::TestWithParam<Schema>
{
};

TEST_P(ToolStatementsOfSchema, RunOnTheDatabaseThatTheyAreFor)
{
    LibraryBuilder library(GetParam());
    library.asset("IMG_0001.JPG").in(library.album("Trip"));

    const ToolRun run = runTool({"statements", library.path(), "--ios", GetParam().iosVersion,
                                 "--product", GetParam().productType});

    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), ';'), 7);
    EXPECT_NO_THROW(library.execute(run.out));
}

TEST_P(ToolStatementsOfSchema, HaveTheEntityNumbersOfTheDatabase)
{
    const LibraryBuilder library(GetParam());

    const json document = statementsOf(
        {library.path(), "--ios", GetParam().iosVersion, "--product", GetParam().productType});

    EXPECT_EQ(schemaComplaints("statements", document), "");
    EXPECT_EQ(document["iosVersion"], GetParam().iosVersion);
    EXPECT_EQ(document["productType"], GetParam().productType);
    EXPECT_EQ(document["numbersAreRead"], true);
    json asset = {{"album", GetParam().album},
                  {"photoStreamAlbum", nullptr},
                  {"assetSuper", nullptr},
                  {"asset", nullptr}};
    asset[GetParam().hasGenericAsset() ? "assetSuper" : "asset"] = GetParam().assetNumber();
    EXPECT_EQ(document["statements"][3]["entityNumbers"], asset);
    EXPECT_EQ(document["statements"][5]["entityNumbers"],
              (json{{"album", GetParam().album},
                    {"photoStreamAlbum", GetParam().photoStreamAlbum},
                    {"assetSuper", nullptr},
                    {"asset", nullptr}}));
}

INSTANTIATE_TEST_SUITE_P(Schemas, ToolStatementsOfSchema, testing::ValuesIn(allSchemas),
                         SchemaName());

TEST(ToolStatements, AreRunAsTheHelpSaysWithoutWritingBesideTheDatabase)
{
    LibraryBuilder library(ios15);
    library.execute("pragma journal_mode = wal");
    library.asset("IN THE LOG.JPG");
    const TemporaryFolder folder;
    std::map<std::string, std::string> source;
    for (const char *name : {"Photos.sqlite", "Photos.sqlite-wal"}) {
        source[name] = readFile(library.folder() / name);
        writeFile(folder / name, source[name]);
    }
    std::string examples;
    for (const char *part : {"> passes.sql", "mkdir copy", "< passes.sql"})
        for (const std::string &line : linesWith(part, runTool({"statements", "--help"})))
            examples += line + "\n";

    const std::string script = "cd '" + folder.path().string() + "' && PATH='" +
                               std::filesystem::path(IOSPHOTO_TOOL).parent_path().string() +
                               "':\"$PATH\" && set -e && {\n" + examples + "} > rows 2> said";
    EXPECT_EQ(std::system(script.c_str()), 0);

    EXPECT_THAT(readFile(folder / "rows"), HasSubstr("IN THE LOG.JPG"));
    for (const auto &[name, content] : source)
        EXPECT_TRUE(readFile(folder / name) == content) << name;
    EXPECT_THAT(fileNamesIn(folder.path()),
                UnorderedElementsAre("Photos.sqlite", "Photos.sqlite-wal", "passes.sql", "said",
                                     "copy", "rows"));
}

TEST(ToolStatements, StandInTheOrderOfABuildWithWhatEachIsFor)
{
    const LibraryBuilder library(ios15);
    const ToolRun run =
        runTool({"statements", library.path(), "--ios", "15.0", "--product", "iPhone13,2"});

    std::string comments;
    std::istringstream lines(run.out);
    for (std::string line; std::getline(lines, line);)
        if (line.rfind("--", 0) == 0)
            comments += line + "\n";
    EXPECT_EQ(comments,
              "-- iOS 15.0, iPhone13,2: the statements of a build, in the order in which it runs "
              "them\n"
              "-- the entity numbers are those of the database\n"
              "-- run them on a copy of the database and its log: sqlite3 writes beside what it "
              "opens\n"
              "-- pass asset-entity, statement entity_asset.sql: every iOS\n"
              "-- pass album-entity, statement entity_album.sql: every iOS\n"
              "-- pass photo-stream-album-entity, statement entity_photo_stream_album.sql: every "
              "iOS\n"
              "-- pass camera-roll, statement camera_roll_15.sql: iOS 15 to 17, other models\n"
              "-- entity number of Album: 27\n"
              "-- entity number of Asset: 3\n"
              "-- pass photo-library, statement photo_library_14.sql: iOS 14 and later\n"
              "-- entity number of Album: 27\n"
              "-- entity number of Asset: 3\n"
              "-- pass user-albums, statement user_albums_8.sql: iOS 8 and later\n"
              "-- entity number of Album: 27\n"
              "-- entity number of PhotoStreamAlbum: 30\n"
              "-- pass album-contents, statement album_contents_14.sql: iOS 14 to 17\n"
              "-- entity number of Album: 27\n"
              "-- entity number of Asset: 3\n");
}

TEST(ToolStatements, WithoutASourceHaveTheUsualEntityNumbersAndSaySo)
{
    LibraryBuilder library(ios18);
    const std::string origin = "the entity numbers are those that databases of iOS 18.1 usually "
                               "have; compare them with what the first three statements find in "
                               "yours, or name it as SOURCE\n";
    const ToolRun run = runTool({"statements", "--ios", "18.1"});
    EXPECT_EQ(run.error, "iosphoto: " + origin);
    EXPECT_THAT(run.out, HasSubstr("-- " + origin));
    EXPECT_THAT(run.out, HasSubstr("-- iOS 18.1, iPhone14,2: "));
    EXPECT_EQ(run.status, 0);
    EXPECT_NO_THROW(library.execute(run.out));
}

TEST(ToolStatements, ThatNeedNumbersThatAreNotKnownTellHowToFindThem)
{
    const ToolRun run = runTool({"statements", "--ios", "7.1"});
    EXPECT_EQ(run.error,
              "iosphoto: not all entity numbers of iOS 7.1 are known; put what the first three "
              "statements find in place of <ALBUM>, <PHOTO_STREAM_ALBUM>, <ASSET_SUPER>, or name a "
              "database as SOURCE\n");
    EXPECT_THAT(run.out, HasSubstr("-- <ALBUM>, entity number of Album: Z_ENT as entity_album "
                                   "finds it\n"));
    EXPECT_THAT(run.out, HasSubstr("from Z_<ALBUM>ASSETS"));
    EXPECT_EQ(run.status, 0);

    const json document = statementsOf({"--ios", "7.1"});
    EXPECT_EQ(schemaComplaints("statements", document), "");
    EXPECT_THAT(freeKeys("statements", document), IsEmpty());
    EXPECT_EQ(document["numbersAreRead"], false);
    EXPECT_EQ(document["statements"][5]["entityNumbers"]["album"], nullptr);
}

struct UsualNumbers
{
    const char *ios;
    int album;
    const char *joined; ///< the column of the join table that names assets
};

void PrintTo(const UsualNumbers &usual, std::ostream *out)
{
    *out << usual.ios;
}

class ToolStatementsWithoutSource : public testing::TestWithParam<UsualNumbers>
{
};

TEST_P(ToolStatementsWithoutSource, NameTheJoinTableOfTheirIos)
{
    const std::string sql = statementsOf({"--ios", GetParam().ios})["statements"][6]["sql"];
    EXPECT_THAT(sql, HasSubstr("from Z_" + std::to_string(GetParam().album) + "ASSETS"));
    EXPECT_THAT(sql, HasSubstr(std::string("[") + GetParam().joined + "]"));
    EXPECT_THAT(sql, Not(HasSubstr("<ALBUM>")));
}

INSTANTIATE_TEST_SUITE_P(
    Versions, ToolStatementsWithoutSource,
    testing::Values(UsualNumbers{"11.4", 20, "Z_27ASSETS"}, UsualNumbers{"12.0", 23, "Z_30ASSETS"},
                    UsualNumbers{"13.7", 26, "Z_34ASSETS"}, UsualNumbers{"14.0", 26, "Z_3ASSETS"},
                    UsualNumbers{"15.8", 27, "Z_3ASSETS"}, UsualNumbers{"16.0", 28, "Z_3ASSETS"},
                    UsualNumbers{"17.5.1", 28, "Z_3ASSETS"}, UsualNumbers{"17.6", 29, "Z_3ASSETS"},
                    UsualNumbers{"18", 30, "Z_3ASSETS"}));

TEST(ToolStatements, AreThoseOfTheModel)
{
    EXPECT_THAT(names(statementsOf({"--ios", "17"})), testing::Contains("camera_roll_15_proraw"));
    EXPECT_THAT(names(statementsOf({"--ios", "17", "--product", "iPhone13,2"})),
                testing::Contains("camera_roll_15"));
}

TEST(ToolStatements, SayWhatWasFilledInThatNobodyNamed)
{
    const TemporaryFolder folder;
    writeBackup(folder.path(), LibraryBuilder(ios15));
    const ToolRun run = runTool({"statements", folder.path().string(), "--product", "iPhone13,2"});
    EXPECT_EQ(run.error, "iosphoto: filled in for iOS 17.4.1 (Info.plist) and iPhone13,2\n");
    EXPECT_THAT(run.out, StartsWith("-- iOS 17.4.1, iPhone13,2: "));
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(runTool({"statements", folder.path().string(), "--quiet"}).error, "");
}

TEST(ToolStatements, NeedASourceOrAVersion)
{
    expectFailure(runTool({"statements"}), "name a SOURCE, or a version with --ios; see ", 2);
    expectFailure(runTool({"statements", "--product", "iPhone14,2"}), "name a SOURCE, or a ", 2);
    expectFailure(runTool({"statements", ""}), "SOURCE: names no file", 2);
    expectFailure(runTool({"statements", "/nowhere/Photos.sqlite"}), "cannot read '/nowhere", 3);
}

TEST(ToolStatements, ThatDoNotFitTheDatabaseAreRefused)
{
    const LibraryBuilder library(ios15);
    expectFailure(runTool({"statements", library.path(), "--ios", "14.2"}),
                  "'" + library.path() + "' is a photo database, but not of iOS 14.2", 5);
}

TEST(ToolStatements, OfAVersionThatIsNotKnownYetComeWithAWarning)
{
    const LibraryBuilder library(allSchemas.back());
    const ToolRun run = runTool({"statements", library.path(), "--ios", "27"});
    EXPECT_THAT(run.error, HasSubstr("iOS 27 is newer than all that are known"));
    EXPECT_THAT(run.out, StartsWith("-- iOS 27, iPhone14,2: "));
    EXPECT_EQ(run.status, 0);
}

TEST(ToolStatements, OfVersionsThatAreNotKnown)
{
    const ToolRun old = runTool({"statements", "--ios", "5.1"});
    EXPECT_EQ(old, (ToolRun{"",
                            "iosphoto: the databases of iOS 5.1 are not known; name a version from "
                            "6 on\n",
                            5}));
    const ToolRun newer = runTool({"statements", "--ios", "99", "--quiet"});
    EXPECT_THAT(newer.error,
                HasSubstr("iosphoto: iOS 99 is newer than all that are known, so it is read like "
                          "iOS " +
                          std::to_string(iosOf(allSchemas.back())) +
                          "; check a few photos against the device\n"));
    EXPECT_EQ(newer.status, 0);
}
