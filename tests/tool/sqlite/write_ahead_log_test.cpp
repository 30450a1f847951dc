#include "sqlite/write_ahead_log.h"

#include "support/library_builder.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;
using namespace iosphoto::tool;

namespace fs = std::filesystem;

namespace iosphoto::tool {

static bool operator==(const WriteAheadLog &left, const WriteAheadLog &right)
{
    return left.state == right.state && left.commits == right.commits &&
           left.lostCommits == right.lostCommits && left.hasOpenChange == right.hasOpenChange &&
           left.endsInZeros == right.endsInZeros;
}

static std::ostream &operator<<(std::ostream &out, const WriteAheadLog &log)
{
    return out << machineName(log.state) << ", " << log.commits << " and " << log.lostCommits
               << (log.hasOpenChange ? ", open" : "") << (log.endsInZeros ? ", zeros" : "");
}

} // namespace iosphoto::tool

namespace {

constexpr std::size_t headerSize = 32;
constexpr std::size_t frameSize = 24 + 4096;

/// Where a frame begins, and behind the last the end.
constexpr std::size_t at(std::size_t frame)
{
    return headerSize + frame * frameSize;
}

} // namespace

/// A log of three commits with a frame each, then one with several.
class ToolWriteAheadLog : public testing::Test
{
protected:
    ToolWriteAheadLog()
    {
        library_.execute("create table other (a); insert into other values (0)");
        library_.execute("pragma journal_mode = wal; pragma wal_autocheckpoint = 0");
        for (const char *sql :
             {"update other set a = 1", "update other set a = 2", "update other set a = 3",
              "insert into other values (zeroblob(20000))"})
            library_.execute(sql);
        log_ = readFile(library_.path() + "-wal");
        EXPECT_GT(log_.size(), at(5));
        EXPECT_EQ((log_.size() - headerSize) % frameSize, 0U);
    }

    WriteAheadLog read(const std::string &content) const
    {
        writeFile(folder_ / "log", content);
        return readWriteAheadLog(folder_ / "log");
    }

    std::string changed(std::size_t at) const
    {
        std::string log = log_;
        log.at(at) = static_cast<char>(log.at(at) ^ '\x01');
        return log;
    }

    std::size_t frames() const { return (log_.size() - headerSize) / frameSize; }

    LibraryBuilder library_ = LibraryBuilder(ios15);
    TemporaryFolder folder_;
    std::string log_;
};

TEST_F(ToolWriteAheadLog, IsGoodToItsEnd)
{
    EXPECT_EQ(read(log_), (WriteAheadLog{LogState::Good, 4, 0, false}));
    EXPECT_EQ(read(log_.substr(0, headerSize)), (WriteAheadLog{LogState::Good, 0, 0, false}));
}

TEST_F(ToolWriteAheadLog, WithADamagedHeaderIsKnownByItsFrames)
{
    const std::size_t one = at(1);
    for (std::size_t byte = 0; byte < headerSize; ++byte) {
        const WriteAheadLog damaged = read(changed(byte));
        EXPECT_EQ(damaged, (WriteAheadLog{LogState::Damaged, 0, 4})) << byte;
        EXPECT_TRUE(damaged.isHeaderDamaged);
        EXPECT_EQ(damaged.frames, static_cast<std::int64_t>(frames()));
        EXPECT_EQ(read(changed(byte).substr(0, one)), (WriteAheadLog{LogState::Damaged, 0, 1}))
            << byte;
    }
    EXPECT_EQ(read(std::string(headerSize, 'x') + log_.substr(headerSize)),
              (WriteAheadLog{LogState::Damaged, 0, 4}));
    EXPECT_FALSE(read(changed(at(0) + 100)).isHeaderDamaged);
    EXPECT_FALSE(read(log_).isHeaderDamaged);
}

TEST_F(ToolWriteAheadLog, IsKnownByItsHeaderOrItsFrames)
{
    EXPECT_EQ(read(changed(24).substr(0, headerSize)), (WriteAheadLog{LogState::Damaged}));
    EXPECT_EQ(read(changed(0).substr(0, headerSize)), (WriteAheadLog{LogState::NoLog}));
    for (const char byte : {'\0', 'x'}) {
        EXPECT_EQ(read(std::string(log_.size(), byte)), (WriteAheadLog{LogState::NoLog}));
        EXPECT_EQ(read(changed(0).substr(0, headerSize) + std::string(log_.size(), byte)),
                  (WriteAheadLog{LogState::NoLog}));
    }
    EXPECT_EQ(read(log_.substr(0, headerSize - 1)), (WriteAheadLog{LogState::NoLog}));
    EXPECT_EQ(read(""), (WriteAheadLog{LogState::Empty}));
    EXPECT_EQ(readWriteAheadLog(folder_ / "missing"), (WriteAheadLog{LogState::Missing}));
}

TEST_F(ToolWriteAheadLog, AnyChangedByteOfAFrameIsDamage)
{
    // The page number, the salts, the sums, the page; of the commit only that it is one.
    for (const std::size_t byte : {0U, 3U, 8U, 12U, 15U, 16U, 23U, 24U, 1000U, 4119U}) {
        EXPECT_EQ(read(changed(at(0) + byte)), (WriteAheadLog{LogState::Damaged, 0, 4})) << byte;
        EXPECT_EQ(read(changed(at(2) + byte)), (WriteAheadLog{LogState::Damaged, 2, 2})) << byte;
        EXPECT_EQ(read(changed(at(frames() - 1) + byte)), (WriteAheadLog{LogState::Damaged, 3, 1}))
            << byte;
    }
}

TEST_F(ToolWriteAheadLog, EndThatIsCutOffIsDamage)
{
    for (const std::size_t rest : {1U, 15U, 16U, 23U, 24U, 4119U}) {
        EXPECT_EQ(read(log_.substr(0, at(2) + rest)).state, LogState::Damaged) << rest;
        EXPECT_EQ(read(log_.substr(0, at(2) + rest)).commits, 2) << rest;
    }
    EXPECT_EQ(read(log_.substr(0, at(2) + 1)).lostCommits, 0) << "perhaps it had none";
    EXPECT_EQ(read(log_.substr(0, at(2) + 16)).lostCommits, 1) << "the mark is there";
    EXPECT_EQ(read(log_ + "x").state, LogState::Damaged);
}

TEST_F(ToolWriteAheadLog, ZerosUpToTheEndMayBePaddingAndAreNoDamage)
{
    const WriteAheadLog padded = {LogState::Good, 4, 0, false, true};
    for (const std::size_t zeros : {std::size_t(4), std::size_t(100), frameSize - 1, frameSize,
                                    frameSize + 1, 3 * frameSize, 3 * frameSize + 100})
        EXPECT_EQ(read(log_ + std::string(zeros, '\0')), padded) << zeros;
    EXPECT_EQ(read(log_ + std::string(3, '\0')).state, LogState::Damaged)
        << "a page number may begin so";
    std::string log = log_;
    log.replace(at(2), std::string::npos, log.size() - at(2), '\0');
    EXPECT_EQ(read(log), (WriteAheadLog{LogState::Good, 2, 0, false, true}));
}

TEST_F(ToolWriteAheadLog, ZerosBeforeTheEndAreDamage)
{
    const std::string hole(frameSize, '\0');
    EXPECT_EQ(read(log_.substr(0, at(2)) + hole + log_.substr(at(3))),
              (WriteAheadLog{LogState::Damaged, 2, 1}));
    EXPECT_EQ(read(log_.substr(0, at(2)) + hole + log_.substr(at(3), frameSize)),
              (WriteAheadLog{LogState::Damaged, 2, 0, true}));
    EXPECT_EQ(read(log_ + hole + "no frame").state, LogState::Damaged);
    EXPECT_EQ(read(log_ + "no frame" + std::string(frameSize - 8, '\0') + hole),
              (WriteAheadLog{LogState::Damaged, 4, 0, false, true}));
}

TEST_F(ToolWriteAheadLog, CountsItsFrames)
{
    EXPECT_EQ(read(log_).frames, static_cast<std::int64_t>(frames()));
    EXPECT_EQ(read(log_.substr(0, at(1) + 1)).frames, 2);
    EXPECT_EQ(read(log_.substr(0, headerSize)).frames, 0);
}

TEST_F(ToolWriteAheadLog, EndThatIsNoFramesIsDamage)
{
    std::string log = log_;
    log.replace(at(2), std::string::npos, log.size() - at(2), '\x9d');
    EXPECT_EQ(read(log), (WriteAheadLog{LogState::Damaged, 2, 0}));
    log = log_;
    log.replace(at(frames() - 1), frameSize, frameSize, '\x9d');
    EXPECT_EQ(read(log).state, LogState::Damaged);
    log = log_.substr(0, at(1));
    log.replace(at(0), frameSize, frameSize, '\x9d');
    EXPECT_EQ(read(log), (WriteAheadLog{LogState::Damaged, 0, 0}));
}

TEST_F(ToolWriteAheadLog, ChangeWithoutACommitIsOpenAndNoDamage)
{
    EXPECT_EQ(read(log_.substr(0, at(4))), (WriteAheadLog{LogState::Good, 3, 0, true}));
    EXPECT_EQ(read(log_.substr(0, at(3))), (WriteAheadLog{LogState::Good, 3, 0, false}));
}

TEST_F(ToolWriteAheadLog, FramesOfAChangeThatWasGivenUpAreNoDamage)
{
    // A shorter change overwrote the beginning: what is left carries the salts, and sums that do
    // not go on from it.
    std::string log = log_.substr(0, at(3)) + log_.substr(at(4));
    log.resize(log.size() - frameSize);
    EXPECT_EQ(read(log), (WriteAheadLog{LogState::Good, 3, 0, true}));
}

TEST_F(ToolWriteAheadLog, WhatSqliteLeavesOfAChangeThatWasGivenUpIsNoDamage)
{
    library_.execute("pragma cache_size = 5");
    library_.execute("begin; insert into other select zeroblob(20000) from "
                     "(values (1), (2), (3), (4), (5), (6)); rollback");
    library_.execute("update other set a = 5 where a = 3");
    const std::string log = readFile(library_.path() + "-wal");
    ASSERT_GT(log.size(), log_.size() + 10 * frameSize) << "it was in the log";
    EXPECT_EQ(read(log), (WriteAheadLog{LogState::Good, 5, 0, true}));
    EXPECT_EQ(read(log.substr(0, log.size() - 1)).state, LogState::Damaged);
}

TEST_F(ToolWriteAheadLog, OneFrameThatDoesNotGoOnIsDamage)
{
    // Nothing tells it from what is left of a change that was given up, so the worse is taken.
    const std::string change = log_.substr(at(4), frameSize);
    EXPECT_EQ(read(log_.substr(0, at(3)) + change), (WriteAheadLog{LogState::Damaged, 3, 0, true}));
    EXPECT_EQ(read(log_.substr(0, at(3)) + change + std::string(frameSize, '\0')),
              (WriteAheadLog{LogState::Damaged, 3, 0, true, true}));
    EXPECT_EQ(read(log_.substr(0, at(3)) + change + change),
              (WriteAheadLog{LogState::Damaged, 3, 0, true}));
    std::string log = log_;
    for (std::size_t byte = 0; byte < 4; ++byte)
        log.at(at(frames() - 1) + 4 + byte) = '\0';
    EXPECT_EQ(read(log), (WriteAheadLog{LogState::Damaged, 3, 0, true})) << "the last mark is lost";
}

TEST_F(ToolWriteAheadLog, HalfAFrameBeforeZerosIsDamage)
{
    for (const std::size_t half : {16U, 24U, 2000U, 4000U}) {
        std::string log = log_;
        log.replace(at(4) + half, std::string::npos, log.size() - at(4) - half, '\0');
        EXPECT_EQ(read(log), (WriteAheadLog{LogState::Damaged, 3, 0, true, true})) << half;
    }
}

TEST_F(ToolWriteAheadLog, FramesBehindTheHeaderThatDoNotGoOnFromItAreDamage)
{
    const std::string change = log_.substr(at(4), at(frames() - 1) - at(4));
    ASSERT_GT(change.size(), 2 * frameSize);
    EXPECT_EQ(read(log_.substr(0, headerSize) + change),
              (WriteAheadLog{LogState::Damaged, 0, 0, true}));
}

TEST_F(ToolWriteAheadLog, FramesOfAnEarlierLogBehindItAreNoDamage)
{
    library_.execute("pragma wal_checkpoint(restart)");
    library_.execute("update other set a = 4");
    std::string log = readFile(library_.path() + "-wal");
    ASSERT_EQ(log.size(), log_.size());
    ASSERT_NE(log.substr(0, headerSize), log_.substr(0, headerSize));
    const auto isGood = [&] {
        const WriteAheadLog found = read(log);
        EXPECT_EQ(found.state, LogState::Good);
        EXPECT_FALSE(found.hasOpenChange);
        return found.commits > 0 && found.lostCommits == 0;
    };
    EXPECT_TRUE(isGood());
    log.resize(log.size() - 100); // as with a limit for its size
    EXPECT_TRUE(isGood());
    std::size_t own = 0; // frames with the salts of the header
    while (log.substr(at(own) + 8, 8) == log.substr(16, 8))
        ++own;
    log.resize(at(own) + 100);
    EXPECT_TRUE(isGood());
    log.replace(at(own - 1), frameSize, frameSize, '\x9d');
    EXPECT_EQ(read(log).state, LogState::Damaged);
}

TEST_F(ToolWriteAheadLog, AppliesAsManyCommitsAsSqlite)
{
    const std::string copy = (folder_ / "Photos.sqlite").string();
    for (std::size_t frame = 0; frame < frames(); ++frame) {
        fs::remove(copy + "-shm");
        writeFile(copy, readFile(library_.path()));
        writeFile(copy + "-wal", changed(at(frame) + 100));
        sqlite3 *database = nullptr;
        ASSERT_EQ(sqlite3_open(copy.c_str(), &database), SQLITE_OK);
        const SqliteConnection owned(database);
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(database, "select iif(count(*) > 1, 4, max(a)) from other", -1,
                           &statement, nullptr);
        const SqliteStatement ownedStatement(statement);
        ASSERT_EQ(sqlite3_step(statement), SQLITE_ROW);
        EXPECT_EQ(sqlite3_column_int(statement, 0), read(changed(at(frame) + 100)).commits)
            << frame;
    }
}

TEST_F(ToolWriteAheadLog, OfTheOtherByteOrder)
{
    // Its sums are of big-endian words; SQLite writes such logs on machines of that order.
    std::string log("\x37\x7f\x06\x83\x00\x2d\xe2\x18\x00\x00\x02\x00\x00\x00\x00\x00SALTsalt", 24);
    std::uint32_t first = 0;
    std::uint32_t second = 0;
    const auto add = [&](const std::string &bytes) {
        const auto word = [&](std::size_t place) {
            std::uint32_t value = 0;
            for (std::size_t i = 0; i < 4; ++i)
                value = value << 8U | static_cast<unsigned char>(bytes[place + i]);
            return value;
        };
        for (std::size_t place = 0; place < bytes.size(); place += 8) {
            first += word(place) + second;
            second += word(place + 4) + first;
        }
    };
    const auto sums = [&] {
        std::string text;
        for (const std::uint32_t sum : {first, second})
            for (unsigned shift = 32; shift > 0; shift -= 8)
                text += static_cast<char>(sum >> (shift - 8) & 0xffU);
        return text;
    };
    add(log);
    log += sums();
    const std::string numbers("\x00\x00\x00\x01\x00\x00\x00\x01", 8);
    const std::string page(512, 'p');
    add(numbers);
    add(page);
    log += numbers + "SALTsalt" + sums() + page;
    EXPECT_EQ(read(log), (WriteAheadLog{LogState::Good, 1, 0, false}));
    log.back() = 'q';
    EXPECT_EQ(read(log), (WriteAheadLog{LogState::Damaged, 0, 1, false}));
}
