// What a photo is, its row says, wherever the library shows the photo or leaves it out.
#include "support/run_on.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <functional>
#include <map>
#include <set>

using namespace iosphoto::test;
using nlohmann::json;
using testing::HasSubstr;

namespace {

using Flags = std::set<std::string>;

/// Something that a row says of its photo.
struct Feature
{
    const char *name;
    int firstIos;
    int lastIos;
    Flags flags;
    std::function<void(AssetRow &)> set;
};

constexpr int newest = 99;

const Feature features[] = {
    {"plain", 6, newest, {}, [](AssetRow & /*row*/) {}},
    {"video", 6, newest, {"isVideo"}, [](AssetRow &row) { row.video(); }},
    {"videoOfAnotherType",
     6,
     newest,
     {"isVideo"},
     [](AssetRow &row) {
         row.set("ZKIND", 1).set("ZUNIFORMTYPEIDENTIFIER", "com.apple.m4v-video");
     }},
    {"timelapse",
     8,
     newest,
     {"isTimelapse"},
     [](AssetRow &row) { row.video().set("ZKINDSUBTYPE", 102); }},
    {"slomo", 8, newest, {"isSlomo"}, [](AssetRow &row) { row.video().set("ZKINDSUBTYPE", 101); }},
    {"slomoOfAnotherType",
     8,
     newest,
     {"isSlomo"},
     [](AssetRow &row) {
         row.set("ZKIND", 1).set("ZKINDSUBTYPE", 101).set("ZUNIFORMTYPEIDENTIFIER", "public.avi");
     }},
    {"screenRecording",
     11,
     newest,
     {"isScreenRecording"},
     [](AssetRow &row) { row.video().set("ZKINDSUBTYPE", 103); }},
    {"panorama", 8, newest, {"isPanorama"}, [](AssetRow &row) { row.set("ZKINDSUBTYPE", 1); }},
    {"oldScreenshot",
     8,
     8,
     {"isScreenshot"},
     [](AssetRow &row) { row.set("ZEMBEDDEDTHUMBNAILHEIGHT", 0); }},
    {"screenshot", 9, newest, {"isScreenshot"}, [](AssetRow &row) { row.set("ZKINDSUBTYPE", 10); }},
    {"live",
     9,
     newest,
     {"isLivePhoto"},
     [](AssetRow &row) { row.set("ZVIDEOCPDURATIONTIMESCALE", 600); }},
    {"selfie", 9, newest, {"isSelfie"}, [](AssetRow &row) { row.set("ZCAMERACAPTUREDEVICE", 1); }},
    {"oldPortrait", 11, 13, {"isPortrait"}, [](AssetRow &row) { row.set("ZDEPTHSTATES", 2); }},
    {"portrait", 14, newest, {"isPortrait"}, [](AssetRow &row) { row.set("ZDEPTHTYPE", 1); }},
    {"animated", 11, newest, {"isAnimated"}, [](AssetRow &row) { row.set("ZPLAYBACKSTYLE", 2); }},
    {"raw", 15, newest, {"isRaw"}, [](AssetRow &row) { row.set("ZPACKEDBADGEATTRIBUTES", 6); }},
    {"prores",
     15,
     newest,
     {"isProRes"},
     [](AssetRow &row) { row.set("ZPACKEDBADGEATTRIBUTES", 8); }},
    {"favorite", 8, newest, {"isFavorite"}, [](AssetRow &row) { row.set("ZFAVORITE", 1); }},
    {"edited", 8, 17, {"isEdited"}, [](AssetRow &row) { row.set("ZHASADJUSTMENTS", 1); }},
    {"editedLately",
     18,
     newest,
     {"isEdited"},
     [](AssetRow &row) { row.set("ZADJUSTMENTSSTATE", 2); }},
    {"selfieLiveFavorite",
     9,
     newest,
     {"isSelfie", "isLivePhoto", "isFavorite"},
     [](AssetRow &row) {
         row.set("ZCAMERACAPTUREDEVICE", 1)
             .set("ZVIDEOCPDURATIONTIMESCALE", 600)
             .set("ZFAVORITE", 1);
     }},
};

constexpr int referenced = 10;

/// Where the library shows a photo, or why it does not.
const Feature places[] = {
    {"CameraRoll", 6, newest, {}, [](AssetRow & /*row*/) {}},
    {"Hidden", 9, newest, {"isHidden"}, [](AssetRow &row) { row.set("ZHIDDEN", 1); }},
    {"Trash",
     8,
     newest,
     {"isDeleted"},
     [](AssetRow &row) { row.trashedAt(readingTime - 3 * days); }},
    {"EmptiedTrash",
     8,
     newest,
     {"isDeleted"},
     [](AssetRow &row) { row.trashedAt(readingTime - 300 * days); }},
    {"HiddenTrash",
     9,
     newest,
     {"isHidden", "isDeleted"},
     [](AssetRow &row) { row.trashedAt(readingTime - 3 * days).set("ZHIDDEN", 1); }},
    {"BurstFrame",
     8,
     newest,
     {"isBurst"},
     [](AssetRow &row) { row.set("ZAVALANCHEUUID", "BURST").set("ZAVALANCHEPICKTYPE", 2); }},
    {"Synced", 6, newest, {}, [](AssetRow &row) { row.synced(); }},
    {"Referenced", 6, newest, {}, [](AssetRow &row) { row.set("ZSAVEDASSETTYPE", referenced); }},
};

Flags trueFlags(const json &photo)
{
    Flags flags;
    for (const auto &[key, value] : photo.items()) {
        EXPECT_FALSE(key.rfind("is", 0) == 0 && value.is_null()) << key;
        if (key.rfind("is", 0) == 0 && value == true)
            flags.insert(key);
    }
    return flags;
}

bool isVideo(const Flags &flags)
{
    return flags.count("isVideo") + flags.count("isTimelapse") + flags.count("isSlomo") +
               flags.count("isScreenRecording") >
           0;
}

std::vector<json> photosOf(const LibraryBuilder &library, const std::vector<std::string> &device)
{
    std::vector<std::string> arguments = {
        "photos", library.path(), "--json", "--frames", "--with-left-out", "--as-of", "2020-01-10"};
    arguments.insert(arguments.end(), device.begin(), device.end());
    return json::parse(runTool(arguments).out).at("photos");
}

bool has(const Schema &schema, const Feature &feature)
{
    return feature.firstIos <= iosOf(schema) && iosOf(schema) <= feature.lastIos;
}

/// An old screenshot is told by what a camera's photos lack, so others and frames are none.
bool excludes(const Feature &place, const Feature &feature)
{
    const bool isScreenshot = feature.flags.count("isScreenshot") > 0;
    const bool isSynced = std::string(place.name) == "Synced";
    const bool isReferenced = std::string(place.name) == "Referenced";
    return isScreenshot && (place.flags.count("isBurst") > 0 ||
                            (feature.lastIos == 8 && (isSynced || isReferenced)));
}

class FlagsOfSchema : public testing::TestWithParam<Schema>
{
protected:
    /// Every feature in a place.
    void add(const Feature &place, bool isInAlbum)
    {
        for (const Feature &feature : features) {
            if (!has(GetParam(), feature) || excludes(place, feature))
                continue;
            const std::string name =
                std::string(place.name) + "." + feature.name + (isInAlbum ? ".inAlbum" : "");
            AssetRow row = library_.cameraRollAsset(name + ".DNG");
            feature.set(row);
            place.set(row);
            if (isInAlbum)
                row.in(album_);
            Flags &flags = expected_[name + ".DNG"];
            flags = place.flags;
            flags.insert(feature.flags.begin(), feature.flags.end());
        }
    }

    LibraryBuilder library_{GetParam()};
    AlbumRow album_ = library_.album("Trip");
    std::map<std::string, Flags> expected_;
};

} // namespace

TEST_P(FlagsOfSchema, AreThoseOfTheRowInEveryPlace)
{
    for (const Feature &place : places) {
        if (!has(GetParam(), place))
            continue;
        add(place, false);
        add(place, true);
    }
    const std::vector<json> photos =
        photosOf(library_, {"--ios", GetParam().iosVersion, "--product", GetParam().productType});
    EXPECT_EQ(photos.size(), expected_.size());
    for (const json &photo : photos) {
        const std::string name = photo["fileName"];
        EXPECT_EQ(trueFlags(photo), expected_[name]) << name << " " << photo["leftOutBecause"];
        EXPECT_EQ(photo["mediaKind"], isVideo(expected_[name]) ? "video" : "photo") << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Schemas, FlagsOfSchema, testing::ValuesIn(allSchemas), SchemaName());

TEST(PhotoFlags, DoNotGoByTheModel)
{
    LibraryBuilder library(ios15);
    library.asset("RAW.DNG").set("ZPACKEDBADGEATTRIBUTES", 6);
    library.asset("PRORES.MOV").set("ZPACKEDBADGEATTRIBUTES", 8);
    library.asset("PANORAMA.JPG").set("ZKINDSUBTYPE", 1);
    const std::vector<json> photos = photosOf(library, {"--ios", "17.4", "--product", "iPod9,1"});
    ASSERT_EQ(photos.size(), 3U);
    EXPECT_EQ(trueFlags(photos[0]), Flags{"isRaw"});
    EXPECT_EQ(trueFlags(photos[1]), Flags{"isProRes"});
    EXPECT_EQ(trueFlags(photos[2]), Flags{"isPanorama"});
}

class FlagsOfHiddenPhoto : public testing::Test
{
protected:
    FlagsOfHiddenPhoto()
    {
        library_.asset("PHOTO.JPG");
        library_.asset("VIDEO.MOV").video().set("ZFAVORITE", 1).set("ZHIDDEN", 1);
    }

    std::string shown(const std::vector<std::string> &options) const
    {
        std::vector<std::string> all = {"--csv", "--fields", "fileName"};
        all.insert(all.end(), options.begin(), options.end());
        return runOn(library_, "photos", all).out;
    }

    LibraryBuilder library_{ios15};
    const std::string video_ = "fileName\r\nVIDEO.MOV\r\n";
};

TEST_F(FlagsOfHiddenPhoto, AreAskedForByOptions)
{
    EXPECT_EQ(shown({"--favorite"}), video_);
    EXPECT_EQ(shown({"--kind", "video"}), video_);
    EXPECT_EQ(shown({"--kind", "favorite"}), video_);
    EXPECT_EQ(shown({"--where", "isFavorite and mediaKind = 'video'"}), video_);
}

TEST_F(FlagsOfHiddenPhoto, AreCounted)
{
    const json counts = json::parse(runOn(library_, "info", {"--json"}).out)["counts"];
    std::map<std::string, int> ofKind;
    for (const json &count : counts)
        ofKind[count["kind"]] = count["count"];
    EXPECT_EQ(ofKind["photo"], 1);
    EXPECT_EQ(ofKind["video"], 1);
    EXPECT_EQ(ofKind["favorite"], 1);
}

TEST_F(FlagsOfHiddenPhoto, PutItIntoNoAlbum)
{
    const json photos =
        json::parse(runOn(library_, "photos", {"--json", "--favorite"}).out)["photos"];
    ASSERT_EQ(photos.size(), 1U);
    ASSERT_EQ(photos[0]["albums"].size(), 1U);
    EXPECT_EQ(photos[0]["albums"][0]["kind"], "hidden");
    EXPECT_THAT(runOn(library_, "albums").out, Not(HasSubstr("Favorites")));
}

TEST_F(FlagsOfHiddenPhoto, AreCompared)
{
    LibraryBuilder after(ios15);
    after.asset("PHOTO.JPG");
    after.asset("VIDEO.MOV").video().set("ZHIDDEN", 1);
    EXPECT_THAT(runTool({"diff", library_.path(), after.path()}).out,
                HasSubstr("VIDEO.MOV  no longer a favorite\n"));
}

TEST(FlagsOfBurst, FoldSyncedFramesLikeOthers)
{
    LibraryBuilder library(ios15);
    for (const char *const name : {"1.JPG", "2.JPG"})
        library.asset(name).synced().set("ZAVALANCHEUUID", "BURST").set("ZAVALANCHEPICKTYPE", 16);
    EXPECT_EQ(json::parse(runOn(library, "photos", {"--json"}).out)["photos"].size(), 1U);
    EXPECT_EQ(json::parse(runOn(library, "photos", {"--json", "--frames"}).out)["photos"].size(),
              2U);
}
