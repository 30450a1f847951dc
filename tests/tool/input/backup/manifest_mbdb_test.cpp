#include "input/backup/manifest_mbdb.h"

#include "support/backup_builder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace iosphoto::test;
using iosphoto::tool::ManifestMbdb;
using iosphoto::tool::SourceError;
using iosphoto::tool::SourceProblem;

namespace {

constexpr const char *photo = "DCIM/100APPLE/IMG_0001.JPG";

class ToolManifestMbdb : public testing::Test
{
protected:
    ToolManifestMbdb()
    {
        BackupOptions options;
        options.index = BackupIndexKind::Mbdb;
        BackupBuilder(folder_.path(), options).add(photo, "jpeg").finish();
    }

    std::filesystem::path file() const { return folder_ / "Manifest.mbdb"; }

    /// Nothing where it is read.
    std::optional<SourceProblem> problem() const
    {
        try {
            const ManifestMbdb index(file(), "Manifest.mbdb");
            return std::nullopt;
        } catch (const SourceError &error) {
            EXPECT_THAT(error.finding().facts, testing::ElementsAre("Manifest.mbdb"));
            return error.finding().kind;
        }
    }

    TemporaryFolder folder_;
};

constexpr auto cutShort = SourceProblem::IndexIsCutShort;
constexpr auto somethingElse = SourceProblem::IndexIsSomethingElse;

} // namespace

TEST_F(ToolManifestMbdb, NamesTheStoredFile)
{
    const ManifestMbdb index(file(), "Manifest.mbdb");
    EXPECT_TRUE(std::filesystem::exists(folder_ / index.locate(photo).value_or("none")));
    EXPECT_EQ(index.locate("DCIM/100APPLE/IMG_0002.JPG"), std::nullopt);
}

TEST_F(ToolManifestMbdb, FoldersAreNotFiles)
{
    EXPECT_EQ(ManifestMbdb(file(), "Manifest.mbdb").locate("PhotoData"), std::nullopt);
}

TEST_F(ToolManifestMbdb, IsRefusedWhereverItWasCut)
{
    const std::string whole = readFile(file());
    const std::size_t endOfFirst = whole.find("CameraRollDomain", 20) - 2; // a whole record
    ASSERT_LT(endOfFirst, whole.size());
    for (std::size_t size = 0; size < whole.size(); ++size) {
        writeFile(file(), whole.substr(0, size));
        const bool isWhole = size == 6 || size == endOfFirst;
        const auto expected = size < 6  ? std::optional(somethingElse)
                              : isWhole ? std::nullopt
                                        : std::optional(cutShort);
        EXPECT_EQ(problem(), expected) << size;
    }
}

TEST_F(ToolManifestMbdb, LengthsBeyondTheEndAreNotBelieved)
{
    std::string content = readFile(file());
    content[6] = '\xff';
    content[7] = '\xfe';
    writeFile(file(), content);
    EXPECT_EQ(problem(), cutShort);
}

TEST_F(ToolManifestMbdb, OfAnotherKindIsRefused)
{
    std::string content = readFile(file());
    content[4] = 6;
    writeFile(file(), content);
    EXPECT_EQ(problem(), somethingElse);
}
