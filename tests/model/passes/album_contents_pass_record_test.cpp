#include "model/core_data_time.h"
#include "support/album_contents.h"
#include "support/photo_fields.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

/// A library with one asset in one album, and the record that comes of it.
struct OneAsset
{
    explicit OneAsset(const Schema &schema)
        : library(schema), album(library.album("Holiday")), asset(library.asset("IMG_0001.JPG"))
    {
        asset.in(album);
    }

    CPhotoData record() const { return AlbumContents(library).photo(album); }

    LibraryBuilder library;
    AlbumRow album;
    AssetRow asset;
};

} // namespace

TEST(AlbumContentsRecord, HasWhatTheRowSaysAndDefaultsElsewhere)
{
    OneAsset one(ios15);
    one.asset.set("ZTHUMBNAILINDEX", 12)
        .set("ZDIRECTORY", "DCIM/101APPLE")
        .set("ZORIGINALFILENAME", "北京.jpg")
        .set("ZWIDTH", 640)
        .set("ZHEIGHT", 480)
        .set("ZORIGINALFILESIZE", std::int64_t{5000000000})
        .set("ZDURATION", 2.6)
        .set("ZDATECREATED", 600000000.75)
        .set("ZMODIFICATIONDATE", 600000001.5)
        .set("ZADDEDDATE", 600000002.25);

    CPhotoData expected;
    expected.thumbnailIndex = 12;
    expected.fileName = QStringLiteral("IMG_0001.JPG");
    expected.directory = QStringLiteral("DCIM/101APPLE");
    expected.sourceFileName = QString::fromUtf8("北京.jpg");
    expected.width = 640;
    expected.height = 480;
    expected.fileSize = 5000000000;
    expected.duration = 2.6F;
    expected.createdTime = 600000000;
    expected.modifiedTime = 600000001;
    expected.addedTime = 600000002;
    expected.uuid = one.asset.uuid();
    expected.albumUuid = one.album.uuid();
    expected.albumName = QStringLiteral("Holiday");
    expected.dateText = QStringLiteral("2020-01-06");
    expectSamePhoto(one.record(), expected);
}

TEST(AlbumContentsRecord, DoesNotTellBurstsVideosFavouritesAndHiddenAssets)
{
    OneAsset one(ios15);
    const CPhotoData plain = one.record();
    one.library.execute("update ZASSET set ZAVALANCHEPICKTYPE = 16, ZAVALANCHEUUID = 'burst',"
                        " ZFAVORITE = 1, ZHIDDEN = 1, ZKIND = 1, ZPACKEDBADGEATTRIBUTES = 8,"
                        " ZPLAYBACKSTYLE = 2,"
                        " ZUNIFORMTYPEIDENTIFIER = 'com.apple.quicktime-movie'");
    expectSamePhoto(one.record(), plain);
}

TEST(AlbumContentsRecord, MissingTextsAndNumbersAreEmptyAndZero)
{
    OneAsset one(ios9);
    for (const char *column :
         {"ZTHUMBNAILINDEX", "ZDIRECTORY", "ZORIGINALFILENAME", "ZWIDTH", "ZHEIGHT", "ZDURATION",
          "ZORIGINALFILESIZE", "ZDATECREATED", "ZMODIFICATIONDATE", "ZADDEDDATE"})
        one.asset.set(column, nullptr);

    CPhotoData expected;
    expected.fileName = QStringLiteral("IMG_0001.JPG");
    expected.uuid = one.asset.uuid();
    expected.albumUuid = one.album.uuid();
    expected.albumName = QStringLiteral("Holiday");
    expected.dateText = QStringLiteral("2001-01-01");
    expectSamePhoto(one.record(), expected);
}

TEST(AlbumContentsRecord, NegativeSizesCountByTheirLow32Bits)
{
    OneAsset one(ios15);
    const std::pair<std::int64_t, std::int64_t> sizes[] = {
        {-1, 4294967295}, {-1294967296, 3000000000}, {-4294967297, 4294967295}};
    for (const auto &[stored, size] : sizes) {
        one.asset.set("ZORIGINALFILESIZE", stored);
        EXPECT_EQ(one.record().fileSize, size) << stored;
    }
}

TEST(AlbumContentsRecord, DateIsTheDayOfCreationOrOfAddingWhereThatIsNegative)
{
    OneAsset one(ios15);
    const struct
    {
        double created;
        double added;
        const char *text;
    } cases[] = {
        {0, 0, "2001-01-01"},
        {86400, -1, "2001-01-02"},
        {-1.0, 86400, "2001-01-02"},
        {-0.5, 86400, "2001-01-01"}, // the fraction is dropped before the sign is asked for
        {-1, -1, "2000-12-31"},
        {-1, -coreDataEpoch + 1, "1970-01-01"},
        {-1, -coreDataEpoch, "未知"},
        {-coreDataEpoch, -coreDataEpoch - 1, "未知"},
        {4294967296.0 - coreDataEpoch, 0, "1970-01-01"},
    };
    for (const auto &date : cases) {
        one.asset.set("ZDATECREATED", date.created).set("ZADDEDDATE", date.added);
        EXPECT_EQ(one.record().dateText, QString::fromUtf8(date.text))
            << date.created << ", added " << date.added;
    }
}

class AlbumContentsRecordBeforeIos8 : public testing::TestWithParam<Schema>
{
};

TEST_P(AlbumContentsRecordBeforeIos8, ShowsUuidBlobsAsLowerCaseHex)
{
    OneAsset one(GetParam());
    one.asset.set("ZUUID", Blob{std::string("\xAB\x00\xCD\xEF\x01", 5)});
    const CPhotoData record = one.record();
    EXPECT_EQ(record.uuid, "ab00cdef01");
    EXPECT_EQ(record.albumUuid, one.album.uuid());
    EXPECT_EQ(record.albumUuid.size(), 32U);
}

TEST_P(AlbumContentsRecordBeforeIos8, TakesTheDayOfCreationForTheDayOfAdding)
{
    OneAsset one(GetParam());
    one.asset.set("ZDATECREATED", 86400.5);
    EXPECT_EQ(one.record().addedTime, 86400);
    one.asset.set("ZDATECREATED", -coreDataEpoch);
    EXPECT_EQ(one.record().addedTime, -coreDataEpoch);
    EXPECT_EQ(one.record().dateText, QString::fromUtf8("未知"));
}

INSTANTIATE_TEST_SUITE_P(Schemas, AlbumContentsRecordBeforeIos8,
                         testing::Values(ios6, ios7, ios7SubTypes), SchemaName());

/// A value of one column of one schema, and whether it sets a flag.
struct FlagCase
{
    const char *name;
    Schema schema;
    const char *column;
    Value value;
    bool CPhotoData::*flag;
    bool isSet;
};

std::ostream &operator<<(std::ostream &stream, const FlagCase &flag)
{
    return stream << flag.name;
}

class AlbumContentsFlag : public testing::TestWithParam<FlagCase>
{
};

TEST_P(AlbumContentsFlag, DependsOnTheColumnThatTheSchemaHas)
{
    OneAsset one(GetParam().schema);
    one.asset.set(GetParam().column, GetParam().value);
    EXPECT_EQ(one.record().*GetParam().flag, GetParam().isSet);
}

constexpr auto edited = &CPhotoData::isEdited;
constexpr auto live = &CPhotoData::isLivePhoto;

// clang-format off
const FlagCase flagCases[] = {
    {"EditorIos7",               ios7,         "ZEDITORBUNDLEID",           "editor", edited, true},
    {"EditorIos7SubTypes",       ios7SubTypes, "ZEDITORBUNDLEID",           "editor", edited, true},
    {"EmptyEditorIos7",          ios7,         "ZEDITORBUNDLEID",           "",       edited, false},
    {"NoEditorIos7",             ios7,         "ZEDITORBUNDLEID",           nullptr,  edited, false},
    {"EditorIos8",               ios8,         "ZEDITORBUNDLEID",           "editor", edited, false},
    {"AdjustedIos8",             ios8,         "ZHASADJUSTMENTS",           1,        edited, false},
    {"AdjustedIos9",             ios9,         "ZHASADJUSTMENTS",           1,        edited, true},
    {"AdjustedIos11",            ios11,        "ZHASADJUSTMENTS",           1,        edited, true},
    {"AdjustedIos14",            ios14,        "ZHASADJUSTMENTS",           1,        edited, true},
    {"AdjustedIos15",            ios15,        "ZHASADJUSTMENTS",           1,        edited, true},
    {"OtherAdjustmentIos15",     ios15,        "ZHASADJUSTMENTS",           2,        edited, false},
    {"AdjustmentsStateIos18",    ios18,        "ZADJUSTMENTSSTATE",         2,        edited, true},
    {"OtherStateIos18",          ios18,        "ZADJUSTMENTSSTATE",         1,        edited, false},
    {"EditorIos18",              ios18,        "ZEDITORBUNDLEID",           "editor", edited, false},
    {"TimeScaleIos9",            ios9,         "ZVIDEOCPDURATIONTIMESCALE", 600,      live,   true},
    {"TimeScaleIos11",           ios11,        "ZVIDEOCPDURATIONTIMESCALE", 600,      live,   true},
    {"TimeScaleIos14",           ios14,        "ZVIDEOCPDURATIONTIMESCALE", -1,       live,   true},
    {"TimeScaleIos18",           ios18,        "ZVIDEOCPDURATIONTIMESCALE", 1,        live,   true},
    {"ZeroTimeScaleIos18",       ios18,        "ZVIDEOCPDURATIONTIMESCALE", 0,        live,   false},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Columns, AlbumContentsFlag, testing::ValuesIn(flagCases),
                         [](const auto &test) { return std::string(test.param.name); });
