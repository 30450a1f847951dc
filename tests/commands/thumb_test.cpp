#include "ios_photo.h"
#include "ithmb/ithmb.h"
#include "support/case_name.h"
#include "support/expect_failure.h"
#include "support/run_tool.h"
#include "support/sample_thumb_cache.h"
#include "support/temporary_folder.h"

#include <QImage>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <array>

using namespace iosphoto::test;
using testing::ElementsAre;
using testing::HasSubstr;

namespace fs = std::filesystem;

namespace {

void expectGood(const ToolRun &run, const std::string &out)
{
    EXPECT_EQ(run.out, out);
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
}

std::string decodedByLibrary(const fs::path &cache, int index)
{
    constexpr int largestImage = 55178;
    std::array<char, largestImage> image = {};
    int width = 0;
    int height = 0;
    int size = 0;
    EXPECT_EQ(ios_photo_get_thumb(cache.c_str(), index, image.data(), width, height, size), 0);
    return {image.data(), static_cast<std::size_t>(size)};
}

/// The colour that a program shows for a 5-5-5 pixel.
QRgb colourOf(std::uint16_t pixel)
{
    const auto part = [=](int shift) {
        const int value = pixel >> shift & 0x1F;
        return value << 3 | value >> 2;
    };
    return qRgb(part(10), part(5), part(0));
}

/// Whether the first thumbnail of the sample, 80x60, stands at a place of an image.
bool showsFirstThumbnail(const QImage &image, QPoint place)
{
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 80; ++x)
            if (image.pixel(place + QPoint(x, y)) != colourOf(pixelsOf(0)(20 + x, 30 + y)))
                return false;
    return true;
}

bool hasInk(const QImage &image, const QRect &area)
{
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (image.pixel(x, y) != image.pixel(0, 0))
                return true;
    return false;
}

} // namespace

class ToolThumb : public testing::Test
{
protected:
    ToolThumb() : cache_(folder_ / "120x120.ithmb")
    {
        writeFile(cache_, sampleThumbCache(120).bytes());
    }

    ToolRun thumb(std::vector<std::string> arguments) const
    {
        arguments.insert(arguments.begin(), {"thumb", cache_.string()});
        return runTool(arguments);
    }

    static std::string thereAlready(const fs::path &file)
    {
        return quoted(file) + " is there already and is not replaced; choose another name, or "
                              "replace it with --force\n";
    }

    TemporaryFolder folder_;
    fs::path cache_;
};

TEST_F(ToolThumb, ListsFormatRecordsAndSizes)
{
    expectGood(thumb({}), "format 120, 6 records of 28,828 bytes, 3 with a thumbnail\n"
                          "\n"
                          "INDEX  PIXELS  BMP BYTES\n"
                          "    0   80x60      9,666\n"
                          "    1   60x80      9,666\n"
                          "    3   77x77     12,078\n");
}

TEST_F(ToolThumb, ListsAsJson)
{
    const ToolRun run = thumb({"--json"});
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
    const auto document = nlohmann::json::parse(run.out);
    EXPECT_EQ(document["cache"], cache_.string());
    EXPECT_EQ(document["format"], 120);
    EXPECT_EQ(document["recordSize"], 28828);
    EXPECT_EQ(document["recordCount"], 6);
    EXPECT_EQ(document["thumbnailCount"], 3);
    EXPECT_EQ(document["isComplete"], true);
    EXPECT_TRUE(document["sheets"].empty());
    ASSERT_EQ(document["thumbnails"].size(), 3);
    const nlohmann::json last = {{"index", 3},        {"width", 77},     {"height", 77},
                                 {"bmpBytes", 12078}, {"file", nullptr}, {"fileBytes", nullptr}};
    EXPECT_EQ(document["thumbnails"][2], last);
}

TEST_F(ToolThumb, WritesOneAsTheLibraryDecodesIt)
{
    for (const char *name : {"a.bmp", "b.BMP", "c"}) {
        const fs::path file = folder_ / name;
        expectGood(thumb({"--index", "3", "-o", file.string()}), "wrote " + file.string() + "\n");
        EXPECT_EQ(readFile(file), decodedByLibrary(cache_, 3));
    }
}

TEST_F(ToolThumb, WritesOneAsPngWhereTheFileIsNamedSo)
{
    const fs::path file = folder_ / "one.Png";
    expectGood(thumb({"--index", "0", "-o", file.string()}), "wrote " + file.string() + "\n");
    const QImage picture(QString::fromStdString(file.string()), "PNG");
    ASSERT_EQ(picture.size(), QSize(80, 60));
    EXPECT_TRUE(showsFirstThumbnail(picture, {0, 0}));
}

TEST_F(ToolThumb, TakesAnIndexAsFilesAreNamed)
{
    ThumbCacheBuilder cache(78);
    for (int number = 0; number < 11; ++number)
        cache.thumbnail(78, 78, pixelsOf(number));
    writeFile(cache_, cache.bytes());
    EXPECT_EQ(thumb({"--index", "0010", "-o", (folder_ / "one.bmp").string()}).status, 0);
    EXPECT_EQ(readFile(folder_ / "one.bmp"), decodedByLibrary(cache_, 10));
}

TEST_F(ToolThumb, ReplacesTheTargetOfALinkAndKeepsItsRights)
{
    writeFile(folder_ / "target", "old");
    fs::permissions(folder_ / "target", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("target", folder_ / "link.bmp");
    EXPECT_EQ(thumb({"--index", "0", "-o", (folder_ / "link.bmp").string(), "--force"}).status, 0);
    EXPECT_TRUE(fs::is_symlink(folder_ / "link.bmp"));
    EXPECT_EQ(readFile(folder_ / "target"), decodedByLibrary(cache_, 0));
    EXPECT_EQ(fs::status(folder_ / "target").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(ToolThumb, ReplacesAFileThatIsThereOnlyWhenForced)
{
    const fs::path file = folder_ / "one.bmp";
    writeFile(file, "old");
    expectFailure(thumb({"--index", "0", "-o", file.string()}), thereAlready(file), 3);
    EXPECT_EQ(readFile(file), "old");
    EXPECT_EQ(thumb({"--index", "0", "-o", file.string(), "--force"}).status, 0);
    EXPECT_EQ(readFile(file), decodedByLibrary(cache_, 0));
}

TEST_F(ToolThumb, WritesNothingWhereOneOfManyIsThere)
{
    const fs::path last = folder_ / "all/0003.bmp";
    fs::create_directories(last.parent_path());
    writeFile(last, "old");
    const std::vector<std::string> arguments = {"--all", "-o", last.parent_path().string()};
    expectFailure(thumb(arguments), thereAlready(last), 3);
    EXPECT_EQ(std::distance(fs::directory_iterator(last.parent_path()), {}), 1);
    EXPECT_EQ(readFile(last), "old");

    EXPECT_EQ(thumb({"--all", "-o", last.parent_path().string(), "--force"}).status, 0);
    EXPECT_EQ(readFile(last), decodedByLibrary(cache_, 3));
}

TEST_F(ToolThumb, ReplacesNoSheetThatIsThereUnlessForced)
{
    const fs::path sheet = folder_ / "sheet.png";
    writeFile(sheet, "old");
    expectFailure(thumb({"--sheet", sheet.string()}), thereAlready(sheet), 3);
    EXPECT_EQ(readFile(sheet), "old");
    EXPECT_EQ(thumb({"--sheet", sheet.string(), "--force"}).status, 0);
    EXPECT_NE(readFile(sheet), "old");
}

TEST_F(ToolThumb, ReplacesNoLinkToNowhereUnlessForced)
{
    const fs::path link = folder_ / "link.bmp";
    fs::create_symlink("nowhere", link);
    expectFailure(thumb({"--index", "0", "-o", link.string()}), thereAlready(link), 3);
    EXPECT_TRUE(fs::is_symlink(link));
}

TEST_F(ToolThumb, WritesAllIntoANewFolder)
{
    const fs::path folder = folder_ / "new/pictures";
    expectGood(thumb({"--all", "-o", folder.string()}),
               "wrote 3 files, " + (folder / "0000.bmp").string() + " to " +
                   (folder / "0003.bmp").string() + "\n");
    for (const int index : {0, 1, 3})
        EXPECT_EQ(readFile(folder / ("000" + std::to_string(index) + ".bmp")),
                  decodedByLibrary(cache_, index));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 3);
}

TEST_F(ToolThumb, WritesAllAsPngAndSaysTheNamesInJson)
{
    const fs::path folder = folder_ / "pictures";
    const ToolRun run = thumb({"--all", "--png", "-o", folder.string(), "--json"});
    EXPECT_EQ(run.status, 0);
    const auto document = nlohmann::json::parse(run.out);
    const std::string first = document["thumbnails"][0]["file"];
    EXPECT_EQ(first, (folder / "0000.png").string());
    EXPECT_TRUE(showsFirstThumbnail(QImage(QString::fromStdString(first), "PNG"), {0, 0}));
}

TEST_F(ToolThumb, DrawsAContactSheetWithAnIndexUnderEachPicture)
{
    const fs::path file = folder_ / "sheet.png";
    expectGood(thumb({"--sheet", file.string()}), "wrote " + file.string() + "\n");
    const QImage sheet(QString::fromStdString(file.string()), "PNG");
    constexpr int cell = 120 + 2 * 8;
    constexpr int cellHeight = 120 + 3 * 8 + 14;
    ASSERT_EQ(sheet.size(), QSize(3 * cell, cellHeight));
    EXPECT_TRUE(showsFirstThumbnail(sheet, {8 + 20, 8 + 60}));
    for (int place = 0; place < 3; ++place)
        EXPECT_TRUE(hasInk(sheet, {place * cell, 8 + 120 + 8, cell, 14})) << place;
    EXPECT_FALSE(hasInk(sheet, {0, 8 + 120 + 1, 3 * cell, 6}));
}

TEST_F(ToolThumb, GoesToFurtherSheetsWhereOneIsFull)
{
    ThumbCacheBuilder cache(78);
    for (int number = 0; number < 501; ++number)
        cache.thumbnail(78, 78, [](int, int) { return 1; });
    writeFile(cache_, cache.bytes());
    const ToolRun run = thumb({"--sheet", (folder_ / "sheet.png").string(), "--json"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(nlohmann::json::parse(run.out)["sheets"],
                ElementsAre((folder_ / "sheet.png").string(), (folder_ / "sheet-2.png").string()));
    const QImage second(QString::fromStdString((folder_ / "sheet-2.png").string()), "PNG");
    EXPECT_EQ(second.width(), 78 + 2 * 8);
}

TEST_F(ToolThumb, NeedsNoDisplayAndLeavesNothingBehind)
{
    const std::string before = readFile(cache_);
    const TemporaryFolder temporary;
    const ToolRun run =
        runTool({"thumb", cache_.string(), "--sheet", (folder_ / "sheet.png").string()},
                {{"DISPLAY", ""}, {"HOME", "/nowhere"}, {"TMPDIR", temporary.path().string()}});
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(fs::is_empty(temporary.path()));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.path()), {}), 2);
    EXPECT_EQ(readFile(cache_), before);
}

TEST_F(ToolThumb, TakesTheFormatOfMostRecordsWhereAnotherFitsOne)
{
    std::string bytes = sampleThumbCache(166).bytes();
    bytes.replace(2 * 12508 - 12, 12, std::string("\x10\0\0\0\x10\0\0\0\0\0\0\0", 12));
    writeFile(cache_, bytes);
    ifile file(cache_.c_str());
    ASSERT_EQ(detect_ithmb_size(file, 1), 166);
    ASSERT_EQ(detect_type(2 * 12508, file), true);
    EXPECT_THAT(thumb({}).out, HasSubstr("format 166, 6 records of 55,804 bytes, 3 with"));
}

class ToolThumbFormat : public testing::TestWithParam<int>
{
};

TEST_P(ToolThumbFormat, IsFoundListedAndWritten)
{
    const TemporaryFolder folder;
    const fs::path cache = folder / "cache";
    writeFile(cache, sampleThumbCache(GetParam()).bytes());
    const auto list = nlohmann::json::parse(runTool({"thumb", cache.string(), "--json"}).out);
    EXPECT_EQ(list["format"], GetParam());
    EXPECT_EQ(list["recordCount"], 6);
    EXPECT_EQ(list["thumbnailCount"], 3);
    const fs::path file = folder / "one.bmp";
    EXPECT_EQ(runTool({"thumb", cache.string(), "--index", "1", "-o", file.string()}).status, 0);
    EXPECT_EQ(readFile(file), decodedByLibrary(cache, 1));
}

TEST_P(ToolThumbFormat, KeepsItsPixelsInAPng)
{
    const TemporaryFolder folder;
    const fs::path cache = folder / "cache";
    writeFile(cache, sampleThumbCache(GetParam()).bytes());
    const fs::path file = folder / "one.png";
    EXPECT_EQ(runTool({"thumb", cache.string(), "--index", "3", "-o", file.string()}).status, 0);
    const QImage picture(QString::fromStdString(file.string()), "PNG");
    const bool isCentred = GetParam() == 120;
    const int side = isCentred ? 77 : GetParam();
    ASSERT_EQ(picture.size(), QSize(side, side));
    const int shift = isCentred ? (120 - 78) / 2 : 0;
    for (const int at : {0, side / 2, side - 1})
        EXPECT_EQ(picture.pixel(at, side - 1 - at),
                  colourOf(pixelsOf(3)(shift + at, shift + side - 1 - at)));
}

INSTANTIATE_TEST_SUITE_P(Formats, ToolThumbFormat,
                         testing::Values(78, 120, 125, 128, 157, 158, 166));
