// Reading a source leaves even the time of its last access.
#include "support/archive_builder.h"
#include "support/sample_thumb_cache.h"
#include "support/source_folder.h"

#include <fcntl.h>
#include <sys/stat.h>

using namespace iosphoto::test;

namespace fs = std::filesystem;

#ifdef O_NOATIME

class ToolAccessTime : public SourceFolder
{
protected:
    static constexpr time_t longAgo = 1'000'000'000;

    static void forgetAccess(const fs::path &path)
    {
        const timespec times[] = {{longAgo, 0}, {0, UTIME_OMIT}};
        ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
    }
    static bool isAccessed(const fs::path &path)
    {
        struct stat facts = {};
        EXPECT_EQ(stat(path.c_str(), &facts), 0);
        return facts.st_atime != longAgo;
    }

    /// Whether this disk notes that a file is read.
    bool isNoted() const
    {
        writeFile(folder_ / "control", "x");
        forgetAccess(folder_ / "control");
        readFile(folder_ / "control");
        return isAccessed(folder_ / "control");
    }

    void expectUnnoticed(const std::vector<std::string> &command, const fs::path &source,
                         int status = 0) const
    {
        if (!isNoted())
            GTEST_SKIP() << "this disk does not note accesses";
        std::vector<fs::path> paths = {source};
        if (fs::is_directory(source))
            for (const auto &entry : fs::recursive_directory_iterator(source))
                paths.push_back(entry.path());
        for (const fs::path &path : paths)
            forgetAccess(path);
        const ToolRun run = runTool(command);
        EXPECT_EQ(run.status, status) << run.error;
        for (const fs::path &path : paths)
            EXPECT_FALSE(isAccessed(path)) << path;
    }
};

TEST_F(ToolAccessTime, OfADatabaseStays)
{
    const fs::path media = putMedia(folder_ / "Media");
    expectUnnoticed({"info", (media / mediaDatabase).string()}, media);
}

TEST_F(ToolAccessTime, OfASearchedFolderStays)
{
    writeBackup(folder_ / "disk/a/b/backup", library_);
    expectUnnoticed({"albums", (folder_ / "disk").string()}, folder_ / "disk");
    expectUnnoticed({"backups", (folder_ / "disk").string()}, folder_ / "disk");
}

TEST_F(ToolAccessTime, OfAnArchiveStays)
{
    const fs::path archive = packed(putMedia(folder_ / "Media"), folder_ / "media", zip);
    expectUnnoticed({"albums", archive.string()}, archive);
}

TEST_F(ToolAccessTime, StaysWhereEvidenceIsKept)
{
    const fs::path media = putMedia(folder_ / "Media");
    expectUnnoticed({"albums", media.string(), "--evidence", (folder_ / "evidence.json").string()},
                    media);
}

TEST_F(ToolAccessTime, OfAThumbnailCacheStays)
{
    writeFile(folder_ / "cache", sampleThumbCache(120).bytes());
    expectUnnoticed({"thumb", (folder_ / "cache").string()}, folder_ / "cache");
}

TEST_F(ToolAccessTime, OfAFileOfSomebodyElseDoesNotKeepItFromBeingRead)
{
    const fs::path media = putMedia(folder_ / "Media");
    const auto run = runToolAsPlainUser({"albums", media.string()});
    if (!run)
        GTEST_SKIP() << "no other user can run the tool here";
    expectWhole(*run);
}

#endif
