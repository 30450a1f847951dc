#include "sqlite/write_ahead_log.h"

#include "support/library_builder.h"
#include "support/run_tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace iosphoto::test;
using iosphoto::tool::isWriteAheadLog;
using testing::HasSubstr;

class ToolWriteAheadLog : public testing::Test
{
protected:
    ToolWriteAheadLog()
    {
        library_.execute("pragma journal_mode = wal; pragma wal_autocheckpoint = 0");
        library_.asset("IMG_0001.JPG");
        log_ = readFile(library_.path() + "-wal");
        EXPECT_GT(log_.size(), 8192U);
    }

    bool isLog(const std::string &content) const
    {
        writeFile(folder_ / "log", content);
        return isWriteAheadLog(folder_ / "log");
    }

    std::string changed(std::size_t at) const
    {
        std::string log = log_;
        log[at] ^= '\x01';
        return log;
    }

    LibraryBuilder library_ = LibraryBuilder(ios15);
    TemporaryFolder folder_;
    std::string log_;
};

TEST_F(ToolWriteAheadLog, IsKnownByItsHeader)
{
    constexpr std::size_t headerSize = 32;
    EXPECT_TRUE(isLog(log_));
    EXPECT_TRUE(isLog(log_.substr(0, headerSize)));
    for (std::size_t at = 0; at < headerSize; ++at)
        EXPECT_FALSE(isLog(changed(at))) << at;
    EXPECT_FALSE(isLog(log_.substr(0, headerSize - 1)));
    EXPECT_FALSE(isLog(""));
    EXPECT_FALSE(isWriteAheadLog(folder_ / "missing"));
}

TEST_F(ToolWriteAheadLog, IsKnownByItsFirstFrame)
{
    constexpr std::size_t frame = 32;
    constexpr std::size_t salt = frame + 8;
    constexpr std::size_t sum = frame + 16;
    constexpr std::size_t page = frame + 24;
    for (const std::size_t at : {frame, frame + 7, sum, sum + 7, page, page + 100})
        EXPECT_FALSE(isLog(changed(at))) << at;
    EXPECT_TRUE(isLog(changed(salt))) << "it is left over";
    EXPECT_TRUE(isLog(log_.substr(0, page + 100))) << "it was being written";
}

TEST_F(ToolWriteAheadLog, OfTheOtherByteOrder)
{
    // The header of an empty log of 4096-byte pages whose sums are of big-endian words.
    const std::string header("\x37\x7f\x06\x83\x00\x2d\xe2\x18\x00\x00\x10\x00", 12);
    std::string rest(12, '\0');
    std::uint32_t first = 0;
    std::uint32_t second = 0;
    const std::string summed = header + rest;
    const auto word = [&](std::size_t at) {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < 4; ++i)
            value = value << 8U | static_cast<unsigned char>(summed[at + i]);
        return value;
    };
    for (std::size_t at = 0; at < summed.size(); at += 8) {
        first += word(at) + second;
        second += word(at + 4) + first;
    }
    std::string sums;
    for (const std::uint32_t sum : {first, second})
        for (unsigned shift = 32; shift > 0; shift -= 8)
            sums += static_cast<char>(sum >> (shift - 8) & 0xffU);
    EXPECT_TRUE(isLog(summed + sums));
}

TEST_F(ToolWriteAheadLog, ThatIsDamagedIsSaid)
{
    constexpr std::size_t page = 56;
    const std::string copy = (folder_ / "Photos.sqlite").string();
    writeFile(copy, readFile(library_.path()));
    writeFile(copy + "-wal", changed(page + 100));
    const ToolRun run = runTool({"albums", copy});
    EXPECT_THAT(run.error, HasSubstr("the -wal of '" + copy + "' is no write-ahead log"));
    EXPECT_EQ(run.status, 1);
}
