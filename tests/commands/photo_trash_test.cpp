#include "support/case_name.h"
#include "support/run_on.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;

namespace {

struct Stay
{
    const char *label;
    std::int64_t trashed; ///< before the library's moment
    const char *what;
    const char *cells; ///< trashed, goes, daysLeft

    std::string name() const { return label; }
};

std::ostream &operator<<(std::ostream &stream, const Stay &stay)
{
    return stream << stay.label;
}

const Stay stays[] = {
    {"JustNow", 0, "deleted, 30 days left, goes 2020-02-09",
     "2020-01-10T00:00:00Z,2020-02-09T00:00:00Z,30"},
    {"ASecondAgo", 1, "deleted, 30 days left, goes 2020-02-08",
     "2020-01-09T23:59:59Z,2020-02-08T23:59:59Z,30"},
    {"ADayAgo", days, "deleted, 29 days left, goes 2020-02-08",
     "2020-01-09T00:00:00Z,2020-02-08T00:00:00Z,29"},
    {"OnItsLastDay", 29 * days + 1, "deleted, 1 day left, goes 2020-01-10",
     "2019-12-11T23:59:59Z,2020-01-10T23:59:59Z,1"},
};

} // namespace

class ToolTrash : public testing::TestWithParam<Stay>
{
};

TEST_P(ToolTrash, SaysHowLongAPhotoStays)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG").trashedAt(readingTime - GetParam().trashed);
    EXPECT_EQ(runOn(library, "photos", {"--fields", "what"}),
              (ToolRun{std::string("WHAT\n") + GetParam().what + "\n", "", 0}));
    EXPECT_EQ(
        runOn(library, "photos", {"--fields", "trashed,goes,daysLeft", "--csv"}),
        (ToolRun{std::string("trashed,goes,daysLeft\r\n") + GetParam().cells + "\r\n", "", 0}));
}

INSTANTIATE_TEST_SUITE_P(Stays, ToolTrash, testing::ValuesIn(stays), NameOfCase());

TEST(ToolTrashInAnotherZone, GoesOnTheLocalDay)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG").trashedAt(readingTime - 10 * days);
    const auto inZone = [&](const char *zone) {
        return runTool(commandOn(library, "photos", {"--fields", "goes,what"}), {{"TZ", zone}});
    };
    EXPECT_EQ(inZone("EST5"), // which is five hours behind UTC
              (ToolRun{"GOES                     WHAT\n"
                       "2020-01-29 19:00 -05:00  deleted, 20 days left, goes 2020-01-29\n",
                       "", 0}));
}

TEST(ToolTrashAlone, HasColumnsForHowLongAPhotoStays)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG").trashedAt(readingTime - 10 * days);
    library.asset("IMG_0002.JPG").trashedAt(readingTime - 29 * days);
    EXPECT_EQ(runOn(library, "photos", {"--deleted"}),
              (ToolRun{"TAKEN                 FILE                           PIXELS        SIZE  "
                       "WHAT     DAYS LEFT  GOES                  ALBUMS\n"
                       "2020-01-05 10:40 UTC  DCIM/100APPLE/IMG_0001.JPG  4032x3024  1000 bytes  "
                       "deleted         20  2020-01-30 00:00 UTC  Recently Deleted\n"
                       "2020-01-04 10:40 UTC  DCIM/100APPLE/IMG_0002.JPG  4032x3024  1000 bytes  "
                       "deleted          1  2020-01-11 00:00 UTC  Recently Deleted\n",
                       "", 0}));
}

TEST(ToolTrashOfAPhotoThatIsNotThere, IsUnknown)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG").set("ZTRASHEDDATE", readingTime); // of an earlier stay
    EXPECT_EQ(runOn(library, "photos", {"--fields", "what,trashed,goes,daysLeft", "--csv"}),
              (ToolRun{"what,trashed,goes,daysLeft\r\n,,,\r\n", "", 0}));
}
