#include "files/consistent_copy.h"

#include "process/failure.h"
#include "support/meanwhile.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <sys/stat.h>
#include <thread>

using namespace iosphoto::test;
using iosphoto::tool::Copy;
using iosphoto::tool::copyConsistently;
using iosphoto::tool::Failure;
using iosphoto::tool::waitUntilSettled;

namespace fs = std::filesystem;

namespace {

class ToolConsistentCopy : public testing::Test
{
protected:
    ToolConsistentCopy()
    {
        writeFile(database_, std::string(1'000'000, 'd'));
        writeFile(log_, "log");
    }

    std::vector<Copy> all() const
    {
        return {{database_, folder_ / "copy"}, {log_, folder_ / "copy-wal"}};
    }

    /// Copies, with that way to wait; the failure's text, if it fails.
    std::string failure(const std::function<void()> &wait = waitUntilSettled) const
    {
        try {
            copyConsistently(all(), wait);
        } catch (const Failure &failure) {
            EXPECT_EQ(failure.status(), iosphoto::tool::CannotAccess);
            return failure.what();
        }
        return "";
    }

    /// The same while that is done to the source all the time.
    std::string failureWhile(std::function<void()> action) const
    {
        const Meanwhile meanwhile(std::move(action));
        return failure([&] { meanwhile.waitForNext(); });
    }

    std::string changes() const
    {
        return "'" + database_.string() +
               "' changes while it is copied; close what writes to it, "
               "or copy it with its -wal first";
    }

    TemporaryFolder folder_;
    fs::path database_ = folder_ / "Photos.sqlite";
    fs::path log_ = folder_ / "Photos.sqlite-wal";
};

} // namespace

TEST_F(ToolConsistentCopy, HasTheContentAndTimesAndIsForTheOwnerOnly)
{
    fs::permissions(database_, fs::perms::all);
    copyConsistently(all());
    EXPECT_EQ(readFile(folder_ / "copy"), readFile(database_));
    EXPECT_EQ(readFile(folder_ / "copy-wal"), "log");
    EXPECT_EQ(fs::last_write_time(folder_ / "copy"), fs::last_write_time(database_));
    EXPECT_EQ(fs::status(folder_ / "copy").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(ToolConsistentCopy, PassesOverWhatIsNotThere)
{
    fs::remove(log_);
    copyConsistently(all());
    EXPECT_TRUE(fs::exists(folder_ / "copy"));
    EXPECT_FALSE(fs::exists(folder_ / "copy-wal"));
}

TEST_F(ToolConsistentCopy, FailsWhenTheDatabaseIsWrittenAllTheTime)
{
    EXPECT_EQ(failureWhile([this] {
                  std::fstream(database_, std::ios::in | std::ios::out | std::ios::binary) << 'x';
              }),
              changes());
}

TEST_F(ToolConsistentCopy, FailsWhenTheLogGrowsAllTheTime)
{
    EXPECT_EQ(failureWhile([this] { std::ofstream(log_, std::ios::app) << 'x'; }), changes());
}

TEST_F(ToolConsistentCopy, FailsWhenTheLogIsReplacedAllTheTime)
{
    EXPECT_EQ(failureWhile([this] {
                  writeFile(folder_ / "new", "log");
                  fs::rename(folder_ / "new", log_);
              }),
              changes());
}

TEST_F(ToolConsistentCopy, FailsWhenTimesAreSetBack)
{
    EXPECT_EQ(failureWhile([this] {
                  const auto time = fs::last_write_time(database_);
                  std::fstream(database_, std::ios::in | std::ios::out | std::ios::binary) << 'x';
                  fs::last_write_time(database_, time);
              }),
              changes());
}

TEST_F(ToolConsistentCopy, TriesAgainAfterAChange)
{
    int waits = 0;
    EXPECT_EQ(failure([&] {
                  writeFile(log_, "newer log");
                  if (++waits == 3)
                      waitUntilSettled();
              }),
              "");
    EXPECT_EQ(waits, 3);
    EXPECT_EQ(readFile(folder_ / "copy-wal"), "newer log");
}

TEST_F(ToolConsistentCopy, GivesUpAfterThreeTries)
{
    int waits = 0;
    EXPECT_EQ(failure([&] {
                  ++waits;
                  writeFile(log_, "newer log");
              }),
              changes());
    EXPECT_EQ(waits, 3);
}

TEST_F(ToolConsistentCopy, DoesNotWaitForAPipe)
{
    fs::remove(log_);
    ASSERT_EQ(mkfifo(log_.c_str(), 0600), 0);
    EXPECT_EQ(failure(), "cannot read '" + log_.string() + "': it is not a file; name a file");
}
