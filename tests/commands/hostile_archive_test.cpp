#include "support/source_folder.h"

#include "support/archive_builder.h"
#include "support/case_name.h"
#include "text/numbers.h"

#include <array>
#include <cstdio>

using namespace iosphoto::test;
using iosphoto::tool::readableSize;
using testing::HasSubstr;

namespace fs = std::filesystem;

class ToolHostileArchive : public SourceFolder
{
protected:
    ToolHostileArchive() : database_(readFile(library_.path())) {}
    ~ToolHostileArchive() override
    {
        EXPECT_TRUE(fs::is_empty(temporary_.path()));
        EXPECT_FALSE(fs::exists(folder_ / "outside"));
    }

    /// Reads the archive with a temporary folder that must be empty afterwards.
    ToolRun albumsOfArchive() const
    {
        return runTool({"albums", archive_.string()}, {{"TMPDIR", temporary_.path().string()}});
    }

    const std::string database_;
    const TemporaryFolder temporary_;
    const fs::path archive_ = folder_ / "hostile";
    const std::string shownDatabase_ = quoted(archive_ / mediaDatabase);
};

TEST_F(ToolHostileArchive, NamesThatLeadOutOfItAreNoLibrary)
{
    ArchiveBuilder(archive_, tar)
        .add("../PhotoData/Photos.sqlite", database_)
        .add("a/../../PhotoData/Photos.sqlite", database_)
        .add("../outside", "x")
        .add((folder_ / "../outside").string(), "x");
    expectFailure(albumsOfArchive(), quoted(archive_) + " holds no photo library", 4);
}

TEST_F(ToolHostileArchive, AbsoluteNamesStayInsideIt)
{
    ArchiveBuilder(archive_, tar)
        .add("/private/var/mobile/Media/PhotoData/Photos.sqlite", database_)
        .add((folder_ / "outside").string(), "x");
    const ToolRun run = albumsOfArchive();
    EXPECT_THAT(run.out, HasSubstr("Camera Roll"));
    EXPECT_EQ(run.status, 0);
}

TEST_F(ToolHostileArchive, HardLinkIsNotFollowed)
{
    writeFile(folder_ / "secret", database_);
    ArchiveBuilder(archive_, tar).addHardLink(mediaDatabase, (folder_ / "secret").string());
    expectFailure(albumsOfArchive(),
                  "cannot read " + shownDatabase_ + ": it is a link to another entry; unpack", 3);
}

TEST_F(ToolHostileArchive, FileThatItHoldsTwice)
{
    ArchiveBuilder(archive_, tar).add(mediaDatabase, database_).add(mediaDatabase, database_);
    expectFailure(albumsOfArchive(),
                  "cannot read " + shownDatabase_ + ": the archive holds it more than once; unpack",
                  3);
}

TEST_F(ToolHostileArchive, OtherFilesThatItHoldsTwiceDoNotMatter)
{
    ArchiveBuilder(archive_, tar)
        .add("DCIM/IMG_0001.JPG", "a")
        .add("DCIM/IMG_0001.JPG", "b")
        .add(mediaDatabase, database_);
    EXPECT_EQ(albumsOfArchive().status, 0);
}

TEST_F(ToolHostileArchive, EncryptedFile)
{
    ArchiveBuilder(archive_, zip, "secret").add(mediaDatabase, database_);
    expectFailure(albumsOfArchive(),
                  "cannot read " + shownDatabase_ + ": it is encrypted; unpack the archive with",
                  3);
}

TEST_F(ToolHostileArchive, SeveralLibraries)
{
    ArchiveBuilder(archive_, zip)
        .add("a/PhotoData/Photos.sqlite", database_)
        .add("b/private/var/mobile/Media/PhotoData/Photos.sqlite", database_);
    const std::string facts = " (" + readableSize(static_cast<std::int64_t>(database_.size())) +
                              ", 2020-09-13 12:26 UTC)";
    expectFailure(albumsOfArchive(),
                  quoted(archive_) +
                      " holds 2 photo libraries, which iosphoto backups lists; name one of "
                      "them: " +
                      quoted(archive_ / "a") + facts + ", " +
                      quoted(archive_ / "b/private/var/mobile/Media") + facts + "\n",
                  2);
}

TEST_F(ToolHostileArchive, MoreLibrariesThanCanBeNamed)
{
    const auto holds = [&](int count) {
        {
            ArchiveBuilder builder(archive_, zip);
            for (int i = 100; i < 100 + count; ++i)
                builder.add(std::to_string(i) + "/PhotoData/Photos.sqlite", "x");
        }
        std::string names;
        for (int i = 100; i < 105; ++i)
            names += (i > 100 ? ", " : "") + quoted(archive_ / std::to_string(i)) +
                     " (1 byte, 2020-09-13 12:26 UTC)";
        return std::pair(albumsOfArchive(), ", which iosphoto backups lists; name one of them: " +
                                                names + " and more\n");
    };
    const auto [twenty, rest] = holds(20);
    expectFailure(twenty, quoted(archive_) + " holds 20 photo libraries" + rest, 2);
    const auto [many, restOfMany] = holds(300);
    expectFailure(many, quoted(archive_) + " holds more than 20 libraries" + restOfMany, 2);
}

TEST_F(ToolHostileArchive, PathsThatNoPhoneHasArePassedOver)
{
    std::string deep;
    for (int i = 0; i < 64; ++i)
        deep += "a/";
    ArchiveBuilder(archive_, tar)
        .add(deep + mediaDatabase, database_)
        .add(std::string(4096, 'a') + "/" + mediaDatabase, database_);
    expectFailure(albumsOfArchive(), quoted(archive_) + " holds no photo library", 4);
    ArchiveBuilder(archive_, tar).add(deep.substr(0, 2 * 61) + mediaDatabase, database_);
    EXPECT_EQ(albumsOfArchive().status, 0);
}

TEST_F(ToolHostileArchive, PropertyListOfAnImpossibleSize)
{
    constexpr std::size_t tooLarge = 256'000'001;
    const fs::path backup = writeBackup(folder_ / "backup", library_);
    fs::resize_file(backup / "Info.plist", tooLarge);
    const std::string text = ": it is larger than 256000000 bytes, which no such file is; copy the "
                             "whole backup again\n";
    expectFailure(albums(backup), "cannot read " + quoted(backup / "Info.plist") + text, 3);
}

TEST_F(ToolHostileArchive, WithoutEntries)
{
    ArchiveBuilder(archive_, zip); // NOLINT(bugprone-unused-raii): it writes the file
    expectFailure(albumsOfArchive(), quoted(archive_) + " holds no photo library", 4);
}

TEST_F(ToolHostileArchive, SizeThatItDoesNotHold)
{
    constexpr std::size_t sizeField = 124;
    constexpr std::size_t checksumField = 148;
    constexpr std::size_t headerSize = 512;
    ArchiveBuilder(archive_, tar).add(mediaDatabase, database_);
    std::string content = readFile(archive_);
    ASSERT_EQ(content.find(mediaDatabase), 0U) << "the header of the file is the first";
    content.replace(sizeField, 11, "77777777777"); // 8 GiB
    content.replace(checksumField, 8, "        ");
    unsigned sum = 0;
    for (std::size_t i = 0; i < headerSize; ++i)
        sum += static_cast<unsigned char>(content[i]);
    std::array<char, 8> text = {};
    std::snprintf(text.data(), text.size(), "%06o", sum);
    content.replace(checksumField, 7, text.data(), 7);
    writeFile(archive_, content);
    expectFailure(albumsOfArchive(),
                  "the archive " + quoted(archive_) + " is damaged or cut short (", 3);
}

TEST_F(ToolHostileArchive, DatabaseThatFindsNoRoom)
{
    ArchiveBuilder(archive_, zip).add(mediaDatabase, database_);
    constexpr std::size_t room = 10'000;
    ASSERT_GT(database_.size(), room);
    expectFailure(runToolOnFullDisk({"albums", archive_.string()}, room), "cannot write '", 3);
    expectFailure(runToolOnFullDisk({"albums", library_.path()}, room),
                  "cannot copy '" + library_.path() + "' to '", 3);
}

/// Archives of which a part at the end or in the middle is lost.
class ToolBrokenArchive : public SourceFolder, public testing::WithParamInterface<ArchiveKind>
{
protected:
    ToolBrokenArchive()
        : archive_(packed(putMedia(folder_ / "Media"), folder_ / "broken", GetParam())),
          whole_(readFile(archive_))
    {
    }

    /// One line that says what is wrong, whatever it is; or all albums.
    void expectFailureOrAll(std::size_t where) const
    {
        const ToolRun run = albums(archive_);
        if (run.status == 0) {
            EXPECT_EQ(run.out, expected_.out) << where;
            return;
        }
        EXPECT_EQ(run.out, "") << where;
        EXPECT_THAT(run.error,
                    testing::MatchesRegex("iosphoto: [^\n]*'" + archive_.string() + "[^\n]*\n"))
            << where;
        EXPECT_TRUE(run.status == 3 || run.status == 4) << where << run;
    }

    const fs::path archive_;
    const std::string whole_;
};

TEST_P(ToolBrokenArchive, CutShort)
{
    constexpr std::size_t places = 24;
    for (std::size_t i = 1; i < places; ++i) {
        writeFile(archive_, whole_.substr(0, whole_.size() * i / places));
        expectFailureOrAll(i);
    }
    writeFile(archive_, whole_.substr(0, whole_.size() / 2));
    expectFailure(albums(archive_), "the archive " + quoted(archive_) + " is damaged or cut short",
                  3);
}

/// Of the kinds that have checksums of all they hold.
using ToolChangedArchive = ToolBrokenArchive;

TEST_P(ToolChangedArchive, IsNotReadAsAnotherLibrary)
{
    constexpr std::size_t places = 24;
    for (std::size_t i = 0; i < places; ++i) {
        std::string content = whole_;
        content[content.size() * i / places] ^= '\x55';
        writeFile(archive_, content);
        expectFailureOrAll(i);
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, ToolChangedArchive,
                         testing::Values(zip, ArchiveKind{"tar.xz"}, ArchiveKind{"7z"}),
                         NameOfCase());
INSTANTIATE_TEST_SUITE_P(Kinds, ToolBrokenArchive,
                         testing::Values(zip, ArchiveKind{"tar.gz"}, ArchiveKind{"tar.xz"},
                                         ArchiveKind{"7z"}),
                         NameOfCase());
