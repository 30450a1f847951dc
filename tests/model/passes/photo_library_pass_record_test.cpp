#include "model/core_data_time.h"
#include "support/catalogue.h"
#include "support/photo_fields.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

/// The one record of the Photo Library of `library`.
class OnlyRecord
{
public:
    explicit OnlyRecord(const LibraryBuilder &library) : manager_(library)
    {
        manager_.prepare();
        manager_.GetPhotosAlbum();
    }

    const CPhotoData &operator*() const
    {
        return *manager_.plain(AlbumKind::PhotoLibrary)->photos.at(0);
    }
    const CPhotoData *operator->() const { return &**this; }

private:
    OwningManager manager_;
};

} // namespace

TEST(PhotoLibraryRecord, HasWhatTheRowSaysAndDefaultsElsewhere)
{
    LibraryBuilder library(ios15);
    const AlbumRow untitled = library.album(nullptr);
    AssetRow asset = library.asset("SYNC0001.JPG").synced().in(untitled);
    asset.set("ZTHUMBNAILINDEX", 12)
        .set("ZDIRECTORY", "PhotoData/Sync/100SYNCD")
        .set("ZORIGINALFILENAME", "北京.jpg")
        .set("ZWIDTH", 640)
        .set("ZHEIGHT", 480)
        .set("ZORIGINALFILESIZE", std::int64_t{5000000000})
        .set("ZDATECREATED", 600000000.75)
        .set("ZMODIFICATIONDATE", 600000001.5)
        .set("ZADDEDDATE", 600000002.25);

    CPhotoData expected;
    expected.thumbnailIndex = 12;
    expected.fileName = QStringLiteral("SYNC0001.JPG");
    expected.directory = QStringLiteral("PhotoData/Sync/100SYNCD");
    expected.sourceFileName = QString::fromUtf8("北京.jpg");
    expected.width = 640;
    expected.height = 480;
    expected.fileSize = 5000000000;
    expected.createdTime = 600000000.75;
    expected.modifiedTime = 600000001.5;
    expected.addedTime = 600000002.25;
    expected.uuid = asset.uuid();
    expected.albumUuid = untitled.uuid();
    expected.albumName = QString::fromUtf8("照片图库");
    expected.dateText = QStringLiteral("2020-01-06");
    expectSamePhoto(*OnlyRecord(library), expected);
}

TEST(PhotoLibraryRecord, KeepsDefaultsWhereTheRowTellsWhatTheAssetIs)
{
    LibraryBuilder library(ios15);
    library.asset("SYNC0001.DNG").synced();
    const OnlyRecord plain(library);
    library.execute("update ZASSET set ZAVALANCHEPICKTYPE = 16, ZAVALANCHEUUID = 'burst',"
                    " ZDEPTHTYPE = 1, ZFAVORITE = 1, ZHASADJUSTMENTS = 1, ZHIDDEN = 1, ZKIND = 1,"
                    " ZKINDSUBTYPE = 1, ZPACKEDBADGEATTRIBUTES = 6, ZPLAYBACKSTYLE = 2,"
                    " ZTRASHEDSTATE = 1, ZDURATION = 4.5,"
                    " ZUNIFORMTYPEIDENTIFIER = 'com.apple.quicktime-movie'");
    library.execute("update ZADDITIONALASSETATTRIBUTES set ZCAMERACAPTUREDEVICE = 1,"
                    " ZVIDEOCPDURATIONTIMESCALE = 600, ZEDITORBUNDLEID = 'editor'");
    expectSamePhoto(*OnlyRecord(library), *plain);
}

TEST(PhotoLibraryRecord, MissingTextsAndNumbersAreEmptyAndZero)
{
    LibraryBuilder library(ios11);
    AssetRow asset = library.asset("SYNC0001.JPG").synced();
    for (const char *column :
         {"ZTHUMBNAILINDEX", "ZDIRECTORY", "ZORIGINALFILENAME", "ZWIDTH", "ZHEIGHT", "ZUUID",
          "ZORIGINALFILESIZE", "ZDATECREATED", "ZMODIFICATIONDATE", "ZADDEDDATE"})
        asset.set(column, nullptr);

    CPhotoData expected;
    expected.fileName = QStringLiteral("SYNC0001.JPG");
    expected.albumName = QString::fromUtf8("照片图库");
    expected.dateText = QStringLiteral("2001-01-01");
    expectSamePhoto(*OnlyRecord(library), expected);
}

TEST(PhotoLibraryRecord, NegativeSizesCountByTheirLow32Bits)
{
    LibraryBuilder library(ios15);
    AssetRow asset = library.asset("SYNC0001.JPG").synced();
    const std::pair<std::int64_t, std::int64_t> sizes[] = {
        {-1, 4294967295}, {-1294967296, 3000000000}, {-4294967297, 4294967295}, {-4294967296, 0}};
    for (const auto &[stored, size] : sizes) {
        asset.set("ZORIGINALFILESIZE", stored);
        EXPECT_EQ(OnlyRecord(library)->fileSize, size) << stored;
    }
}

struct DateCase
{
    const char *name;
    double created;
    double added;
    const char *text;
};

std::ostream &operator<<(std::ostream &stream, const DateCase &date)
{
    return stream << date.name;
}

class PhotoLibraryDate : public testing::TestWithParam<DateCase>
{
};

TEST_P(PhotoLibraryDate, IsTheDayOfCreation)
{
    LibraryBuilder library(ios15);
    library.asset("SYNC0001.JPG")
        .synced()
        .set("ZDATECREATED", GetParam().created)
        .set("ZADDEDDATE", GetParam().added);
    EXPECT_EQ(OnlyRecord(library)->dateText, QString::fromUtf8(GetParam().text));
}

constexpr DateCase dateCases[] = {
    {"BothZero", 0, 0, "2001-01-01"},
    {"LastSecondOfADay", 86399.75, 0, "2001-01-01"},
    {"NextDay", 86400, 0, "2001-01-02"},
    {"NegativeCreatedUsesAdded", -1, 86400, "2001-01-02"},
    {"FractionBelowZeroUsesAdded", -0.5, 86400, "2001-01-02"},
    {"AddedIsIgnoredOtherwise", 86400, -coreDataEpoch, "2001-01-02"},
    {"AddedBeforeTheEpoch", -1, -1, "2000-12-31"},
    {"BothExactlyAtUnixZero", -coreDataEpoch, -coreDataEpoch, "未知"},
    {"AddedBelowUnixZero", -coreDataEpoch, -coreDataEpoch - 1, "未知"},
    {"AddedFractionOfASecondAfterUnixZero", -coreDataEpoch, -coreDataEpoch + 0.5, "未知"},
    {"AddedOneSecondAfterUnixZero", -coreDataEpoch, -coreDataEpoch + 1, "1970-01-01"},
    {"Last32BitSecond", 4294967295.0 - coreDataEpoch, 0, "2106-02-07"},
    {"WrapsAfter32Bits", 4294967296.0 - coreDataEpoch, 0, "1970-01-01"},
};

INSTANTIATE_TEST_SUITE_P(Dates, PhotoLibraryDate, testing::ValuesIn(dateCases),
                         [](const auto &test) { return std::string(test.param.name); });

class PhotoLibraryRecordBeforeIos8 : public testing::TestWithParam<Schema>
{
};

TEST_P(PhotoLibraryRecordBeforeIos8, ShowsUuidBlobsAsLowerCaseHex)
{
    LibraryBuilder library(GetParam());
    const AlbumRow untitled = library.album(nullptr).set("ZUUID", Blob{"\x0F\xA0"});
    AssetRow asset = library.asset("SYNC0001.JPG").synced().in(untitled);
    asset.set("ZUUID", Blob{std::string("\xAB\x00\xCD\xEF\x01", 5)});
    const OnlyRecord record(library);
    EXPECT_EQ(record->uuid, "ab00cdef01");
    EXPECT_EQ(record->albumUuid, "0fa0");
}

TEST_P(PhotoLibraryRecordBeforeIos8, StaysWithoutUuidWhereTheBlobIsEmptyOrMissing)
{
    LibraryBuilder library(GetParam());
    AssetRow asset = library.asset("SYNC0001.JPG").synced();
    asset.in(library.album(nullptr).set("ZUUID", nullptr));
    for (const Value &missing : {Value(Blob{}), Value(nullptr)}) {
        asset.set("ZUUID", missing);
        const OnlyRecord record(library);
        EXPECT_EQ(record->uuid, "");
        EXPECT_EQ(record->albumUuid, "");
    }
}

TEST_P(PhotoLibraryRecordBeforeIos8, TakesTheDayOfCreationForTheDayOfAdding)
{
    LibraryBuilder library(GetParam());
    AssetRow asset = library.asset("SYNC0001.JPG").synced().set("ZDATECREATED", 86400.5);
    EXPECT_EQ(OnlyRecord(library)->addedTime, 86400.5);
    EXPECT_EQ(OnlyRecord(library)->dateText, QStringLiteral("2001-01-02"));
    asset.set("ZDATECREATED", -1.5);
    EXPECT_EQ(OnlyRecord(library)->addedTime, -1.5);
    EXPECT_EQ(OnlyRecord(library)->dateText, QStringLiteral("2000-12-31"));
    asset.set("ZDATECREATED", -coreDataEpoch);
    EXPECT_EQ(OnlyRecord(library)->dateText, QString::fromUtf8("未知"));
}

INSTANTIATE_TEST_SUITE_P(Schemas, PhotoLibraryRecordBeforeIos8,
                         testing::Values(ios6, ios7, ios7SubTypes), SchemaName());
