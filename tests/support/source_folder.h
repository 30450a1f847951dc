#ifndef IOSPHOTO_TESTS_SOURCE_FOLDER_H
#define IOSPHOTO_TESTS_SOURCE_FOLDER_H

#include "support/backup_builder.h"
#include "support/expect_failure.h"
#include "support/library_builder.h"
#include "support/temporary_folder.h"

#include <map>

namespace iosphoto::test {

/// A library whose only photo is in the write-ahead log, to be put into sources of all kinds.
class SourceFolder : public testing::Test
{
protected:
    SourceFolder()
    {
        library_.album("Trip");
        library_.execute("pragma journal_mode = wal");
        library_.asset("IMG_0001.JPG");
        expected_ = albums(library_.path());
        EXPECT_EQ(expected_.status, 0);
        EXPECT_THAT(expected_.out, testing::ContainsRegex("Camera Roll +1"));
    }

    /// Copies the library to `PhotoData` of a folder that is made, or to another place in it.
    std::filesystem::path putMedia(const std::filesystem::path &media,
                                   const std::string &database = mediaDatabase) const
    {
        namespace fs = std::filesystem;
        fs::create_directories((media / database).parent_path());
        for (const char *suffix : {"", "-wal", "-shm"})
            fs::copy_file(library_.path() + suffix, (media / database).string() + suffix);
        return media;
    }

    /// What is read of the source, which must be all that the library holds.
    static ToolRun albums(const std::filesystem::path &source)
    {
        return runTool({"albums", source.string()});
    }
    void expectWhole(const ToolRun &run) const
    {
        EXPECT_EQ(run.out, expected_.out);
        EXPECT_EQ(run.status, 0) << run.error;
    }

    /// All files of a folder with their contents and times of change.
    static std::map<std::string, std::string> allOf(const std::filesystem::path &folder)
    {
        std::map<std::string, std::string> files;
        for (const auto &at : std::filesystem::recursive_directory_iterator(folder))
            files[at.path().string()] =
                std::to_string(at.last_write_time().time_since_epoch().count()) +
                (at.is_regular_file() ? readFile(at.path()) : "");
        return files;
    }

    LibraryBuilder library_ = LibraryBuilder(ios15);
    TemporaryFolder folder_;

    ToolRun expected_ = {};
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_SOURCE_FOLDER_H
