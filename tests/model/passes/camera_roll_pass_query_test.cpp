#include "support/camera_roll_run.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

class CameraRollQuery : public testing::TestWithParam<Schema>
{
protected:
    LibraryBuilder library{GetParam()};

    Files shown() const { return files(CameraRollRun(library).plain(AlbumKind::CameraRoll)); }
};

TEST_P(CameraRollQuery, TakesTheDevicesOwnAssets)
{
    for (const int savedAs : {0, 1, 2, 3, 4, 5, 6, 7, 256, -1})
        library.cameraRollAsset(std::to_string(savedAs)).set("ZSAVEDASSETTYPE", savedAs);
    library.cameraRollAsset("null").set("ZSAVEDASSETTYPE", nullptr);
    EXPECT_EQ(shown(), (Files{"0", "1", "3", "5", "6"}));
}

TEST_P(CameraRollQuery, OrdersByDateOfCreation)
{
    library.cameraRollAsset("old").set("ZDATECREATED", 100.25);
    library.cameraRollAsset("undated").set("ZDATECREATED", nullptr);
    library.cameraRollAsset("negative").set("ZDATECREATED", -5);
    library.cameraRollAsset("newest").set("ZDATECREATED", 100.75);
    EXPECT_EQ(shown(), (Files{"newest", "old", "negative", "undated"}));
}

TEST_P(CameraRollQuery, TakesAssetsWithAttributesAlone)
{
    library.cameraRollAsset("with");
    const AssetRow without = library.cameraRollAsset("without");
    library.execute("delete from ZADDITIONALASSETATTRIBUTES where ZASSET = " +
                    std::to_string(without.key()));
    EXPECT_EQ(shown(), (Files{"with"}));
}

TEST_P(CameraRollQuery, TakesRowsOfTheAssetEntityAlone)
{
    const Schema &schema = library.schema();
    library.cameraRollAsset("asset");
    library.cameraRollAsset("other").set(
        schema.hasGenericAsset() ? "Z" + std::to_string(schema.assetSuper) + "_ASSET" : "Z_ENT",
        schema.asset + 1);
    EXPECT_EQ(shown(), (Files{"asset"}));
}

INSTANTIATE_TEST_SUITE_P(Schemas, CameraRollQuery, testing::ValuesIn(allSchemas), SchemaName());
INSTANTIATE_TEST_SUITE_P(WithoutProRaw, CameraRollQuery, testing::ValuesIn(schemasWithoutProRaw()),
                         SchemaName());

namespace {

/// The album uuid of an asset that is in an album with an empty title.
std::string uuidOfUntitledAlbum(const Schema &schema, int keyAsset)
{
    LibraryBuilder library(schema);
    AlbumRow album = library.album("").set("ZUUID", "ALBUM");
    if (keyAsset != 0)
        album.set("ZKEYASSET", keyAsset);
    library.asset("A.JPG").in(album);
    return CameraRollRun(library).photo("A.JPG").albumUuid;
}

} // namespace

TEST(CameraRollAlbumUuid, IsThatOfAnUntitledAlbumWithTheParentEntityForAKey)
{
    for (const Schema &schema : {ios8, ios9, ios11}) {
        EXPECT_EQ(uuidOfUntitledAlbum(schema, schema.assetSuper), "ALBUM") << schema;
        EXPECT_EQ(uuidOfUntitledAlbum(schema, schema.asset), "") << schema;
        EXPECT_EQ(uuidOfUntitledAlbum(schema, 0), "") << schema;
    }
}

TEST(CameraRollAlbumUuid, IsNotKnownWhereThereIsNoParentEntity)
{
    for (const Schema &schema : {ios14, ios15, withoutProRaw(ios15)})
        EXPECT_EQ(uuidOfUntitledAlbum(schema, schema.asset), "") << schema;
}

TEST(CameraRollAlbumUuid, NeedsNoKeyOnIos18)
{
    for (const Schema &schema : {ios18, withoutProRaw(ios18)})
        EXPECT_EQ(uuidOfUntitledAlbum(schema, 0), "ALBUM") << schema.productType;
}

TEST(CameraRollAlbumUuid, IsNotThatOfATitledAlbum)
{
    LibraryBuilder library(ios18);
    library.asset("A.JPG").in(library.album("Holiday"));
    EXPECT_EQ(CameraRollRun(library).photo("A.JPG").albumUuid, "");
}

TEST(CameraRollAlbumUuid, IsABlobShownAsHexadecimalBelowIos8)
{
    LibraryBuilder library(ios7);
    const AlbumRow roll = library.album(nullptr);
    library.asset("A.JPG").in(roll);
    EXPECT_EQ(CameraRollRun(library).photo("A.JPG").albumUuid, roll.uuid());
}

TEST(CameraRollBelowIos8, HoldsWhatUntitledAlbumsHold)
{
    LibraryBuilder library(ios7);
    library.asset("A.JPG");
    library.asset("B.JPG").in(library.album("Holiday"));
    library.asset("C.JPG").in(library.album(""));
    library.asset("D.JPG").in(library.album(nullptr));

    const CameraRollRun run(library);

    EXPECT_EQ(files(run.plain(AlbumKind::CameraRoll)), (Files{"D.JPG"}));
    EXPECT_EQ(run.rows, 1);
}

TEST(CameraRollBelowIos8, ShowsAnAssetOncePerUntitledAlbum)
{
    LibraryBuilder library(ios7);
    library.asset("A.JPG").in(library.album(nullptr)).in(library.album(nullptr));
    EXPECT_EQ(files(CameraRollRun(library).plain(AlbumKind::CameraRoll)),
              (Files{"A.JPG", "A.JPG"}));
}

TEST(CameraRollBelowIos8, TakesAlbumsBelowAKind)
{
    const auto shown = [](const Schema &schema, int kind) {
        LibraryBuilder library(schema);
        library.asset("A.JPG").in(library.album(nullptr).set("ZKIND", kind));
        return CameraRollRun(library).rows == 1;
    };
    EXPECT_TRUE(shown(ios6, 1499));
    EXPECT_FALSE(shown(ios6, 1500));
    EXPECT_TRUE(shown(ios7, 3499));
    EXPECT_FALSE(shown(ios7, 3500));
}

TEST(CameraRollResult, IsNoRowsWhereTheStatementDoesNotMatchTheSchema)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG");
    EXPECT_EQ(CameraRollRun(library, "18.0").rows, 0);
    EXPECT_EQ(CameraRollRun(library, "13.7").rows, 0);
}

TEST(CameraRollResult, IsNoRowsWhereThereIsNoFile)
{
    const TemporaryFolder folder;
    OwningManager manager((folder / "Photos.sqlite").string(), "15.0", "iPhone14,2");
    manager.SetDefaultAlbum();
    EXPECT_EQ(manager.GetCameraAlbum(), 0);
    EXPECT_EQ(files(manager.plain(AlbumKind::CameraRoll)), Files{});
}

TEST(CameraRollResult, IsTheNegatedCodeOfAFileThatDoesNotOpen)
{
    const TemporaryFolder folder;
    OwningManager manager(folder.path().string(), "15.0", "iPhone14,2");
    manager.SetDefaultAlbum();
    EXPECT_EQ(manager.GetCameraAlbum(), -14);
}
