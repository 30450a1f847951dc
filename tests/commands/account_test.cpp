// Every row of the database is shown, or counted with the reason why not.
#include "support/damage.h"
#include "support/json_schema.h"
#include "support/query.h"
#include "support/real_libraries.h"
#include "support/run_on.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <functional>

using namespace iosphoto::test;
using nlohmann::json;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

json accountOf(const std::vector<std::string> &info)
{
    return json::parse(runTool(info).out).at("account");
}

json accountOf(const LibraryBuilder &library)
{
    return accountOf(commandOn(library, "info", {"--json"}));
}

/// The reasons that count something.
json reasons(const json &counts)
{
    json reasons = json::object();
    for (const auto &[reason, count] : counts.items())
        if (count != 0)
            reasons[reason] = count;
    return reasons;
}

std::int64_t sumOf(const json &counts)
{
    std::int64_t sum = 0;
    for (const auto &[reason, count] : counts.items())
        sum += count.get<std::int64_t>();
    return sum;
}

void expectBalance(const json &account)
{
    EXPECT_EQ(account["assetRows"],
              account["listed"].get<std::int64_t>() + sumOf(account["leftOut"]))
        << account;
    EXPECT_EQ(account["albumRows"],
              account["albumsListed"].get<std::int64_t>() + sumOf(account["albumsLeftOut"]))
        << account;
}

void addFrame(LibraryBuilder &library, const char *name, int pickType, bool isHidden)
{
    library.asset(name)
        .set("ZAVALANCHEUUID", "BURST")
        .set("ZAVALANCHEPICKTYPE", pickType)
        .set("ZHIDDEN", isHidden ? 1 : 0);
}

constexpr char untitledLine[] =
    "iosphoto: the catalogue does not read the contents of albums without a title: photos that are "
    "not shown in such albums: 2; albums: 1\n";

struct Reason
{
    const char *name;
    std::function<void(LibraryBuilder &)> addRow;
};

void PrintTo(const Reason &reason, std::ostream *out)
{
    *out << reason.name;
}

/// Each adds one row that the catalogue leaves out.
const Reason photoReasons[] = {
    {"notSelected", [](LibraryBuilder &library) { library.asset("A.JPG").set("Z_ENT", 99); }},
    {"sharedAlbum",
     [](LibraryBuilder &library) { library.asset("A.JPG").set("ZSAVEDASSETTYPE", 4); }},
    {"referencedElsewhere",
     [](LibraryBuilder &library) { library.asset("A.JPG").set("ZSAVEDASSETTYPE", 10); }},
    {"trashedTooLong",
     [](LibraryBuilder &library) { library.asset("A.JPG").trashedAt(readingTime - 30 * days); }},
    {"trashedWithoutDate",
     [](LibraryBuilder &library) {
         library.asset("A.JPG").trashedAt(readingTime).set("ZTRASHEDDATE", nullptr);
     }},
    {"withoutFileName", [](LibraryBuilder &library) { library.asset(nullptr); }},
    {"burstFrame", [](LibraryBuilder &library) { addFrame(library, "A.JPG", 2, true); }},
};

const Reason albumReasons[] = {
    {"shared",
     [](LibraryBuilder &library) { library.album("A").set("ZKIND", 1505).set("Z_ENT", 9); }},
    {"project",
     [](LibraryBuilder &library) { library.album("A").set("ZKIND", 1508).set("Z_ENT", 9); }},
    {"folder",
     [](LibraryBuilder &library) { library.album("A").set("ZKIND", 4000).set("Z_ENT", 9); }},
    {"system", [](LibraryBuilder &library) { library.album("A").set("ZKIND", 3571); }},
    {"trashed", [](LibraryBuilder &library) { library.album("A").set("ZTRASHEDSTATE", 1); }},
    {"withoutTitle", [](LibraryBuilder &library) { library.album(nullptr); }},
    {"empty", [](LibraryBuilder &library) { library.photoStream(); }},
    {"repeated", [](LibraryBuilder &library) { library.album("A").set("ZUUID", nullptr); }},
};

} // namespace

class LeftOutPhoto : public testing::TestWithParam<Reason>
{
protected:
    LeftOutPhoto()
    {
        library_.asset("LISTED.JPG");
        GetParam().addRow(library_);
    }

    json photos(const std::vector<std::string> &options) const
    {
        std::vector<std::string> all = {"--json"};
        all.insert(all.end(), options.begin(), options.end());
        const json document = json::parse(runOn(library_, "photos", all).out);
        EXPECT_EQ(schemaComplaints("photos", document), "");
        return document.at("photos");
    }

    LibraryBuilder library_{ios15};
};

TEST_P(LeftOutPhoto, IsCountedWithTheReason)
{
    const json account = accountOf(library_);
    expectBalance(account);
    EXPECT_EQ(account["listed"], 1);
    EXPECT_EQ(reasons(account["leftOut"]), (json{{GetParam().name, 1}}));
}

TEST_P(LeftOutPhoto, IsListedWithTheReasonOnRequest)
{
    EXPECT_EQ(photos({}).size(), 1U);
    EXPECT_EQ(photos({})[0]["leftOutBecause"], nullptr);
    const json leftOut = photos({"--left-out"});
    ASSERT_EQ(leftOut.size(), 1U);
    EXPECT_EQ(leftOut[0]["leftOutBecause"], GetParam().name);
    EXPECT_EQ(leftOut[0]["albums"], json::array());
    EXPECT_EQ(leftOut[0]["assetId"], 2);
    EXPECT_EQ(photos({"--with-left-out"}).size(), 2U);
}

TEST_P(LeftOutPhoto, IsSaidThoughRemarksAreNot)
{
    const ToolRun run = runOn(library_, "photos", {"--quiet"});
    EXPECT_THAT(run.error, HasSubstr("iosphoto: left out: 1 "));
    EXPECT_THAT(run.error, HasSubstr("; iosphoto photos --left-out lists them\n"));
    EXPECT_EQ(run.status, 0);
}

INSTANTIATE_TEST_SUITE_P(Reasons, LeftOutPhoto, testing::ValuesIn(photoReasons),
                         [](const auto &test) { return test.param.name; });

class LeftOutAlbum : public testing::TestWithParam<Reason>
{
};

TEST_P(LeftOutAlbum, IsCountedWithTheReason)
{
    LibraryBuilder library(ios15);
    const AlbumRow listed = library.album("Listed");
    library.asset("A.JPG").in(listed);
    GetParam().addRow(library);
    const json account = accountOf(library);
    expectBalance(account);
    EXPECT_EQ(account["albumsListed"], 1);
    EXPECT_EQ(reasons(account["albumsLeftOut"]), (json{{GetParam().name, 1}}));
}

INSTANTIATE_TEST_SUITE_P(Reasons, LeftOutAlbum, testing::ValuesIn(albumReasons),
                         [](const auto &test) { return test.param.name; });

TEST(Account, BalancesWhereRowsAreOnlyInAlbumsOrSynced)
{
    LibraryBuilder library(ios15);
    const AlbumRow trip = library.album("Trip");
    library.asset("REFERENCED.JPG").set("ZSAVEDASSETTYPE", 10).in(trip);
    library.asset("SYNCED.JPG").synced();
    library.asset("A.JPG").in(trip);
    const json account = accountOf(library);
    expectBalance(account);
    EXPECT_EQ(account["listed"], 3);
    EXPECT_THAT(reasons(account["leftOut"]), IsEmpty());
}

TEST(Account, CountsAnAlbumThatIsShownAsListedWhateverItsKind)
{
    LibraryBuilder library(ios15);
    const AlbumRow album = library.album("A");
    library.asset("A.JPG").in(album);
    library.execute("update ZGENERICALBUM set ZKIND = 1505");
    const json account = accountOf(library);
    EXPECT_EQ(account["albumsListed"], 1);
    EXPECT_THAT(reasons(account["albumsLeftOut"]), IsEmpty());
}

TEST(Account, CountsFramesThatThePhotosCommandFolds)
{
    LibraryBuilder library(ios15);
    addFrame(library, "1.JPG", 16, false);
    addFrame(library, "2.JPG", 2, false);
    addFrame(library, "3.JPG", 2, false);
    EXPECT_EQ(accountOf(library)["foldedBurstFrames"], 2);
    EXPECT_THAT(runOn(library, "info").out,
                HasSubstr("'iosphoto photos' shows one photo of each burst and so 2 frames less, "
                          "unless --frames asks for all.\n"));
    const json photos = json::parse(runOn(library, "photos", {"--json"}).out)["photos"];
    EXPECT_EQ(photos.size(), 1U);
}

TEST(Account, IsATableOfInfo)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG");
    library.asset("B.JPG").set("ZSAVEDASSETTYPE", 4);
    library.asset("C.JPG").set("ZSAVEDASSETTYPE", 4);
    library.album("Folder").set("ZKIND", 4000);
    EXPECT_THAT(runOn(library, "info").out, HasSubstr("IN THE DATABASE                COUNT\n"
                                                      "photos                             3\n"
                                                      "- listed                           1\n"
                                                      "- left out: of a shared album      2\n"
                                                      "albums                             1\n"
                                                      "- listed                           0\n"
                                                      "- left out: folder                 1\n"));
}

class AccountOfSchema : public testing::TestWithParam<Schema>
{
};

TEST_P(AccountOfSchema, Balances)
{
    LibraryBuilder library(GetParam());
    const AlbumRow trip = library.album("Trip");
    library.cameraRollAsset("A.JPG").in(trip);
    library.asset("SYNCED.JPG").synced().in(trip);
    library.asset("ONLY_IN_ALBUM.JPG").set("ZSAVEDASSETTYPE", 10).in(trip);
    library.asset("ELSEWHERE.JPG").set("ZSAVEDASSETTYPE", 10);
    const json account = accountOf({"info", library.path(), "--json", "--ios",
                                    GetParam().iosVersion, "--product", GetParam().productType});
    expectBalance(account);
    EXPECT_EQ(account["assetRows"], 4);
    EXPECT_EQ(reasons(account["leftOut"]), (json{{"referencedElsewhere", 1}}));
}

INSTANTIATE_TEST_SUITE_P(Schemas, AccountOfSchema, testing::ValuesIn(allSchemas), SchemaName());

TEST(LeftOutPhotos, AreInAllFormats)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG");
    library.asset("B.JPG").set("ZSAVEDASSETTYPE", 4);
    const std::string file = (library.folder() / "out.db").string();
    EXPECT_EQ(runOn(library, "photos",
                    {"--with-left-out", "--csv", "--fields", "fileName,isSelfie,leftOutBecause"})
                  .out,
              "fileName,isSelfie,leftOutBecause\r\nA.JPG,false,\r\nB.JPG,false,sharedAlbum\r\n");
    EXPECT_EQ(
        runOn(library, "photos", {"--left-out", "--jsonl", "--fields", "fileName,leftOutBecause"})
            .out,
        R"({"source":")" + library.path() +
            R"(","sourceBytes":null,"fileName":"B.JPG","leftOutBecause":"sharedAlbum"})"
            "\n");
    EXPECT_EQ(runOn(library, "photos", {"--left-out", "--fields", "fileName,reason"}).out,
              "fileName  LEFT OUT\nB.JPG     of a shared album\n");
    runOn(library, "photos", {"--with-left-out", "--sqlite", file});
    EXPECT_EQ(query(file, "select fileName, leftOutBecause from photos order by fileName"),
              (std::vector<std::vector<std::string>>{{"A.JPG", "null"}, {"B.JPG", "sharedAlbum"}}));
    EXPECT_EQ(query(file, "select count(distinct photo) from album_photos").at(0).at(0), "1");
}

TEST(LeftOutPhotos, AreFilteredAndSortedAsOthers)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG");
    library.asset("B.JPG").set("ZSAVEDASSETTYPE", 4).set("ZFAVORITE", 1);
    library.asset("C.JPG").set("ZSAVEDASSETTYPE", 4);
    library.asset("D.JPG").set("ZFAVORITE", 1);
    const auto shown = [&](const std::vector<std::string> &options) {
        std::vector<std::string> all = {"--fields", "fileName", "--csv"};
        all.insert(all.end(), options.begin(), options.end());
        return runOn(library, "photos", all).out;
    };
    EXPECT_EQ(shown({"--left-out", "--favorite"}), "fileName\r\nB.JPG\r\n");
    EXPECT_EQ(shown({"--with-left-out", "--reverse"}),
              "fileName\r\nD.JPG\r\nC.JPG\r\nB.JPG\r\nA.JPG\r\n");
    EXPECT_EQ(shown({"--with-left-out", "--favorite", "--sort", "name", "--limit", "1"}),
              "fileName\r\nB.JPG\r\n");
}

TEST(LeftOutPhotos, OfWhichThereAreNoneAreSaid)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG");
    EXPECT_EQ(runOn(library, "photos", {"--left-out"}).error, "iosphoto: no photo is left out\n");
}

TEST(LeftOutPhotos, OfAListAreSaidWithoutTheWayToListThem)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG").set("ZSAVEDASSETTYPE", 4);
    for (const char *option : {"--left-out", "--with-left-out"})
        EXPECT_EQ(runOn(library, "photos", {option}).error,
                  "iosphoto: left out: 1 of a shared album\n");
}

TEST(LeftOutPhotos, ThatAreAskedForByUuidAreSaidWithTheReason)
{
    LibraryBuilder library(ios15);
    const std::string listed = library.asset("A.JPG").uuid();
    const std::string leftOut = library.asset("B.JPG").set("ZSAVEDASSETTYPE", 4).uuid();
    const ToolRun run = runOn(library, "photos", {"--uuid", listed, "--uuid", leftOut});
    EXPECT_THAT(run.error, HasSubstr("iosphoto: the photo with the uuid '" + leftOut +
                                     "' is in the database, but left out: of a shared album; "
                                     "--with-left-out shows it\n"));
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(
        runOn(library, "photos", {"--uuid", leftOut, "--with-left-out", "--fields", "fileName"})
            .out,
        "fileName\nB.JPG\n");
}

TEST(LeftOutPhotos, AreChosenByWhatTheirRowsSay)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG").set("ZCAMERACAPTUREDEVICE", 1);
    library.asset("B.JPG").set("ZCAMERACAPTUREDEVICE", 1).set("ZSAVEDASSETTYPE", 4);
    const auto selfies = [&](const char *shown) {
        return runOn(library, "photos", {shown, "--kind", "selfie", "--fields", "fileName"}).out;
    };
    EXPECT_EQ(selfies("--left-out"), "fileName\nB.JPG\n");
    EXPECT_EQ(selfies("--with-left-out"), "fileName\nA.JPG\nB.JPG\n");
}

TEST(LeftOutPhotos, AreOfUnknownKindWhereItIsNotTold)
{
    LibraryBuilder library(ios15);
    library.asset("A.MOV").video().set("ZDURATION", 2.5).set("ZSAVEDASSETTYPE", 4);
    library.execute("alter table ZASSET drop column ZKIND");
    EXPECT_EQ(
        runOn(library, "photos", {"--left-out", "--csv", "--fields", "fileName,mediaKind"}).out,
        "fileName,mediaKind\r\nA.MOV,\r\n");
}

TEST(CountsByReason, AreThoseOfTheAccountInTheHeadOfAllDocuments)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG");
    library.asset("B.JPG").set("ZSAVEDASSETTYPE", 4);
    library.asset("C.JPG").trashedAt(readingTime - 31 * days);
    library.album("Folder").set("ZKIND", 4000);
    const json account = accountOf(library);
    EXPECT_EQ(reasons(account["leftOut"]), (json{{"sharedAlbum", 1}, {"trashedTooLong", 1}}));
    for (const char *command : {"photos", "albums", "info"}) {
        const json document = json::parse(runOn(library, command, {"--json"}).out);
        EXPECT_EQ(document["leftOutByReason"], account["leftOut"]);
        EXPECT_EQ(document["albumsLeftOutByReason"], account["albumsLeftOut"]);
        EXPECT_EQ(document["leftOut"], 1) << "of the trash";
    }
}

class AccountOfRealLibrary : public testing::TestWithParam<RealLibrary>
{
};

TEST_P(AccountOfRealLibrary, Balances)
{
    const std::filesystem::path source = folderOf(GetParam());
    if (!exists(source))
        GTEST_SKIP() << "the real libraries are not there";
    const json account = accountOf({"info", (source / "Photos.sqlite").string(), "--json"});
    expectBalance(account);
    EXPECT_GT(account["assetRows"], 0);
    EXPECT_EQ(account["leftOut"]["notSelected"], 0);
}

INSTANTIATE_TEST_SUITE_P(Libraries, AccountOfRealLibrary, testing::ValuesIn(realLibraries),
                         [](const auto &test) { return std::string(test.param.name); });

TEST(ToolAccount, ContentsOfUntitledAlbumsAreCounted)
{
    LibraryBuilder library(ios15);
    const AlbumRow untitled = library.album("");
    library.album("");
    library.asset("A.JPG").in(untitled);
    library.asset("B.JPG").in(untitled).in(library.album("Trip"));
    library.asset("C.JPG").in(untitled).trashedAt(1);
    for (const char *const command : {"info", "albums", "photos"})
        EXPECT_THAT(runTool(commandOn(library, command, {"--quiet"})).error,
                    HasSubstr(untitledLine))
            << command;
    const json account = accountOf(library);
    EXPECT_EQ(account["untitledAlbums"], 1);
    EXPECT_EQ(account["photosOfUntitledAlbums"], 2);
}
