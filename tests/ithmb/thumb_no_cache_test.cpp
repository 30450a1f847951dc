#include "ios_photo.h"
#include "support/case_name.h"
#include "support/next_descriptor.h"
#include "support/plain_user.h"
#include "support/temporary_folder.h"
#include "support/thumb_calls.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace iosphoto::test;

namespace fs = std::filesystem;

namespace {

/// A path that leads to no cache.
struct NoCache
{
    const char *kind;
    fs::path (*make)(const TemporaryFolder &folder);
    bool isOpened;

    std::string name() const { return kind; }
};

std::ostream &operator<<(std::ostream &stream, const NoCache &noCache)
{
    return stream << noCache.kind;
}

fs::path makeFile(const TemporaryFolder &folder, const std::string &bytes)
{
    writeFile(folder / "thumbs.ithmb", bytes);
    return folder / "thumbs.ithmb";
}

const NoCache noCaches[] = {
    {"Missing", [](const TemporaryFolder &folder) { return folder / "none"; }, false},
    {"Folder", [](const TemporaryFolder &folder) { return folder.path(); }, false},
    {"PipeWithoutAWriter",
     [](const TemporaryFolder &folder) {
         EXPECT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
         return folder / "pipe";
     },
     false},
    {"EndlessDevice", [](const TemporaryFolder & /*folder*/) { return fs::path("/dev/zero"); },
     false},
    {"LinkToItself",
     [](const TemporaryFolder &folder) {
         fs::create_symlink(folder / "link", folder / "link");
         return folder / "link";
     },
     false},
    {"FileAsFolder",
     [](const TemporaryFolder &folder) { return makeFile(folder, "x") / "thumbs.ithmb"; }, false},
    {"Empty", [](const TemporaryFolder &folder) { return makeFile(folder, ""); }, true},
    {"OneByte", [](const TemporaryFolder &folder) { return makeFile(folder, "x"); }, true},
    {"Text",
     [](const TemporaryFolder &folder) { return makeFile(folder, std::string(300000, 'x')); },
     true},
    {"Zeros",
     [](const TemporaryFolder &folder) { return makeFile(folder, std::string(300000, '\0')); },
     true},
};

/// Expects that nothing is found at a path, by any function that opens it.
void expectNothingAt(const std::string &path)
{
    const int before = nextDescriptor();
    for (const int index : {0, 1, 2})
        for (const ThumbFunction *function = thumbFunctions + 1;
             function != std::end(thumbFunctions); ++function)
            expectNothing(function->decoding(thumbCases[0], path, index));
    int lastIndex = -77;
    EXPECT_EQ(get_bmp_count(path.c_str(), lastIndex), 0);
    EXPECT_EQ(lastIndex, -77);
    EXPECT_EQ(nextDescriptor(), before);
}

} // namespace

class ThumbsOfNoCache : public testing::TestWithParam<NoCache>
{
protected:
    // A process that waits for a pipe or reads without end is ended.
    ThumbsOfNoCache() { alarm(60); }
    ~ThumbsOfNoCache() override { alarm(0); }
};

TEST_P(ThumbsOfNoCache, AreNotFound)
{
    const TemporaryFolder folder;
    expectNothingAt(GetParam().make(folder).string());
}

TEST_P(ThumbsOfNoCache, AreOfNoFormat)
{
    const TemporaryFolder folder;
    ifile file(GetParam().make(folder).c_str());
    EXPECT_EQ(file.is_open(), GetParam().isOpened);
    EXPECT_EQ(detect_ithmb_size(file, 0), 0);
    EXPECT_EQ(detect_ithmb_size(file, 2), 0);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ThumbsOfNoCache, testing::ValuesIn(noCaches), NameOfCase());

TEST(ThumbsOfNoPath, AreNotFound)
{
    expectNothing([](char *buffer, ThumbSizes &sizes) {
        EXPECT_EQ(GetBmp(nullptr, 0, buffer, sizes.size, sizes.width, sizes.height), 0);
    });
    int lastIndex = -77;
    EXPECT_EQ(get_bmp_count(nullptr, lastIndex), 0);
    EXPECT_EQ(lastIndex, -77);
}

TEST(ThumbsOfAnUnreadableFile, AreNotFound)
{
    const TemporaryFolder folder;
    const fs::path path = makeFile(
        folder, ThumbCacheBuilder(78).thumbnail(78, 78, [](int, int) { return 1; }).bytes());
    fs::permissions(path, fs::perms::none);
    const PlainUser user;
    if (!user.isPlain())
        GTEST_SKIP() << "runs as a user who may read everything";
    expectNothingAt(path.string());
}
