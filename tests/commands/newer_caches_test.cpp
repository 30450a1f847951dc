#include "support/case_name.h"
#include "support/expect_failure.h"
#include "support/little_endian.h"
#include "support/temporary_folder.h"

#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using testing::StartsWith;

namespace {

/// Records of pixels that are all alike, with the trailers of thumbnails this wide and high.
std::string records(std::size_t recordSize, const std::vector<std::pair<int, int>> &thumbnails)
{
    std::string bytes;
    for (const auto &[width, height] : thumbnails)
        bytes += std::string(recordSize - 28, '\x5a') + "an id of 16 byte" + littleEndian32(width) +
                 littleEndian32(height) + littleEndian32(0);
    return bytes;
}

/// A file, made for one run of the tool.
ToolRun thumb(const std::string &name, const std::string &bytes,
              const std::vector<std::string> &options = {})
{
    const TemporaryFolder folder;
    writeFile(folder / name, bytes);
    std::vector<std::string> arguments = {"thumb", (folder / name).string()};
    arguments.insert(arguments.end(), options.begin(), options.end());
    ToolRun run = runTool(arguments);
    const std::string before = folder.path().string() + "/";
    if (const std::size_t at = run.error.find(before); at != std::string::npos)
        run.error.erase(at, before.size());
    return run;
}

struct NewerCase
{
    std::string file;
    std::size_t recordSize;
    int side;
    std::string what;

    std::string name() const { return file; }
};

const NewerCase newerCases[] = {
    {"3305.ithmb", 4124, 32, "4,124 bytes, 32x32 at 32 bits per pixel"},
    {"4132.ithmb", 16412, 64, "16,412 bytes, 64x64 at 32 bits per pixel"},
    {"4031.ithmb", 57628, 120, "57,628 bytes, 120x120 at 32 bits per pixel"},
    {"3356.ithmb", 1052, 32, "1,052 bytes, 32x32 at 8 bits per pixel"},
    {"4133.ithmb", 4124, 64, "4,124 bytes, 64x64 at 8 bits per pixel"},
    {"4532.ithmb", 14428, 120, "14,428 bytes, 120x120 at 8 bits per pixel"},
};

} // namespace

class ToolNewerCache : public testing::TestWithParam<NewerCase>
{
};

TEST_P(ToolNewerCache, IsNamedAsSuch)
{
    const NewerCase &param = GetParam();
    std::string bytes = records(param.recordSize, {{param.side, 20}, {20, param.side}, {22, 22}});
    bytes += std::string(61 * param.recordSize, '\0');
    expectFailure(thumb(param.file, bytes),
                  "'" + param.file + "' is a thumbnail cache of a newer kind (records of " +
                      param.what +
                      "), which cannot be decoded; the pictures of such a device are in "
                      "PhotoData/Thumbnails/V2 as JPEG files\n",
                  4);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ToolNewerCache, testing::ValuesIn(newerCases), NameOfCase());

TEST(ToolNewerCacheByRecords, IsToldWithoutItsName)
{
    expectFailure(thumb("cache", records(57628, {{120, 82}, {118, 120}})),
                  "'cache' is a thumbnail cache of a newer kind (records of 57,628 bytes, 120x120",
                  4);
    expectFailure(thumb("cache", records(4124, {{32, 20}, {50, 64}})),
                  "'cache' is a thumbnail cache of a newer kind (records of 4,124 bytes, 64x64 at "
                  "8 bits per pixel)",
                  4);
    expectFailure(thumb("cache", records(4124, {{32, 20}, {20, 32}})),
                  "'cache' is a thumbnail cache of a newer kind (records of 4,124 bytes, 32x32 at "
                  "32 bits per pixel or 64x64 at 8 bits per pixel)",
                  4);
}

TEST(ToolNewerCacheByRecords, IsNotToldByItsNameOrSizeAlone)
{
    const std::string unknown = "'4031.ithmb' is not a thumbnail cache of a known format; ";
    const std::string newer = records(57628, {{120, 82}, {118, 120}});
    expectFailure(thumb("4031.ithmb", std::string(2 * 57628, 'x')), unknown, 4);
    expectFailure(thumb("4031.ithmb", newer + "x"), unknown, 4);
    expectFailure(thumb("4031.ithmb", records(57628, {{121, 82}, {118, 120}})), unknown, 4);
}

TEST(ToolCacheWithoutThumbnails, IsAnEmptyListWhereItsSizeTellsTheFormat)
{
    const std::string zeros(3 * 28828, '\0');
    const ToolRun list = thumb("cache", zeros);
    EXPECT_EQ(list, (ToolRun{"format 120, 3 records of 28,828 bytes, 0 with a thumbnail\n\n"
                             "INDEX  PIXELS  BMP BYTES\n",
                             "", 0}));
    const auto document = nlohmann::json::parse(thumb("cache", zeros, {"--json"}).out);
    EXPECT_EQ(document["recordCount"], 3);
    EXPECT_TRUE(document["thumbnails"].empty());
}

TEST(ToolCacheWithoutThumbnails, IsNoneWhereItsSizeFitsNoFormatOrSeveral)
{
    const std::size_t ofSeveral = std::size_t{12508} * 28828 / 4;
    for (const std::size_t size : {std::size_t{100000}, ofSeveral, std::size_t{64 * 4124}})
        expectFailure(thumb("cache", std::string(size, '\0')),
                      "'cache' holds nothing but zeros, and which format its thumbnails would have "
                      "cannot be told; name one, such as 120x120.ithmb",
                      4);
}

TEST(ToolOldCache, IsNamedByItsFileName)
{
    const std::string bytes(8192, 'x');
    for (const char *name : {"F3004_1.ithmb", "f3008_12.ITHMB"})
        expectFailure(thumb(name, bytes),
                      "'" + std::string(name) +
                          "' is named like a cache of an iPod or of iPhone OS 1 to 3, which is not "
                          "supported; name one, such as 120x120.ithmb",
                      4);
    expectFailure(thumb("T123.ithmb", bytes),
                  "'T123.ithmb' is named like a picture of an iPod Photo Cache of a computer", 4);
    EXPECT_THAT(thumb("F30.ithmb", bytes).error, StartsWith("iosphoto: 'F30.ithmb' is not a"));
}
