// What diff makes of the trash and of times.
#include "support/backup_builder.h"
#include "support/library_builder.h"
#include "support/run_tool.h"
#include "support/two_snapshots.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fcntl.h>
#include <sys/stat.h>

using namespace iosphoto::test;
using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

namespace fs = std::filesystem;

namespace {

constexpr std::int64_t may2020 = 610000000; // seconds since 2001
constexpr std::int64_t day = 86400;
constexpr std::int64_t unixEpoch = 978307200;

void setTime(const fs::path &file, std::int64_t coreDataSeconds)
{
    const timespec time = {coreDataSeconds + unixEpoch, 0};
    const timespec times[] = {time, time};
    ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
}

/// Two snapshots, the second of which lacks a photo that had been in the trash of the first.
struct EmptiedTrash : TwoSnapshots
{
    EmptiedTrash()
    {
        before.asset("KEPT.JPG");
        before.asset("GONE.JPG").trashedAt(may2020);
        after.asset("KEPT.JPG");
        before.close();
        after.close();
    }
};

} // namespace

TEST(ToolDiffMoment, TimeAloneTakesNoPhotoOutOfTheTrash)
{
    LibraryBuilder library(ios15);
    library.asset("TRASHED.JPG").trashedAt(may2020);
    library.close();
    const TemporaryFolder folder;
    const fs::path later = folder / "Photos.sqlite";
    fs::copy_file(library.path(), later);
    setTime(library.path(), may2020 + day);
    setTime(later, may2020 + 40 * day);

    for (const auto &[a, b] :
         {std::pair(library.path(), later.string()), std::pair(later.string(), library.path())}) {
        const ToolRun run = runTool({"diff", a, b, "--quiet"});
        EXPECT_EQ(run, (ToolRun{"no difference\n", "", 0}));
    }
}

TEST(ToolDiffMoment, CopiesWithoutTheirTimesGiveTheSameAnswer)
{
    const EmptiedTrash phone;
    setTime(phone.before.path(), may2020 + day);
    setTime(phone.after.path(), may2020 + 40 * day);
    const ToolRun original = phone.diff();
    EXPECT_EQ(rowsAndSummary(original),
              "gone    DCIM/100APPLE/GONE.JPG  gone from the trash\n\n1 gone\n");

    for (const std::int64_t time : {may2020 - 90 * day, may2020 + 29 * day, may2020 + 900 * day}) {
        setTime(phone.before.path(), time);
        setTime(phone.after.path(), time + day);
        EXPECT_EQ(phone.diff(), original);
        EXPECT_EQ(json::parse(phone.diff({"--json"}).out)["a"]["asOf"], nullptr);
    }
}

TEST(ToolDiffMoment, RowsDecideWhatTheTrashHolds)
{
    TwoSnapshots phone;
    for (LibraryBuilder *library : {&phone.before, &phone.after}) {
        library->asset("STAYS.JPG").trashedAt(1);
        AssetRow restored = library->asset("RESTORED.JPG");
        AssetRow trashed = library->asset("TRASHED.JPG");
        AssetRow undated = library->asset("UNDATED.JPG");
        (library == &phone.before ? restored : trashed).trashedAt(1);
        if (library == &phone.after)
            undated.set("ZTRASHEDSTATE", 1);
    }
    EXPECT_EQ(rowsAndSummary(phone.diff()), "restored  DCIM/100APPLE/RESTORED.JPG\n"
                                            "trashed   DCIM/100APPLE/TRASHED.JPG\n"
                                            "trashed   DCIM/100APPLE/UNDATED.JPG\n\n"
                                            "2 trashed, 1 restored\n");
}

TEST(ToolDiffMoment, CanBeNamed)
{
    const EmptiedTrash phone;
    EXPECT_THAT(phone.diff({"--as-of", "2020-05-30"}).out, HasSubstr("\n1 gone\n"));
    EXPECT_EQ(
        phone.diff({"--as-of", "2020-06-30"}),
        (ToolRun{
            "no difference\n",
            "iosphoto: differences left out, as the photos had been in the trash for 30 days: 1\n",
            0}));
    const json document = json::parse(phone.diff({"--as-of", "2020-06-30", "--json"}).out);
    EXPECT_EQ(document["a"]["asOf"], "2020-06-30T00:00:00Z");
    EXPECT_EQ(document["a"]["leftOut"], 1);
    EXPECT_EQ(document["b"]["leftOut"], 0);
}

TEST(ToolDiffMoment, LeavesOutNothingThatALibraryHasOutsideOfItsTrash)
{
    TwoSnapshots phone;
    phone.before.asset("RESTORED.JPG").trashedAt(may2020);
    phone.after.asset("RESTORED.JPG");
    EXPECT_EQ(rowsAndSummary(phone.diff({"--as-of", "now"})),
              "restored  DCIM/100APPLE/RESTORED.JPG\n\n1 restored\n");
}

class ToolDiffOrder : public testing::Test
{
protected:
    ToolDiffOrder()
    {
        for (LibraryBuilder *library : {&phone_.before, &phone_.after}) {
            library->madeBy(15502, "19H12");
            library->asset("IMG_0001.JPG");
            library->asset("IMG_0002.JPG");
        }
        count(phone_.before, 2);
        count(phone_.after, 2);
    }

    /// Sets the counter that gives new assets their keys.
    static void count(LibraryBuilder &library, int highest)
    {
        library.execute("update Z_PRIMARYKEY set Z_MAX = " + std::to_string(highest) +
                        " where Z_NAME = 'Asset'");
    }

    std::string said() const { return phone_.diff().error; }
    std::string saidOfTheOtherWayRound() const
    {
        return runTool({"diff", phone_.after.path(), phone_.before.path(), "--quiet"}).error;
    }
    void expectThatTheSecondIsLater() const
    {
        EXPECT_EQ(said(), "");
        EXPECT_EQ(saidOfTheOtherWayRound(),
                  "iosphoto: by its rows '" + phone_.after.path() + "' is later than '" +
                      phone_.before.path() +
                      "'; the earlier library comes first, else new photos look gone\n");
    }

    TwoSnapshots phone_;
};

TEST_F(ToolDiffOrder, OfLibrariesThatAreAsLateIsNotSpokenOf)
{
    setTime(phone_.before.path(), may2020 + day);
    setTime(phone_.after.path(), may2020);
    EXPECT_EQ(said(), "");
    EXPECT_EQ(saidOfTheOtherWayRound(), "");
}

TEST_F(ToolDiffOrder, IsToldByNewAssets)
{
    phone_.after.asset("IMG_0003.JPG");
    count(phone_.after, 3);
    expectThatTheSecondIsLater();
}

TEST_F(ToolDiffOrder, IsToldByNewAssetsThatAreGoneAgain)
{
    count(phone_.after, 3);
    expectThatTheSecondIsLater();
}

TEST_F(ToolDiffOrder, IsToldByAssetsThatAreGone)
{
    phone_.after.execute("delete from ZASSET where ZFILENAME = 'IMG_0001.JPG'"); // the newest
    expectThatTheSecondIsLater();
}

TEST_F(ToolDiffOrder, IsToldByAChange)
{
    phone_.after.execute("update ZASSET set ZHASADJUSTMENTS = 1, ZMODIFICATIONDATE = 650000000 "
                         "where ZFILENAME = 'IMG_0002.JPG'");
    expectThatTheSecondIsLater();
}

TEST_F(ToolDiffOrder, IsToldByAPhotoThatWasTrashed)
{
    phone_.after.execute("update ZASSET set ZTRASHEDSTATE = 1, ZTRASHEDDATE = 650000000 "
                         "where ZFILENAME = 'IMG_0002.JPG'");
    expectThatTheSecondIsLater();
}

TEST_F(ToolDiffOrder, DatesThatCannotBeDoNotHideAChange)
{
    const std::int64_t inTwoDays = TwoSnapshots::justNow() + 2 * day;
    for (const std::int64_t date : {inTwoDays, std::int64_t(123456789012345)}) {
        for (LibraryBuilder *library : {&phone_.before, &phone_.after})
            library->execute("update ZASSET set ZMODIFICATIONDATE = " + std::to_string(date) +
                             " where ZFILENAME = 'IMG_0001.JPG'");
        phone_.after.execute("update ZASSET set ZMODIFICATIONDATE = 650000000 "
                             "where ZFILENAME = 'IMG_0002.JPG'");
        expectThatTheSecondIsLater();
    }
}

TEST_F(ToolDiffOrder, DateThatAnUndoneEditTookAwayDoesNotMakeTheFirstLater)
{
    phone_.before.execute("update ZASSET set Z_OPT = 2, ZMODIFICATIONDATE = 650000100 "
                          "where ZFILENAME = 'IMG_0002.JPG'");
    phone_.after.execute("update ZASSET set Z_OPT = 3, ZMODIFICATIONDATE = 650000000 "
                         "where ZFILENAME = 'IMG_0002.JPG'");
    EXPECT_EQ(said(), "");
    EXPECT_EQ(saidOfTheOtherWayRound(), "") << "the dates do not agree";
}

TEST_F(ToolDiffOrder, IsToldByRowsThatWereWrittenMoreOften)
{
    phone_.after.execute("update ZASSET set Z_OPT = 3, ZFAVORITE = 1 where Z_PK = 1");
    expectThatTheSecondIsLater();
}

TEST_F(ToolDiffOrder, WithoutACounterIsToldByKeysAndDatesTogether)
{
    count(phone_.before, 0);
    count(phone_.after, 0);
    AssetRow added = phone_.after.asset("IMG_0003.JPG");
    EXPECT_EQ(said(), "");
    EXPECT_EQ(saidOfTheOtherWayRound(), "") << "its date is not newer";
    added.set("ZADDEDDATE", 650000000);
    expectThatTheSecondIsLater();
}

TEST_F(ToolDiffOrder, WithoutACounterIsNotToldByTheNewestAssetThatIsGone)
{
    count(phone_.before, 0);
    count(phone_.after, 0);
    phone_.after.execute("delete from ZASSET where ZFILENAME = 'IMG_0001.JPG'");
    EXPECT_EQ(said(), "");
}

TEST_F(ToolDiffOrder, OfDatabasesThatAreNotOneIsToldByDatesAlone)
{
    phone_.after.asset("IMG_0003.JPG");
    count(phone_.after, 3);
    phone_.after.execute("update Z_METADATA set Z_UUID = 'N'");
    EXPECT_EQ(said(), "");
    EXPECT_EQ(saidOfTheOtherWayRound(), "");
    phone_.after.execute("update ZASSET set ZADDEDDATE = 650000000 where Z_PK = 3");
    expectThatTheSecondIsLater();
}

TEST_F(ToolDiffOrder, OfBackupsIsToldByTheirDates)
{
    count(phone_.before, 9);
    phone_.before.close();
    phone_.after.close();
    const TemporaryFolder folder;
    BackupOptions options;
    options.iosVersion = "15.7";
    const std::string first = writeBackup(folder / "first", phone_.before, options).string();
    options.lastBackup += day;
    const std::string second = writeBackup(folder / "second", phone_.after, options).string();
    EXPECT_EQ(runTool({"diff", first, second, "--quiet"}).error, "");
    EXPECT_EQ(runTool({"diff", second, first, "--quiet"}).error,
              "iosphoto: '" + second + "' is a backup of 2023-11-15 22:13 UTC, '" + first +
                  "' one of 2023-11-14 22:13 UTC; the earlier library comes first, else new photos "
                  "look gone\n");
}

TEST_F(ToolDiffOrder, OfTwoPhonesIsNotSpokenOf)
{
    phone_.before.execute("update ZASSET set ZUUID = 'X' || Z_PK, ZADDEDDATE = 650000000");
    EXPECT_THAT(said(), HasSubstr("are they of one phone?"));
    EXPECT_THAT(said(), Not(HasSubstr("the earlier library")));
}
