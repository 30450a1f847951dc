#include "support/library_builder.h"
#include "support/run_on.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using testing::HasSubstr;

TEST(ToolIncompleteSource, LogThatIsNoneIsSaid)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    library.close();
    writeFile(library.path() + "-wal", std::string(5000, 'x'));

    const ToolRun run = runOn(library, "photos");

    EXPECT_THAT(run.out, HasSubstr("IMG_0001.JPG"));
    EXPECT_EQ(run.error, "iosphoto: the -wal of '" + library.path() +
                             "' is no write-ahead log, so changes that it was to hold are missing; "
                             "copy it from the device or the backup again, its -wal with it\n");
    EXPECT_EQ(run.status, 1);
}

TEST(ToolIncompleteSource, DatabaseThatLacksALittleIsSaid)
{
    LibraryBuilder library(ios15);
    for (int i = 0; i < 100; ++i)
        library.asset("IMG_" + std::to_string(i) + ".JPG");
    library.execute("create table LAST as select 'x'");
    library.close();
    const auto whole = std::filesystem::file_size(library.path());
    std::filesystem::resize_file(library.path(), whole - 500);

    const ToolRun run = runOn(library, "info", {"--json"});

    EXPECT_EQ(run.error, "iosphoto: '" + library.path() + "' is cut short: " +
                             std::to_string(whole - 500) + " of its " + std::to_string(whole) +
                             " bytes are there, so photos and albums may be missing; copy it from "
                             "the device or the backup again, its -wal with it\n");
    EXPECT_EQ(nlohmann::json::parse(run.out)["isComplete"], false);
    EXPECT_EQ(run.status, 1);
}

TEST(ToolIncompleteSource, IsSaidOfItsStatementsToo)
{
    LibraryBuilder library(ios15);
    library.close();
    writeFile(library.path() + "-wal", std::string(5000, 'x'));

    const ToolRun run = runTool(
        {"statements", library.path(), "--ios", "15.0", "--product", "iPhone14,2", "--quiet"});

    EXPECT_THAT(run.out, HasSubstr("-- pass camera-roll, "));
    EXPECT_THAT(run.error, HasSubstr("' is no write-ahead log"));
    EXPECT_EQ(run.status, 1);
}

/// A library whose write-ahead log holds four commits of a frame each, in which a photo gets a new
/// name.
class ToolIncompleteLog : public testing::Test
{
protected:
    ToolIncompleteLog()
    {
        library_.madeBy(15502, "19H12");
        library_.asset("IMG_0001.JPG");
        library_.execute("pragma journal_mode = wal; pragma wal_autocheckpoint = 0");
        for (const char *name : {"first", "second", "third", "fourth"})
            library_.execute(std::string("update ZASSET set ZFILENAME = '") + name + ".JPG'");
        log_ = readFile(library_.path() + "-wal");
        EXPECT_EQ(log_.size(), headerSize + 4 * frameSize);
    }

    ToolRun runWith(const std::string &log, const std::string &command = "photos",
                    std::vector<std::string> options = {"--quiet"}) const
    {
        writeFile(copy_, readFile(library_.path()));
        writeFile(copy_ + "-wal", log);
        options.insert(options.begin(), {command, copy_});
        return runTool(options);
    }

    std::string changed(std::size_t at) const
    {
        std::string log = log_;
        log.at(at) = static_cast<char>(log.at(at) ^ 4);
        return log;
    }

    std::string damaged(const std::string &how) const
    {
        return "iosphoto: the -wal of '" + copy_ + "' is damaged: it is good up to commit " + how +
               "; copy it from the device or the backup again, its -wal with it\n";
    }

    static constexpr std::size_t headerSize = 32;
    static constexpr std::size_t frameSize = 24 + 4096;
    LibraryBuilder library_{ios15};
    TemporaryFolder folder_;
    std::string copy_ = (folder_ / "Photos.sqlite").string();
    std::string log_;
};

TEST_F(ToolIncompleteLog, WithAFlippedBitIsSaidToBeGoodUpToACommit)
{
    const ToolRun run = runWith(changed(headerSize + 2 * frameSize + 500));
    EXPECT_THAT(run.out, HasSubstr("second.JPG"));
    EXPECT_EQ(run.error, damaged("2 of at least 4; later changes are missing"));
    EXPECT_EQ(run.status, 1);

    const ToolRun first = runWith(changed(headerSize + 500));
    EXPECT_THAT(first.out, HasSubstr("IMG_0001.JPG"));
    EXPECT_EQ(first.error, damaged("0 of at least 4; later changes are missing"));
    EXPECT_EQ(first.status, 1);
}

TEST_F(ToolIncompleteLog, WithATornEndIsSaidToBeGoodUpToACommit)
{
    const ToolRun run = runWith(log_.substr(0, log_.size() - 1));
    EXPECT_THAT(run.out, HasSubstr("third.JPG"));
    EXPECT_EQ(run.error, damaged("3 of at least 4; later changes are missing"));
    EXPECT_EQ(run.status, 1);
}

TEST_F(ToolIncompleteLog, ThatIsCutShortBeforeAnyMarkIsNotSaidToHaveMore)
{
    const ToolRun run = runWith(log_.substr(0, headerSize + 3 * frameSize + 3));
    EXPECT_EQ(run.error,
              damaged("3 of at least 3, and what follows is no sound frame; later changes may "
                      "be missing"));
    EXPECT_EQ(run.status, 1);
}

TEST_F(ToolIncompleteLog, IsToldByTheDocuments)
{
    const auto isComplete = [](const ToolRun &run) {
        return nlohmann::json::parse(run.out)["isComplete"];
    };
    const std::string broken = changed(headerSize + 500);
    for (const char *command : {"info", "albums", "photos"}) {
        EXPECT_EQ(isComplete(runWith(broken, command, {"--json"})), false) << command;
        EXPECT_EQ(isComplete(runWith(log_, command, {"--json"})), true) << command;
    }
}

TEST_F(ToolIncompleteLog, MakesADifferenceUncertain)
{
    const ToolRun run = runWith(changed(headerSize + 500), "diff", {library_.path(), "--quiet"});
    EXPECT_THAT(run.error, HasSubstr("iosphoto: A: the -wal of"));
    EXPECT_EQ(run.status, 3);
}

TEST_F(ToolIncompleteLog, IsSaidOfItsStatementsToo)
{
    const ToolRun run = runWith(changed(headerSize + 500), "statements");
    EXPECT_THAT(run.error, HasSubstr("is good up to commit 0 of at least 4"));
    EXPECT_EQ(run.status, 1);
}

TEST_F(ToolIncompleteLog, ChangeWithoutACommitIsSaidAndIsNoDamage)
{
    library_.execute("begin; update ZASSET set ZFILENAME = 'open.JPG'; "
                     "create table filler as with recursive n(i) as (values(1) union all select i "
                     "+ 1 from n limit 99) select zeroblob(4000) as a from n; commit");
    const std::string log = readFile(library_.path() + "-wal");
    ASSERT_GT(log.size(), log_.size() + 2 * frameSize);
    const ToolRun run = runWith(log.substr(0, log_.size() + 2 * frameSize));
    EXPECT_THAT(run.out, HasSubstr("fourth.JPG"));
    EXPECT_EQ(run.error,
              "iosphoto: the -wal of '" + copy_ +
                  "' ends in a change without a commit, which is left out: either the "
                  "device was still writing it or gave it up, and nothing is missing, or "
                  "the log was cut or damaged there, and the change is\n");
    EXPECT_EQ(run.status, 0);
}

TEST_F(ToolIncompleteLog, ZerosAtItsEndAreSaidAndAreNoDamage)
{
    for (const std::size_t zeros : {std::size_t(100), frameSize, 2 * frameSize + 100}) {
        const ToolRun run = runWith(log_ + std::string(zeros, '\0'));
        EXPECT_THAT(run.out, HasSubstr("fourth.JPG"));
        EXPECT_EQ(run.error, "iosphoto: the -wal of '" + copy_ +
                                 "' ends in zeros: either a copy was padded with them, and nothing "
                                 "is missing, or they replaced changes, and these are\n");
        EXPECT_EQ(run.status, 0);
    }
    const ToolRun run =
        runWith(log_.substr(0, headerSize + frameSize) + std::string(frameSize, '\0') +
                log_.substr(headerSize + 2 * frameSize));
    EXPECT_EQ(run.error, damaged("1 of at least 3; later changes are missing"));
    EXPECT_EQ(run.status, 1);
}

TEST_F(ToolIncompleteLog, HeaderAloneIsSaid)
{
    const ToolRun run = runWith(log_.substr(0, headerSize), "info", {"--quiet"});
    EXPECT_THAT(run.out, HasSubstr("\n\nNo commit is seen in the write-ahead log (-wal): none was "
                                   "written, or it was cut or damaged. Nothing of it is shown.\n"));
    EXPECT_EQ(run.error,
              "iosphoto: the -wal of '" + copy_ +
                  "' has a header and no change: either none was written yet, and nothing "
                  "is missing, or the log was cut behind its header, and its changes "
                  "are\n");
    EXPECT_EQ(run.status, 0);
}

TEST_F(ToolIncompleteLog, WithADamagedHeaderIsSaidToHoldCommits)
{
    const ToolRun run = runWith(changed(headerSize - 1));
    EXPECT_THAT(run.out, HasSubstr("IMG_0001.JPG"));
    EXPECT_EQ(run.error, "iosphoto: the -wal of '" + copy_ +
                             "' has a damaged header, so none of its commits (at least 4) is "
                             "applied, and their changes are missing; copy it from the device or "
                             "the backup again, its -wal with it\n");
    EXPECT_EQ(run.status, 1);
}

TEST_F(ToolIncompleteLog, WithoutAGoodCommitChangesNothing)
{
    const ToolRun run = runWith(changed(headerSize + 500), "info");
    EXPECT_THAT(run.out,
                HasSubstr("\n\nThe write-ahead log (-wal) is damaged: no commit of it is good, so "
                          "nothing of it is shown.\n"));
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(
        runWith(changed(headerSize - 1), "info").out,
        HasSubstr("\n\nThe write-ahead log (-wal) has a damaged header, so nothing of it is "
                  "shown.\n"));
}

TEST_F(ToolIncompleteLog, IsSaidToBeDamagedBesideWhatItChanges)
{
    const std::string out = runWith(changed(headerSize + 2 * frameSize + 500), "info").out;
    EXPECT_THAT(out,
                HasSubstr("\n\nThe write-ahead log (-wal) is damaged: it is good up to commit 2 "
                          "of at least 4.\nIN THE LOG ONLY "));
}

TEST_F(ToolIncompleteLog, ChangesNothingAsFarAsItIsGood)
{
    library_.execute("pragma wal_checkpoint(truncate); create table other (a)");
    const std::string log = readFile(library_.path() + "-wal");
    const auto shown = [&](const std::string &bytes) {
        const std::string out = runWith(bytes, "info").out;
        return out.substr(out.rfind("\n\n") + 2);
    };
    const std::string goodPart =
        "As far as it is good, the write-ahead log (-wal) changes nothing that is shown.\n";
    EXPECT_EQ(shown(log), "The write-ahead log (-wal) changes nothing that is shown.\n");
    EXPECT_EQ(shown(log + std::string(frameSize, '\0')), goodPart);
    EXPECT_EQ(shown(log + log.substr(headerSize)),
              "The write-ahead log (-wal) is damaged: it is good up to commit 1 of at least 2.\n" +
                  goodPart);
}

TEST_F(ToolIncompleteLog, ThatWasBegunAnewIsComplete)
{
    library_.execute("pragma wal_checkpoint(restart); update ZASSET set ZFILENAME = 'anew.JPG'");
    const std::string log = readFile(library_.path() + "-wal");
    ASSERT_EQ(log.size(), log_.size()) << "with frames of the earlier log";
    const ToolRun run = runWith(log);
    EXPECT_THAT(run.out, HasSubstr("anew.JPG"));
    EXPECT_EQ(run.error, "");
    EXPECT_EQ(run.status, 0);
}
