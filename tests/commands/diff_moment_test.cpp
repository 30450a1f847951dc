#include "support/library_builder.h"
#include "support/run_tool.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>

using namespace iosphoto::test;

namespace fs = std::filesystem;

namespace {

constexpr std::int64_t may2020 = 610000000; // seconds since 2001
constexpr std::int64_t unixEpoch = 978307200;

void setTime(const fs::path &file, std::int64_t coreDataSeconds)
{
    const timespec time = {coreDataSeconds + unixEpoch, 0};
    const timespec times[] = {time, time};
    ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
}

} // namespace

TEST(ToolDiffMoment, TimeAloneTakesNoPhotoOutOfTheTrash)
{
    LibraryBuilder library(ios15);
    library.asset("TRASHED.JPG").trashedAt(may2020);
    library.close();
    const TemporaryFolder folder;
    const fs::path later = folder / "Photos.sqlite";
    fs::copy_file(library.path(), later);
    constexpr std::int64_t day = 86400;
    setTime(library.path(), may2020 + day);
    setTime(later, may2020 + 40 * day);

    for (const auto &[a, b] :
         {std::pair(library.path(), later.string()), std::pair(later.string(), library.path())}) {
        const ToolRun run = runTool({"diff", a, b, "--quiet"});
        EXPECT_EQ(run, (ToolRun{"no difference\n", "", 0}));
    }
}
