#include "support/expect_failure.h"
#include "support/query.h"
#include "support/run_on.h"

#include <algorithm>

using namespace iosphoto::test;

namespace fs = std::filesystem;

using Found = std::vector<std::vector<std::string>>;

class ToolSqlite : public testing::Test
{
protected:
    ToolSqlite()
    {
        const AlbumRow trip = library_.album("Trip");
        library_.asset("1.JPG").set("ZFAVORITE", 1);
        library_.asset("2.JPG").in(trip).trashedAt(readingTime - days);
        library_.asset("3.JPG").in(trip);
    }

    ToolRun write(const std::string &command, const fs::path &file,
                  std::vector<std::string> arguments = {}) const
    {
        arguments.insert(arguments.end(), {"--sqlite", file.string()});
        return runOn(library_, command, arguments);
    }

    void expectWritten(const ToolRun &run, const fs::path &file) const
    {
        EXPECT_EQ(run, (ToolRun{"wrote " + file.string() + "\n", "", 0}));
    }

    std::ptrdiff_t filesOfTheFolder() const
    {
        return std::distance(fs::directory_iterator(folder_.path()), fs::directory_iterator());
    }

    LibraryBuilder library_{ios15};
    TemporaryFolder folder_;
    fs::path file_ = folder_ / "out.db";
};

TEST_F(ToolSqlite, HoldsAlbumsPhotosAndWhichShowsWhich)
{
    expectWritten(write("photos", file_), file_);
    EXPECT_EQ(filesOfTheFolder(), 1);
    EXPECT_EQ(query(file_, "select iosVersion, productType, asOf, isComplete from library"),
              (Found{{"15.0", "iPhone14,2", "2020-01-10T00:00:00Z", "1"}}));
    EXPECT_EQ(query(file_, "select kind, name, photoCount from albums where kind = 'user'"),
              (Found{{"user", "Trip", "1"}}));
    EXPECT_EQ(query(file_, "select id, fileName, created, isFavorite, duration, daysLeft "
                           "from photos order by id"),
              (Found{{"1", "1.JPG", "2020-01-05T10:40:00Z", "1", "0.0", "null"},
                     {"2", "2.JPG", "2020-01-04T10:40:00Z", "0", "0.0", "29"},
                     {"3", "3.JPG", "2020-01-03T10:40:00Z", "0", "0.0", "null"}}));
    EXPECT_EQ(query(file_, "select kind, position, fileName from album_photos "
                           "join albums on album = \"index\" join photos on photo = id "
                           "order by album, position"),
              (Found{{"camera-roll", "0", "1.JPG"},
                     {"camera-roll", "1", "3.JPG"},
                     {"favorites", "0", "1.JPG"},
                     {"user", "0", "3.JPG"},
                     {"recently-deleted", "0", "2.JPG"}}));
}

TEST_F(ToolSqlite, HasTypesKeysAndIndexes)
{
    expectWritten(write("photos", file_), file_);
    EXPECT_EQ(query(file_, "select name, type, pk from pragma_table_info('photos') where name in "
                           "('id', 'uuid', 'fileSize', 'duration', 'created', 'isVideo')"),
              (Found{{"id", "INTEGER", "1"},
                     {"uuid", "TEXT", "0"},
                     {"fileSize", "INTEGER", "0"},
                     {"duration", "REAL", "0"},
                     {"created", "TEXT", "0"},
                     {"isVideo", "INTEGER", "0"}}));
    EXPECT_EQ(query(file_, "select name from pragma_table_info('albums') where pk = 1"),
              (Found{{"index"}}));
    EXPECT_EQ(query(file_, "select name from sqlite_master where type = 'index' and sql is not "
                           "null order by name"),
              (Found{{"album_photos_photo"}, {"photos_created"}, {"photos_uuid"}}));
    EXPECT_EQ(query(file_, "pragma integrity_check"), (Found{{"ok"}}));
}

TEST_F(ToolSqlite, HoldsThePhotosThatAreChosen)
{
    expectWritten(write("photos", file_, {"--favorite"}), file_);
    EXPECT_EQ(query(file_, "select fileName from photos"), (Found{{"1.JPG"}}));
    EXPECT_EQ(query(file_, "select count(*) from album_photos"), (Found{{"2"}}));
}

TEST_F(ToolSqlite, HoldsAlbumsAlone)
{
    expectWritten(write("albums", file_), file_);
    EXPECT_EQ(query(file_, "select name from sqlite_master where type = 'table' order by name"),
              (Found{{"albums"}, {"library"}}));
    EXPECT_EQ(query(file_, "select \"index\", kind, bytes from albums where kind = 'camera-roll'"),
              (Found{{"0", "camera-roll", "2000"}}));
}

TEST_F(ToolSqlite, IsReplacedByALaterOneKeepingItsRights)
{
    expectWritten(write("photos", file_), file_);
    fs::permissions(file_, fs::perms::owner_read | fs::perms::owner_write);
    expectWritten(write("albums", file_), file_);
    EXPECT_EQ(query(file_, "select count(*) from sqlite_master where name = 'photos'"),
              (Found{{"0"}}));
    EXPECT_EQ(fs::status(file_).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(filesOfTheFolder(), 1);
}

TEST_F(ToolSqlite, NeverReplacesAnythingElse)
{
    fs::copy_file(library_.path(), folder_ / "Photos.sqlite");
    writeFile(folder_ / "notes.txt", "notes");
    writeFile(folder_ / "empty", "");
    for (const char *name : {"Photos.sqlite", "notes.txt", "empty"}) {
        const fs::path other = folder_ / name;
        const std::string before = readFile(other);
        expectFailure(write("photos", other),
                      quoted(other) + " is there and was not written by iosphoto --sqlite", 3);
        EXPECT_EQ(readFile(other), before) << name;
    }
    EXPECT_EQ(filesOfTheFolder(), 3);
}

TEST_F(ToolSqlite, NeverReplacesTheSource)
{
    const std::string before = readFile(library_.path());
    expectFailure(write("photos", library_.path()),
                  quoted(fs::path(library_.path())) + " is the source, which is never changed", 2);
    EXPECT_EQ(readFile(library_.path()), before);
}

TEST_F(ToolSqlite, IsNotWrittenBesideTheLogOfAnother)
{
    expectWritten(write("photos", file_), file_);
    const fs::path log = folder_ / "out.db-wal";
    writeFile(log, "log");
    expectFailure(write("photos", file_),
                  "cannot write " + quoted(file_) + ": " + quoted(log) + " lies beside it", 3);
}

TEST_F(ToolSqlite, FullDiskLeavesTheOneBefore)
{
    expectWritten(write("albums", file_), file_);
    constexpr std::size_t length = 500000; // a row has the name twice
    library_.asset(std::string(length, 'x'));
    library_.execute("vacuum");
    const std::size_t room = fs::file_size(library_.path()) + length / 10;

    const ToolRun run =
        runToolOnFullDisk(commandOn(library_, "photos", {"--sqlite", file_.string()}), room);

    expectFailure(run, "cannot write " + quoted(file_) + ": ", 3);
    EXPECT_EQ(query(file_, "select count(*) from albums"), (Found{{"5"}}));
    EXPECT_EQ(filesOfTheFolder(), 1);
}

TEST_F(ToolSqlite, WhatCannotBeWrittenLeavesNothing)
{
    const fs::path nowhere = folder_ / "nowhere" / "out.db";
    expectFailure(write("photos", nowhere),
                  "cannot write " + quoted(nowhere) + ": No such file or directory", 3);
    expectFailure(write("albums", folder_.path()),
                  "cannot write " + quoted(folder_.path()) + ": it is a folder", 3);
    EXPECT_EQ(filesOfTheFolder(), 0);
}
