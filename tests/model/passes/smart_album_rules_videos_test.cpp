#include "support/camera_roll_run.h"
#include "support/case_name.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

using Kind = AlbumKind;

struct Video
{
    Schema schema;
    const char *iosVersion;
    int subtype;
    Kind::Code kind;
    bool CPhotoData::*flag;

    std::string name() const
    {
        return std::to_string(subtype) + "_on_" + iosVersion + "_from_" + schema.name;
    }
};

std::ostream &operator<<(std::ostream &stream, const Video &video)
{
    return stream << video.name();
}

constexpr auto video = &CPhotoData::isVideo;
constexpr auto timelapse = &CPhotoData::isTimelapse;
constexpr auto sloMo = &CPhotoData::isSlomo;
constexpr auto recording = &CPhotoData::isScreenRecording;

constexpr Video videos[] = {
    {ios7SubTypes, "7.9", 0, Kind::Videos, video},
    {ios7SubTypes, "7.9", 101, Kind::Videos, video},
    {ios7SubTypes, "7.9", 102, Kind::Videos, video},
    {ios7SubTypes, "7.9", 103, Kind::Videos, video},
    {ios6, "6.1", 0, Kind::Videos, video},
    {ios8, "8.0", 0, Kind::Videos, video},
    {ios8, "8.0", 100, Kind::Videos, video},
    {ios8, "8.0", 101, Kind::SloMo, sloMo},
    {ios8, "8.0", 102, Kind::TimeLapse, timelapse},
    {ios8, "8.0", 103, Kind::Videos, video},
    {ios9, "10.3", 103, Kind::Videos, video},
    {ios11, "10.3", 103, Kind::Videos, video},
    {ios11, "11.0", 103, Kind::ScreenRecordings, recording},
    {ios11, "12.0", 102, Kind::TimeLapse, timelapse},
    {ios14, "14.8", 101, Kind::SloMo, sloMo},
    {ios15, "15.0", 103, Kind::ScreenRecordings, recording},
    {ios18, "18.1", 102, Kind::TimeLapse, timelapse},
    {ios18, "18.1", 104, Kind::Videos, video},
};

} // namespace

class VideoOfASubtype : public testing::TestWithParam<Video>
{
};

TEST_P(VideoOfASubtype, IsShownAsItsKindAlone)
{
    LibraryBuilder library(GetParam().schema);
    AssetRow row = library.cameraRollAsset("A.MOV").video();
    if (GetParam().subtype != 0)
        row.set("ZKINDSUBTYPE", GetParam().subtype);

    const CameraRollRun run(library, GetParam().iosVersion);

    EXPECT_EQ(run.shownIn("A.MOV"), (Kinds{Kind::CameraRoll, GetParam().kind}));
    const CPhotoData &photo = run.photo(GetParam().kind, "A.MOV");
    for (const auto flag : {video, timelapse, sloMo, recording})
        EXPECT_EQ(photo.*flag, flag == GetParam().flag);
}

INSTANTIATE_TEST_SUITE_P(Subtypes, VideoOfASubtype, testing::ValuesIn(videos), NameOfCase());

namespace {

struct UniformType
{
    const char *label;
    Value identifier;
    bool isVideo;

    std::string name() const { return label; }
};

std::ostream &operator<<(std::ostream &stream, const UniformType &type)
{
    return stream << type.label;
}

const UniformType uniformTypes[] = {
    {"QuickTime", "com.apple.quicktime-movie", true},
    {"Mpeg4", "public.mpeg-4", true},
    {"QuickTimeInCapitals", "COM.APPLE.QUICKTIME-MOVIE", false},
    {"Mpeg4WithACapital", "public.MPEG-4", false},
    {"Mpeg4WithABlank", "public.mpeg-4 ", false},
    {"Mpeg4Audio", "public.mpeg-4-audio", false},
    {"StartOfMpeg4", "public.mpeg", false},
    {"OtherMovie", "public.movie", false},
    {"Jpeg", "public.jpeg", false},
    {"Empty", "", false},
    {"Null", nullptr, false},
};

} // namespace

class AssetOfAUniformType : public testing::TestWithParam<UniformType>
{
};

TEST_P(AssetOfAUniformType, IsAVideoByTheExactName)
{
    LibraryBuilder library(ios15);
    library.asset("A.MOV").set("ZUNIFORMTYPEIDENTIFIER", GetParam().identifier);

    const CameraRollRun run(library);

    EXPECT_EQ(run.photo("A.MOV").isVideo, GetParam().isVideo);
    EXPECT_EQ(run.shownIn("A.MOV").count(Kind::Videos), GetParam().isVideo ? 1U : 0U);
}

INSTANTIATE_TEST_SUITE_P(Types, AssetOfAUniformType, testing::ValuesIn(uniformTypes), NameOfCase());

TEST(VideoSubtype, OfAPhotoSaysNothing)
{
    LibraryBuilder library(ios15);
    library.asset("A.JPG").set("ZKINDSUBTYPE", 102);

    const CameraRollRun run(library);

    EXPECT_EQ(run.shownIn("A.JPG"), Kinds{Kind::CameraRoll});
    EXPECT_FALSE(run.photo("A.JPG").isTimelapse);
}

TEST(HiddenVideo, IsShownAmongTheHiddenAlone)
{
    LibraryBuilder library(ios15);
    library.asset("A.MOV").video().set("ZHIDDEN", 1);
    EXPECT_EQ(CameraRollRun(library).shownIn("A.MOV"), Kinds{Kind::Hidden});
}
