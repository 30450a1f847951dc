#include "commands/reading_stop.h"

#include "support/case_name.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;
using namespace iosphoto::tool;
using testing::ElementsAre;

namespace {

constexpr const char *database = "Photos.sqlite";
constexpr std::int64_t rowLimit = 2000;

CReadReport stoppedIn(Pass::Code pass, int code)
{
    CReadReport report;
    report.passes.resize(2);
    report.passes[0].pass = Pass::AssetEntity;
    report.passes[1].pass = pass;
    report.passes[1].code = code & 0xff;
    report.passes[1].extendedCode = code;
    return report;
}

struct Stop
{
    const char *label;
    int code;
    const char *some;    ///< what is said where some photos were read
    const char *nothing; ///< and where none were

    std::string name() const { return label; }
};

std::ostream &operator<<(std::ostream &stream, const Stop &stop)
{
    return stream << stop.label;
}

constexpr Stop stops[] = {
    {"Damage", 11,
     "'Photos.sqlite' is damaged (database disk image is malformed) and photos are missing here; "
     "copy it from the device or the backup again, its -wal with it",
     "'Photos.sqlite' is damaged (database disk image is malformed) and no photo could be read; "
     "copy it from the device or the backup again, its -wal with it"},
    {"FullDisk", 13,
     "'Photos.sqlite' could not be read to its end (database or disk is full) and photos are "
     "missing here; make room where temporary files go, or set TMPDIR to a folder with room",
     "cannot read 'Photos.sqlite': database or disk is full; make room where temporary files go, "
     "or "
     "set TMPDIR to a folder with room"},
    {"NoRoomForTheIndexOfTheLog", 4874,
     "'Photos.sqlite' could not be read to its end (database or disk is full) and photos are "
     "missing here; make room where temporary files go, or set TMPDIR to a folder with room",
     "cannot read 'Photos.sqlite': database or disk is full; make room where temporary files go, "
     "or "
     "set TMPDIR to a folder with room"},
    {"FailingDisk", 10,
     "'Photos.sqlite' could not be read to its end (disk I/O error) and photos are missing here; "
     "look whether the disk with the temporary files is full or fails, or set TMPDIR to a folder "
     "on another one",
     "cannot read 'Photos.sqlite': disk I/O error; look whether the disk with the temporary files "
     "is full or fails, or set TMPDIR to a folder on another one"},
    {"Lock", 5,
     "'Photos.sqlite' could not be read to its end (database is locked) and photos are missing "
     "here; close what uses it and try again, or set TMPDIR to a folder on a local disk",
     "cannot read 'Photos.sqlite': database is locked; close what uses it and try again, or set "
     "TMPDIR to a folder on a local disk"},
    {"Memory", 7,
     "'Photos.sqlite' could not be read to its end (out of memory) and photos are missing here; "
     "close other programs and try again",
     "cannot read 'Photos.sqlite': out of memory; close other programs and try again"},
    {"Work", 9,
     "'Photos.sqlite' could not be read to its end (it asks for more work than any photo library "
     "of "
     "its size) and photos are missing here; copy it from the device or the backup again, its -wal "
     "with it",
     "cannot read 'Photos.sqlite': it asks for more work than any photo library of its size; copy "
     "it from the device or the backup again, its -wal with it"},
};

} // namespace

class ReadingStop : public testing::TestWithParam<Stop>
{
};

TEST_P(ReadingStop, SaysWhyAndWhatToDo)
{
    EXPECT_THAT(sentencesOf(stoppedIn(Pass::CameraRoll, GetParam().code), database, rowLimit),
                ElementsAre(GetParam().some));
    const Failure failure = inWords(NothingRead(database, GetParam().code));
    EXPECT_STREQ(failure.what(), GetParam().nothing);
    EXPECT_EQ(failure.status(), CannotAccess);
}

INSTANTIATE_TEST_SUITE_P(Codes, ReadingStop, testing::ValuesIn(stops), NameOfCase());

TEST(ReadingStops, SayWhatIsMissing)
{
    const auto missing = [](Pass::Code pass) {
        return sentencesOf(stoppedIn(pass, 11), database, rowLimit).front();
    };
    EXPECT_THAT(missing(Pass::PhotoLibrary), testing::HasSubstr(" and photos are missing here;"));
    EXPECT_THAT(missing(Pass::UserAlbums), testing::HasSubstr(" and albums are missing here;"));
    EXPECT_THAT(missing(Pass::AlbumContents),
                testing::HasSubstr(" and photos are missing from albums here;"));
}

TEST(ReadingStops, AreSaidOnceForEachReason)
{
    CReadReport report = stoppedIn(Pass::CameraRoll, 11);
    report.passes.push_back(report.passes.back());
    report.passes.push_back(stoppedIn(Pass::AlbumContents, 4).passes.back());
    EXPECT_THAT(sentencesOf(report, database, rowLimit),
                ElementsAre("'Photos.sqlite' is damaged (database disk image is malformed) and "
                            "photos are missing here; copy it from the device or the backup again, "
                            "its -wal with it",
                            "the tables of 'Photos.sqlite' make more than 2000 rows of its photos, "
                            "as only damage or intent does, and photos are missing from albums "
                            "here; copy it from the device or the backup again, its -wal with it"));
    EXPECT_THAT(sentencesOf({}, database, rowLimit), ElementsAre());
}
