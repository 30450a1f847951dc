#include "model/clock.h"
#include "model/core_data_time.h"
#include "support/camera_roll_run.h"
#include "support/case_name.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

using Kind = AlbumKind;

constexpr std::uint32_t now = 1700000000;
constexpr std::int64_t nowInDatabase = now - coreDataEpoch;
constexpr std::int64_t oneDay = 24 * 60 * 60;
constexpr std::int64_t limit = nowInDatabase - 30 * oneDay;

struct Trashed
{
    const char *label;
    Value date;
    bool isKept;

    std::string name() const { return label; }
};

std::ostream &operator<<(std::ostream &stream, const Trashed &trashed)
{
    return stream << trashed.label;
}

const Trashed trashed[] = {
    {"Now", nowInDatabase, true},
    {"InTheFuture", nowInDatabase + oneDay, true},
    {"TwentyNineDaysAgo", nowInDatabase - 29 * oneDay, true},
    {"ThirtyDaysLessASecondAgo", limit + 1, true},
    {"ThirtyDaysAgo", limit, false},
    {"ThirtyDaysAndASecondAgo", limit - 1, false},
    {"ThirtyDaysLessHalfASecondAgo", static_cast<double>(limit) + 0.5, false},
    {"InTheFirstSecond", 1, false},
    {"AtZero", 0, false},
    {"AtAFractionOfTheFirstSecond", 0.9, false},
    {"NobodyKnowsWhen", nullptr, false},
    {"AtNoNumber", "yesterday", false},
    {"AtMinusOne", -1, true},
    {"AtTheSmallestOf32Bits", std::int64_t(-2147483648), true},
    {"AtAFractionBelowZero", -0.9, false},
    {"BeyondThe31Bits", std::int64_t(2147483648), true},
    {"LateInThisCenturyWithAFraction", 3769172687.69, true},
    {"AtTheLargestOf31Bits", 2147483647, true},
    {"OneTurnOf32BitsLater", std::int64_t(4294967296), false},
};

} // namespace

class TrashedAsset : public testing::TestWithParam<Trashed>
{
};

TEST_P(TrashedAsset, IsKeptForThirtyDays)
{
    const StoppedClock clock(now);
    LibraryBuilder library(ios15);
    library.asset("A.JPG").set("ZTRASHEDSTATE", 1).set("ZTRASHEDDATE", GetParam().date);

    const CameraRollRun run(library);

    EXPECT_EQ(run.shownIn("A.JPG"), GetParam().isKept ? Kinds{Kind::RecentlyDeleted} : Kinds{});
    EXPECT_EQ(run.rows, 1);
}

INSTANTIATE_TEST_SUITE_P(Dates, TrashedAsset, testing::ValuesIn(trashed), NameOfCase());

TEST(Trash, IsLookedAtAsOfTheTimeThatTheManagerHolds)
{
    const StoppedClock clock(now);
    LibraryBuilder library(ios15);
    library.asset("A.JPG").trashedAt(limit);
    library.asset("B.JPG").trashedAt(nowInDatabase);
    const auto shownAsOf = [&](std::optional<std::uint32_t> asOf) {
        OwningManager manager(library);
        manager.asOf = asOf;
        manager.prepare();
        manager.GetCameraAlbum();
        return files(manager.smart(Kind::RecentlyDeleted));
    };

    EXPECT_EQ(shownAsOf(std::nullopt), Files{"B.JPG"});
    EXPECT_EQ(shownAsOf(now - 1), (Files{"A.JPG", "B.JPG"}));
    EXPECT_EQ(shownAsOf(now + 30 * oneDay), Files{});
    EXPECT_EQ(shownAsOf(0), (Files{"A.JPG", "B.JPG"}));
}

TEST(Trash, ReadsANegativeDateAsUnsignedUnixTime)
{
    // -1500000000 stands for 2794967296, without the epoch of the other dates.
    LibraryBuilder library(ios15);
    library.asset("A.JPG").trashedAt(-1500000000);
    const auto shownAt = [&](std::uint32_t unixTime) {
        const StoppedClock clock(unixTime);
        return CameraRollRun(library).shownIn("A.JPG");
    };
    constexpr std::uint32_t end = 2794967296U + 30 * oneDay;

    EXPECT_EQ(shownAt(end - 1), Kinds{Kind::RecentlyDeleted});
    EXPECT_EQ(shownAt(end), Kinds{});
}

TEST(Trash, HoldsAssetsInStateOneAlone)
{
    const StoppedClock clock(now);
    LibraryBuilder library(ios15);
    library.asset("A.JPG").trashedAt(nowInDatabase).set("ZTRASHEDSTATE", 2);
    library.asset("B.JPG").trashedAt(nowInDatabase).set("ZTRASHEDSTATE", nullptr);

    const CameraRollRun run(library);

    EXPECT_EQ(run.shownIn("A.JPG"), Kinds{Kind::CameraRoll});
    EXPECT_EQ(run.shownIn("B.JPG"), Kinds{Kind::CameraRoll});
    EXPECT_FALSE(run.photo("A.JPG").isDeleted);
}

TEST(Trash, IsKnownFromIos8On)
{
    const StoppedClock clock(now);
    LibraryBuilder library(ios8);
    library.asset("A.JPG").trashedAt(nowInDatabase);

    const CameraRollRun run(library, "8.0");

    EXPECT_EQ(run.shownIn("A.JPG"), Kinds{Kind::RecentlyDeleted});
    EXPECT_TRUE(run.photo(Kind::RecentlyDeleted, "A.JPG").isDeleted);
}

TEST(Trash, DoesNotConcernIos7)
{
    LibraryBuilder library(ios7SubTypes);
    library.cameraRollAsset("A.JPG");
    library.execute("alter table ZGENERICASSET add column ZTRASHEDSTATE integer default 1");

    const CameraRollRun run(library);

    EXPECT_EQ(run.shownIn("A.JPG"), Kinds{Kind::CameraRoll});
    EXPECT_FALSE(run.photo("A.JPG").isDeleted);
}

TEST(Trash, ShowsAHiddenAssetAmongTheHiddenToo)
{
    const StoppedClock clock(now);
    LibraryBuilder library(ios15);
    library.asset("A.JPG").trashedAt(nowInDatabase).set("ZHIDDEN", 1);

    const CameraRollRun run(library);

    EXPECT_EQ(run.shownIn("A.JPG"), (Kinds{Kind::RecentlyDeleted, Kind::Hidden}));
    EXPECT_TRUE(run.photo(Kind::RecentlyDeleted, "A.JPG").isHidden);
    EXPECT_TRUE(run.photo(Kind::Hidden, "A.JPG").isDeleted);
}

TEST(Trash, ForgetsAHiddenRawAssetAltogetherInTheEnd)
{
    const StoppedClock clock(now);
    LibraryBuilder library(ios15);
    library.asset("hidden.jpg").trashedAt(limit).set("ZHIDDEN", 1);
    library.asset("raw.dng").trashedAt(limit).set("ZPACKEDBADGEATTRIBUTES", 6);
    library.asset("").trashedAt(limit).set("ZFAVORITE", 1);

    const CameraRollRun run(library);

    for (const CAlbumGroup &album : run.albums)
        EXPECT_EQ(files(&album), Files{}) << album.albumKind;
}
