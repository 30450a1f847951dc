#include "support/damage.h"
#include "support/expect_failure.h"
#include "support/two_snapshots.h"

using namespace iosphoto::test;
using testing::HasSubstr;

namespace {

constexpr int bothSides[] = {0, 1};

} // namespace

class ToolDiffWithABadSide : public testing::TestWithParam<int>
{
protected:
    /// Compares a library with `other`, which is on the side of the case.
    ToolRun diffWith(const std::string &other) const
    {
        const bool isFirst = GetParam() == 0;
        return runTool({"diff", isFirst ? other : library_.path(),
                        isFirst ? library_.path() : other, "--ios", "15.0", "--product",
                        "iPhone14,2", "--quiet"});
    }

    LibraryBuilder library_{ios15};
    TemporaryFolder folder_;
};

TEST_P(ToolDiffWithABadSide, FileThatIsNotThere)
{
    const auto missing = folder_ / "missing.sqlite";
    expectFailure(diffWith(missing.string()), "cannot read " + quoted(missing) + ": No such", 3);
}

TEST_P(ToolDiffWithABadSide, FileThatIsNoPhotoDatabase)
{
    const auto text = folder_ / "notes.txt";
    writeFile(text, std::string(5000, 'x'));
    expectFailure(diffWith(text.string()), quoted(text) + " is not a SQLite database", 4);
}

TEST_P(ToolDiffWithABadSide, LibraryOfAnotherIos)
{
    const LibraryBuilder other(ios18);
    expectFailure(diffWith(other.path()),
                  "'" + other.path() + "' is a photo database, but not of iOS 15.0", 5);
}

TEST_P(ToolDiffWithABadSide, LibraryThatCouldNotBeReadCompletelyIsNotTrusted)
{
    library_.asset("IMG_0001.JPG").in(library_.album("Trip"));
    LibraryBuilder damaged(ios15);
    damaged.asset("IMG_0001.JPG").in(damaged.album("Trip"));
    damageTable(damaged, "Z_27ASSETS");

    const ToolRun run = diffWith(damaged.path());

    EXPECT_THAT(run.out, HasSubstr("moved   DCIM/100APPLE/IMG_0001.JPG"));
    EXPECT_EQ(run.error, "iosphoto: " + std::string(GetParam() == 0 ? "A" : "B") + ": '" +
                             damaged.path() +
                             "' is damaged (database disk image is malformed) and photos are "
                             "missing from albums here; copy it from the device or the backup "
                             "again, its -wal with it\n"
                             "iosphoto: what is missing may look like a difference, or hide one\n");
    EXPECT_EQ(run.status, 3);
}

INSTANTIATE_TEST_SUITE_P(Sides, ToolDiffWithABadSide, testing::ValuesIn(bothSides),
                         [](const auto &side) { return side.param == 0 ? "A" : "B"; });

TEST(ToolDiffBadInput, LibrariesThatMissTheSameAreNotSaidToBeTheSame)
{
    LibraryBuilder damaged(ios15);
    damaged.asset("IMG_0001.JPG").in(damaged.album("Trip"));
    damageTable(damaged, "Z_27ASSETS");
    const ToolRun run = runTool({"diff", damaged.path(), damaged.path()});
    EXPECT_EQ(run.out, "no difference\n");
    EXPECT_EQ(run.status, 3);
}

TEST(ToolDiffBadInput, WrongUsage)
{
    expectFailure(runTool({"diff"}), "A is required", 2);
    expectFailure(runTool({"diff", "a.sqlite"}), "B is required", 2);
    expectFailure(runTool({"diff", "a.sqlite", ""}), "B: names no file", 2);
    expectFailure(runTool({"diff", "a.sqlite", "b.sqlite", "--json", "--csv"}), "", 2);
    expectFailure(runTool({"diff", "a.sqlite", "b.sqlite", "--as-of", "soon"}),
                  "--as-of: 'soon' is no time", 2);
}
