#include "support/album_contents.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

/// A kind of photo that an album collects, and what makes an asset one.
struct Collected
{
    AlbumKind::Code kind;
    bool CPhotoData::*flag;
};

constexpr Collected panoramas = {AlbumKind::Panoramas, &CPhotoData::isPanorama};
constexpr Collected screenshots = {AlbumKind::Screenshots, &CPhotoData::isScreenshot};
constexpr Collected portraits = {AlbumKind::Portrait, &CPhotoData::isPortrait};
constexpr Collected selfies = {AlbumKind::Selfies, &CPhotoData::isSelfie};
constexpr Collected everyKind[] = {panoramas, screenshots, portraits, selfies};

struct Columns
{
    const char *first;
    int firstValue;
    const char *second = nullptr;
    int secondValue = 0;

    void set(AssetRow asset) const
    {
        asset.set(first, firstValue);
        if (second != nullptr)
            asset.set(second, secondValue);
    }
};

struct CollectCase
{
    const char *name;
    Schema schema;
    Columns columns;
    Collected expected;
    bool isCollected;
};

std::ostream &operator<<(std::ostream &stream, const CollectCase &testCase)
{
    return stream << testCase.name;
}

} // namespace

class CollectingAlbum : public testing::TestWithParam<CollectCase>
{
};

TEST_P(CollectingAlbum, TakesACopyOfEachPhotoOfItsKind)
{
    const CollectCase &test = GetParam();
    LibraryBuilder library(test.schema);
    const AlbumRow holiday = library.album("Holiday").set("ZKIND", 1);
    test.columns.set(library.asset("IMG_0001.JPG").in(holiday));

    const AlbumContents contents(library);

    for (const Collected &collected : everyKind) {
        SCOPED_TRACE(collected.kind);
        const bool isCollected = test.isCollected && collected.kind == test.expected.kind;
        EXPECT_EQ(contents.photo(holiday).*collected.flag, isCollected);
        EXPECT_EQ(files(contents.plain(collected.kind)),
                  isCollected ? Files{"IMG_0001.JPG"} : Files());
        EXPECT_EQ(files(contents.smart(collected.kind)), Files());
    }
}

// clang-format off
constexpr CollectCase collectCases[] = {
    {"PanoramaIos7",        ios7SubTypes, {"ZKINDSUBTYPE", 1},                             panoramas,   true},
    {"PanoramaIos8",        ios8,         {"ZKINDSUBTYPE", 1},                             panoramas,   true},
    {"PanoramaIos18",       ios18,        {"ZKINDSUBTYPE", 1},                             panoramas,   true},
    {"OtherSubType",        ios18,        {"ZKINDSUBTYPE", 2},                             panoramas,   false},
    {"ScreenshotIos7",      ios7SubTypes, {"ZKINDSUBTYPE", 10, "ZSAVEDASSETTYPE", 256},    screenshots, true},
    {"ScreenshotIos9",      ios9,         {"ZKINDSUBTYPE", 10, "ZSAVEDASSETTYPE", 256},    screenshots, true},
    {"ScreenshotIos15",     ios15,        {"ZKINDSUBTYPE", 10, "ZSAVEDASSETTYPE", 256},    screenshots, true},
    {"ScreenshotOfCamera",  ios15,        {"ZKINDSUBTYPE", 10, "ZSAVEDASSETTYPE", 3},      screenshots, false},
    {"SyncedPhoto",         ios15,        {"ZKINDSUBTYPE", 0,  "ZSAVEDASSETTYPE", 256},    screenshots, false},
    {"DepthIos11",          ios11,        {"ZDEPTHSTATES", 2},                             portraits,   true},
    {"OtherDepthIos11",     ios11,        {"ZDEPTHSTATES", 1},                             portraits,   false},
    {"DepthIos14",          ios14,        {"ZDEPTHTYPE", 1},                               portraits,   true},
    {"DepthIos18",          ios18,        {"ZDEPTHTYPE", 1},                               portraits,   true},
    {"OtherDepthIos14",     ios14,        {"ZDEPTHTYPE", 2},                               portraits,   false},
    {"FrontCameraIos9",     ios9,         {"ZCAMERACAPTUREDEVICE", 1},                     selfies,     true},
    {"FrontCameraIos11",    ios11,        {"ZCAMERACAPTUREDEVICE", 1},                     selfies,     true},
    {"FrontCameraIos14",    ios14,        {"ZCAMERACAPTUREDEVICE", 1},                     selfies,     true},
    {"BackCamera",          ios14,        {"ZCAMERACAPTUREDEVICE", 0},                     selfies,     false},
    {"AnotherCamera",       ios14,        {"ZCAMERACAPTUREDEVICE", 2},                     selfies,     false},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Kinds, CollectingAlbum, testing::ValuesIn(collectCases),
                         [](const auto &test) { return std::string(test.param.name); });
