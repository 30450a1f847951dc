#include "support/case_name.h"
#include "support/catalogue.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

class AssetOfEverySchema : public testing::TestWithParam<Schema>
{
};

TEST_P(AssetOfEverySchema, HasTheFieldsOfItsRow)
{
    LibraryBuilder library(GetParam());
    library.cameraRollAsset("first.jpg");
    const AssetRow row = library.cameraRollAsset("IMG_4711.MOV")
                             .set("ZTHUMBNAILINDEX", 17)
                             .set("ZDIRECTORY", "DCIM/104APPLE")
                             .set("ZORIGINALFILENAME", "\u6d77.mov")
                             .set("ZWIDTH", 1920)
                             .set("ZHEIGHT", 1080)
                             .set("ZORIGINALFILESIZE", std::int64_t(5000000000))
                             .set("ZDURATION", 12.345678901)
                             .set("ZDATECREATED", 500000000)
                             .set("ZMODIFICATIONDATE", 500000100);

    const Catalogue catalogue(library);
    const CPhotoData &photo = catalogue.photo("IMG_4711.MOV");

    EXPECT_EQ(photo.thumbnailIndex, 17);
    EXPECT_EQ(photo.assetId, 2);
    EXPECT_EQ(photo.directory.toStdString(), "DCIM/104APPLE");
    EXPECT_EQ(photo.sourceFileName.toStdString(), "\u6d77.mov");
    EXPECT_EQ(photo.width, 1920);
    EXPECT_EQ(photo.height, 1080);
    EXPECT_EQ(photo.fileSize, 5000000000);
    EXPECT_EQ(photo.duration, 12.345678901F);
    EXPECT_EQ(photo.createdTime, 500000000);
    EXPECT_EQ(photo.modifiedTime, 500000100);
    EXPECT_EQ(photo.dateText.toStdString(), "2016-11-05");
    EXPECT_EQ(photo.albumName.toStdString(), "相机胶卷");
    EXPECT_EQ(photo.uuid, row.uuid());
}

TEST_P(AssetOfEverySchema, WithNothingButAFileNameHasDefaults)
{
    LibraryBuilder library(GetParam());
    AssetRow row = library.cameraRollAsset("IMG_0001.JPG");
    for (const char *column :
         {"ZTHUMBNAILINDEX", "ZDIRECTORY", "ZORIGINALFILENAME", "ZWIDTH", "ZHEIGHT",
          "ZORIGINALFILESIZE", "ZDURATION", "ZDATECREATED", "ZMODIFICATIONDATE", "ZUUID"})
        row.set(column, nullptr);

    const Catalogue catalogue(library);
    const CPhotoData &photo = catalogue.photo("IMG_0001.JPG");

    EXPECT_EQ(photo.thumbnailIndex, 0);
    EXPECT_EQ(photo.directory.toStdString(), "");
    EXPECT_EQ(photo.sourceFileName.toStdString(), "");
    EXPECT_EQ(photo.width, 0);
    EXPECT_EQ(photo.height, 0);
    EXPECT_EQ(photo.fileSize, 0);
    EXPECT_EQ(photo.duration, 0);
    EXPECT_EQ(photo.createdTime, 0);
    EXPECT_EQ(photo.modifiedTime, 0);
    EXPECT_EQ(photo.dateText.toStdString(), "2001-01-01");
    EXPECT_EQ(photo.uuid, "");
    EXPECT_EQ(photo.extraValue, 0);
    EXPECT_EQ(photo.extraText1.toStdString() + photo.extraText2.toStdString(), "");
    EXPECT_TRUE(photo.isValid);
    EXPECT_FALSE(photo.inUserAlbum);
    EXPECT_FALSE(photo.isEdited);
    EXPECT_TRUE(photo.thumbnail.isNull());
}

TEST_P(AssetOfEverySchema, WasAddedWhenItSaysFromIos8OnAndWhenCreatedBefore)
{
    LibraryBuilder library(GetParam());
    AssetRow row = library.cameraRollAsset("IMG_0001.JPG").set("ZDATECREATED", 500000000);
    const bool saysWhen = !library.schema().hasBlobUuids;
    if (saysWhen)
        row.set("ZADDEDDATE", 500000300);

    const Catalogue catalogue(library);

    EXPECT_EQ(catalogue.photo("IMG_0001.JPG").addedTime, saysWhen ? 500000300 : 500000000);
}

INSTANTIATE_TEST_SUITE_P(Schemas, AssetOfEverySchema, testing::ValuesIn(allSchemas), SchemaName());
INSTANTIATE_TEST_SUITE_P(WithoutProRaw, AssetOfEverySchema,
                         testing::ValuesIn(schemasWithoutProRaw()), SchemaName());

namespace {

struct Edit
{
    Schema schema;
    const char *iosVersion;
    const char *column;
    Value value;
    bool isEdited;
    const char *label;

    std::string name() const { return std::string("ios_") + iosVersion + "_" + label; }
};

std::ostream &operator<<(std::ostream &stream, const Edit &edit)
{
    return stream << edit.name();
}

const Edit edits[] = {
    {ios7, "6.1", "ZEDITORBUNDLEID", "com.example.editor", false, "editor"},
    {ios7, "7.0", "ZEDITORBUNDLEID", "com.example.editor", true, "editor"},
    {ios7SubTypes, "7.9", "ZEDITORBUNDLEID", "com.example.editor", true, "editor"},
    {ios7, "7.0", "ZEDITORBUNDLEID", "", false, "empty_editor"},
    {ios7, "7.0", "ZEDITORBUNDLEID", nullptr, false, "no_editor"},
    {ios8, "8.0", "ZEDITORBUNDLEID", "com.example.editor", false, "editor"},
    {ios8, "8.0", "ZHASADJUSTMENTS", 1, true, "adjusted"},
    {ios8, "8.0", "ZHASADJUSTMENTS", 2, false, "adjustments_2"},
    {ios9, "10.3", "ZHASADJUSTMENTS", 1, true, "adjusted"},
    {ios11, "13.7", "ZHASADJUSTMENTS", 1, true, "adjusted"},
    {ios14, "14.8", "ZHASADJUSTMENTS", 1, true, "adjusted"},
    {ios15, "15.0", "ZHASADJUSTMENTS", 1, true, "adjusted"},
    {ios15, "17.9", "ZHASADJUSTMENTS", 1, true, "adjusted"},
    {ios15, "17.9", "ZHASADJUSTMENTS", 0, false, "not_adjusted"},
    {ios15, "17.9", "ZHASADJUSTMENTS", -1, false, "adjustments_minus_1"},
    {ios18, "18.0", "ZADJUSTMENTSSTATE", 2, true, "state_2"},
    {ios18, "18.0", "ZADJUSTMENTSSTATE", 1, false, "state_1"},
    {ios18, "18.0", "ZADJUSTMENTSSTATE", 3, false, "state_3"},
    {ios18, "18.0", "ZADJUSTMENTSSTATE", 0, false, "state_0"},
    {ios18, "18.0", "ZEDITORBUNDLEID", "com.example.editor", false, "editor"},
};

} // namespace

class EditedAsset : public testing::TestWithParam<Edit>
{
};

TEST_P(EditedAsset, IsToldByWhatItsGenerationNotes)
{
    LibraryBuilder library(GetParam().schema);
    library.cameraRollAsset("IMG_0001.JPG").set(GetParam().column, GetParam().value);

    const Catalogue catalogue(library, GetParam().iosVersion, GetParam().schema.productType);

    EXPECT_EQ(catalogue.photo("IMG_0001.JPG").isEdited, GetParam().isEdited);
}

INSTANTIATE_TEST_SUITE_P(Notes, EditedAsset, testing::ValuesIn(edits), NameOfCase());

TEST(EditedAsset, IsNotToldByTheNoteOfAnotherGeneration)
{
    LibraryBuilder before(ios15);
    before.execute("alter table ZASSET add column ZADJUSTMENTSSTATE integer");
    before.asset("IMG_0001.JPG").set("ZADJUSTMENTSSTATE", 2);
    EXPECT_FALSE(Catalogue(before).photo("IMG_0001.JPG").isEdited);

    LibraryBuilder after(ios18);
    after.execute("alter table ZASSET add column ZHASADJUSTMENTS integer");
    after.asset("IMG_0001.JPG").set("ZHASADJUSTMENTS", 1);
    EXPECT_FALSE(Catalogue(after).photo("IMG_0001.JPG").isEdited);
}

TEST(AssetUuid, IsTextWithDashesFromIos8On)
{
    LibraryBuilder library(ios8);
    library.asset("IMG_0001.JPG").set("ZUUID", "0A1B2C3D-0000-4000-8000-00000000FFFF");
    EXPECT_EQ(Catalogue(library).photo("IMG_0001.JPG").uuid,
              "0A1B2C3D-0000-4000-8000-00000000FFFF");
}

TEST(AssetUuid, IsABlobShownAsLowerCaseHexadecimalBelowIos8)
{
    for (const Schema &schema : {ios6, ios7, ios7SubTypes}) {
        LibraryBuilder library(schema);
        library.cameraRollAsset("IMG_0001.JPG")
            .set("ZUUID",
                 Blob{{"\x00\x0A\xFF\xAB\x10\x32\x54\x76\x98\xBA\xDC\xFE\x01\x23\x45\x67", 16}});
        EXPECT_EQ(Catalogue(library).photo("IMG_0001.JPG").uuid, "000affab1032547698badcfe01234567")
            << schema;
    }
}

TEST(AssetUuid, OfAnEmptyBlobIsEmpty)
{
    LibraryBuilder library(ios7);
    library.cameraRollAsset("IMG_0001.JPG").set("ZUUID", Blob{});
    EXPECT_EQ(Catalogue(library).photo("IMG_0001.JPG").uuid, "");
}
