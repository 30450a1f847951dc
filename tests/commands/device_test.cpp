#include "support/case_name.h"
#include "support/expect_failure.h"
#include "support/library_builder.h"

using namespace iosphoto::test;

namespace {

/// The line that says what a library is read as.
std::string readingAs(const std::string &ios, const std::string &product)
{
    return "iosphoto: reading as " + ios + " and " + product + ", as of 2023-05-01 00:00 UTC\n";
}

const std::string anyModel = "iPhone14,2 (hides no album)";

ToolRun albums(const LibraryBuilder &library, std::vector<std::string> more = {})
{
    std::vector<std::string> arguments = {"albums", library.path(), "--as-of", "2023-05-01"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return runTool(arguments);
}

} // namespace

class ToolSchema : public testing::TestWithParam<Schema>
{
};

TEST_P(ToolSchema, TellsTheDeviceByItsTablesAndColumns)
{
    const LibraryBuilder library(GetParam());
    const ToolRun run = albums(library);
    const std::string version = GetParam().iosVersion; // the schema's newest major version
    EXPECT_EQ(run.error, readingAs("iOS " + version.substr(0, version.find('.')) +
                                       " (the newest with these tables and columns)",
                                   std::string(GetParam().productType) + " (hides no album)"));
    EXPECT_EQ(run.status, 0);
}

INSTANTIATE_TEST_SUITE_P(Schemas, ToolSchema, testing::ValuesIn(allSchemas), SchemaName());

struct Made
{
    const char *label;
    Schema schema;
    std::int64_t modelVersion;
    const char *build;
    const char *expected;

    std::string name() const { return label; }
};

const Made madeLibraries[] = {
    {"OnAPhone", ios18, 18212, "22A3354", "iOS 18 (schema 18212, build 22A3354)"},
    {"OnAMac", ios15, 15323, "21A559", "iOS 15 (schema 15323 of a Mac, build 21A559)"},
    {"WithoutBuild", ios15, 16119, "", "iOS 16 (schema 16119)"},
    {"WithTheFirstNumberedModel", ios11, 12310, "16H81", "iOS 12 (schema 12310, build 16H81)"},
    {"BeforeModelsWereNumbered", ios8, 7100, "",
     "iOS 8 (the newest with these tables and columns)"},
    {"WithAModelThatItsTablesContradict", ios15, 18212, "",
     "iOS 17 (the newest with these tables and columns)"},
    {"WithAnAbsurdModel", ios15, -1, "", "iOS 17 (the newest with these tables and columns)"},
};

class ToolLibraryMade : public testing::TestWithParam<Made>
{
};

TEST_P(ToolLibraryMade, IsReadAsTheIosOfItsModel)
{
    LibraryBuilder library(GetParam().schema);
    library.madeBy(GetParam().modelVersion, GetParam().build);
    const ToolRun run = albums(library);
    EXPECT_EQ(run.error, readingAs(GetParam().expected, anyModel));
    EXPECT_EQ(run.status, 0);
}

INSTANTIATE_TEST_SUITE_P(Models, ToolLibraryMade, testing::ValuesIn(madeLibraries), NameOfCase());

struct Newer
{
    const char *label;
    std::int64_t modelVersion;
    const char *iosVersion;

    std::string name() const { return label; }
};

class ToolNewerLibrary : public testing::TestWithParam<Newer>
{
};

TEST_P(ToolNewerLibrary, IsReadAsTheNewestKnownWithAWarning)
{
    const std::string newest = std::to_string(iosOf(allSchemas.back()));
    LibraryBuilder library(allSchemas.back());
    library.asset("IMG_0001.HEIC");
    library.madeBy(GetParam().modelVersion);
    const std::string version = GetParam().iosVersion;

    const ToolRun run = albums(library);

    EXPECT_EQ(run.error, readingAs("iOS " + version + " (schema " +
                                       std::to_string(GetParam().modelVersion) + ")",
                                   anyModel) +
                             "iosphoto: iOS " + version +
                             " is newer than all that are known, so it is read like iOS " + newest +
                             "; check a few photos against the device\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, albums(library, {"--ios", newest}).out);
}

const Newer newerModels[] = {{"Ios26", 19063, "26"}, {"Ios27", 270008501, "27"}};
INSTANTIATE_TEST_SUITE_P(Models, ToolNewerLibrary, testing::ValuesIn(newerModels), NameOfCase());

TEST(ToolNewerLibrary, WhoseTablesAreNotKnownAsksForANewerTool)
{
    LibraryBuilder library(allSchemas.back());
    library.madeBy(270008501);
    library.execute("alter table ZASSET rename column ZFILENAME to ZNAMEOFFILE");
    expectFailure(albums(library),
                  "'" + library.path() +
                      "' is a photo database of iOS 27, whose schema is not known yet (no such "
                      "column: ZFILENAME); look for a newer iosphoto, or run 'iosphoto info' "
                      "on it and send what that prints to the makers\n",
                  5);
}

TEST(ToolDevice, ThatWasNamedNeedsNoWords)
{
    const LibraryBuilder library(ios15);
    const ToolRun whole = albums(library, {"--ios", "15.4", "--product", "iPhone12,1"});
    EXPECT_EQ(whole.error, "");
    EXPECT_EQ(whole.status, 0);
    const ToolRun half = albums(library, {"--product", "iPhone12,1"});
    EXPECT_EQ(half.error,
              readingAs("iOS 17 (the newest with these tables and columns)", "iPhone12,1"));
}

TEST(ToolDevice, ThatDisagreesWithTheSchemaIsAWarningWhileItsStatementsRun)
{
    LibraryBuilder library(ios15);
    library.madeBy(15502);
    const ToolRun run = albums(library, {"--ios", "16.5", "--product", "iPhone14,2"});
    EXPECT_EQ(run.error, "iosphoto: the database has the schema of iOS 15, not of iOS 16.5, and "
                         "photos may be wrong or missing; try --ios 15\n");
    EXPECT_EQ(run.status, 0);
}

TEST(ToolDevice, WhoseStatementsDoNotRunIsRefusedNamingTheVersionThatFits)
{
    LibraryBuilder library(ios15);
    const std::string subject = "'" + library.path() + "' is a photo database, but not of ";
    expectFailure(albums(library, {"--ios", "14.2"}),
                  subject + "iOS 14.2 and iPhone14,2; try --ios 17 --product iPhone14,2\n", 5);
    library.madeBy(15502);
    expectFailure(albums(library, {"--ios", "18", "--product", "iPad8,1"}),
                  subject + "iOS 18 and iPad8,1; try --ios 15 --product iPhone14,2\n", 5);
}

TEST(ToolDevice, OfIos5OrEarlierIsNamedAsSuch)
{
    LibraryBuilder library(ios6);
    library.execute("create table PhotoAlbum (a); create table PhotoExtras (a)");
    expectFailure(albums(library),
                  "'" + library.path() +
                      "' is a photo database of iOS 5 or earlier, which is not "
                      "known; libraries of iOS " +
                      std::to_string(iosOf(allSchemas.front())) + " to " +
                      std::to_string(iosOf(allSchemas.back())) + " can be read\n",
                  5);
}

TEST(ToolDevice, IsReadThroughTheWriteAheadLog)
{
    LibraryBuilder library(ios15);
    library.madeBy(15502);
    library.execute("pragma journal_mode = wal; pragma wal_autocheckpoint = 0");
    library.madeBy(17600);
    EXPECT_EQ(albums(library).error, readingAs("iOS 17 (schema 17600)", anyModel));
}
