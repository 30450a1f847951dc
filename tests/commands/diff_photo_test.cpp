#include "support/case_name.h"
#include "support/two_snapshots.h"

#include <gtest/gtest.h>

#include <functional>

using namespace iosphoto::test;

namespace {

/// What happened to a photo between two snapshots.
struct PhotoStory
{
    const char *title;
    const char *row;     ///< of the table
    const char *summary; ///< below it
    std::function<void(AssetRow &, AssetRow &)> change;

    std::string name() const { return title; }
};

void PrintTo(const PhotoStory &story, std::ostream *out)
{
    *out << story.title;
}

const PhotoStory photoStories[] = {
    {"Trashed", "trashed  DCIM/100APPLE/IMG_0002.JPG", "1 trashed",
     [](AssetRow &, AssetRow &now) { now.trashedAt(TwoSnapshots::justNow()); }},
    {"Restored", "restored  DCIM/100APPLE/IMG_0002.JPG", "1 restored",
     [](AssetRow &old, AssetRow &) { old.trashedAt(TwoSnapshots::justNow()); }},
    {"Edited", "edited  DCIM/100APPLE/IMG_0002.JPG", "1 edited",
     [](AssetRow &, AssetRow &now) { now.set("ZHASADJUSTMENTS", 1); }},
    {"EditUndone", "edited  DCIM/100APPLE/IMG_0002.JPG  edit undone", "1 edited",
     [](AssetRow &old, AssetRow &) { old.set("ZHASADJUSTMENTS", 1); }},
    {"EditedAgainLater", "edited  DCIM/100APPLE/IMG_0002.JPG  edited again", "1 edited",
     [](AssetRow &old, AssetRow &now) {
         old.set("ZHASADJUSTMENTS", 1);
         now.set("ZHASADJUSTMENTS", 1).set("ZMODIFICATIONDATE", 600000000);
     }},
    {"CroppedAgain", "edited  DCIM/100APPLE/IMG_0002.JPG  edited again", "1 edited",
     [](AssetRow &old, AssetRow &now) {
         old.set("ZHASADJUSTMENTS", 1);
         now.set("ZHASADJUSTMENTS", 1).set("ZWIDTH", 100);
     }},
    {"EditedAgainToAnotherSize", "edited  DCIM/100APPLE/IMG_0002.JPG  edited again", "1 edited",
     [](AssetRow &old, AssetRow &now) {
         old.set("ZHASADJUSTMENTS", 1);
         now.set("ZHASADJUSTMENTS", 1).set("ZORIGINALFILESIZE", 5);
     }},
    {"MadeFavorite", "changed  DCIM/100APPLE/IMG_0002.JPG  now a favorite", "1 changed",
     [](AssetRow &, AssetRow &now) { now.set("ZFAVORITE", 1); }},
    {"MadeNoFavorite", "changed  DCIM/100APPLE/IMG_0002.JPG  no longer a favorite", "1 changed",
     [](AssetRow &old, AssetRow &) { old.set("ZFAVORITE", 1); }},
    {"Hidden", "changed  DCIM/100APPLE/IMG_0002.JPG  now hidden", "1 changed",
     [](AssetRow &, AssetRow &now) { now.set("ZHIDDEN", 1); }},
    {"Shown", "changed  DCIM/100APPLE/IMG_0002.JPG  no longer hidden", "1 changed",
     [](AssetRow &old, AssetRow &) { old.set("ZHIDDEN", 1); }},
    {"Renamed", "changed  DCIM/100APPLE/Party.JPG  was named IMG_0002.JPG", "1 changed",
     [](AssetRow &, AssetRow &now) { now.set("ZFILENAME", "Party.JPG"); }},
    {"RenamedAcrossLines", "changed  DCIM/100APPLE/Party\\n🎉.JPG  was named IMG_0002.JPG",
     "1 changed", [](AssetRow &, AssetRow &now) { now.set("ZFILENAME", "Party\n🎉.JPG"); }},
    {"Dated", "changed  DCIM/100APPLE/IMG_0002.JPG  has another time of creation", "1 changed",
     [](AssetRow &, AssetRow &now) { now.set("ZDATECREATED", 1000); }},
    {"Undated", "changed  DCIM/100APPLE/IMG_0002.JPG  differs in created", "1 changed",
     [](AssetRow &old, AssetRow &now) {
         old.set("ZDATECREATED", 0);
         now.set("ZDATECREATED", nullptr);
     }},
    {"ModifiedAlone", "changed  DCIM/100APPLE/IMG_0002.JPG  differs in modified", "1 changed",
     [](AssetRow &, AssetRow &now) { now.set("ZMODIFICATIONDATE", 600000000); }},
    {"InAnotherFolder", "changed  DCIM/101APPLE/IMG_0002.JPG  was in DCIM/100APPLE", "1 changed",
     [](AssetRow &, AssetRow &now) { now.set("ZDIRECTORY", "DCIM/101APPLE"); }},
    {"OfOtherSizesWithoutAnEdit",
     "changed  DCIM/100APPLE/IMG_0002.JPG  differs in width, height, fileSize", "1 changed",
     [](AssetRow &, AssetRow &now) {
         now.set("ZWIDTH", 1).set("ZHEIGHT", 2).set("ZORIGINALFILESIZE", 3);
     }},
    {"OfAnotherOrigin",
     "changed  DCIM/100APPLE/IMG_0002.JPG  differs in originalFileName, duration, added",
     "1 changed",
     [](AssetRow &, AssetRow &now) {
         now.set("ZORIGINALFILENAME", "X").set("ZDURATION", 1.5).set("ZADDEDDATE", 7);
     }},
    {"OfAnotherKind", "changed  DCIM/100APPLE/IMG_0002.JPG  differs in isSelfie", "1 changed",
     [](AssetRow &, AssetRow &now) { now.set("ZCAMERACAPTUREDEVICE", 1); }},
    {"TrashedAgain", "changed  DCIM/100APPLE/IMG_0002.JPG  differs in trashed", "1 changed",
     [](AssetRow &old, AssetRow &now) {
         old.trashedAt(600000000);
         now.trashedAt(600100000);
     }},
    {"TrashedWithAnotherChange",
     "trashed, changed  DCIM/100APPLE/IMG_0002.JPG  differs in modified", "1 trashed, 1 changed",
     [](AssetRow &, AssetRow &now) {
         now.trashedAt(600000000).set("ZMODIFICATIONDATE", 600000000);
     }},
    {"SeveralThings",
     "edited, changed  DCIM/100APPLE/Party.JPG  now a favorite, was named IMG_0002.JPG",
     "1 edited, 1 changed",
     [](AssetRow &, AssetRow &now) {
         now.set("ZHASADJUSTMENTS", 1).set("ZFAVORITE", 1).set("ZFILENAME", "Party.JPG");
     }},
    {"FavoriteHidden", "changed  DCIM/100APPLE/IMG_0002.JPG  now hidden", "1 changed",
     [](AssetRow &old, AssetRow &now) {
         old.set("ZFAVORITE", 1);
         now.set("ZFAVORITE", 1).set("ZHIDDEN", 1);
     }},
    {"FavoriteTrashed", "trashed  DCIM/100APPLE/IMG_0002.JPG", "1 trashed",
     [](AssetRow &old, AssetRow &now) {
         old.set("ZFAVORITE", 1);
         now.set("ZFAVORITE", 1).trashedAt(TwoSnapshots::justNow());
     }},
};

} // namespace

class ToolDiffOfPhoto : public testing::TestWithParam<PhotoStory>
{
};

TEST_P(ToolDiffOfPhoto, TellsWhatHappened)
{
    TwoSnapshots phone;
    std::vector<AssetRow> photos;
    for (LibraryBuilder *library : {&phone.before, &phone.after}) {
        library->asset("IMG_0001.JPG");
        photos.push_back(library->asset("IMG_0002.JPG"));
        library->asset("IMG_0003.JPG");
    }
    GetParam().change(photos[0], photos[1]);

    const ToolRun run = phone.diff();

    EXPECT_EQ(rowsAndSummary(run),
              std::string(GetParam().row) + "\n\n" + GetParam().summary + "\n");
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 1);
}

INSTANTIATE_TEST_SUITE_P(Stories, ToolDiffOfPhoto, testing::ValuesIn(photoStories), NameOfCase());
