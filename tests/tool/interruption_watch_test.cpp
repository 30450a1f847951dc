#include "interruption_watch.h"

#include "files/output_file.h"
#include "process/temporary_path.h"
#include "session/session.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <unistd.h>

using namespace iosphoto::test;
using namespace iosphoto::tool;

namespace fs = std::filesystem;

// Each runs the watch in a process of its own, which an interruption ends.
class InterruptionWatchDeathTest : public testing::Test
{
protected:
    Session session_;
    TemporaryFolder folder_;
    static constexpr const char *lastWords =
        "^iosphoto: interrupted; every file that was written is complete\n$";
};

TEST_F(InterruptionWatchDeathTest, RemovesWhatACommandStillWorksOn)
{
    const auto work = [this] {
        const InterruptionWatch watch(session_.terminal);
        const TemporaryPath folder([this] {
            fs::create_directory(folder_ / "passing");
            return folder_ / "passing";
        });
        kill(getpid(), SIGTERM);
        for (int number = 0;; ++number) // files come while the folder is removed
            writeFile(folder.path() / std::to_string(number), "content");
    };
    EXPECT_EXIT(work(), testing::ExitedWithCode(128 + SIGTERM), lastWords);
    EXPECT_TRUE(fs::is_empty(folder_.path()));
}

TEST_F(InterruptionWatchDeathTest, LeavesOnlyWholeFiles)
{
    const QByteArray content(3000000, 'x');
    const auto work = [&] {
        const InterruptionWatch watch(session_.terminal);
        std::atomic<bool> isUnderWay = false;
        std::thread user([&] {
            while (!isUnderWay)
                std::this_thread::yield();
            kill(getpid(), SIGINT);
        });
        for (;;) {
            writeOutput(session_.files, folder_ / "out", content, folder_ / "source");
            isUnderWay = true;
        }
    };
    for (int repetition = 0; repetition < 5; ++repetition) {
        EXPECT_EXIT(work(), testing::ExitedWithCode(128 + SIGINT), lastWords);
        ASSERT_EQ(std::distance(fs::directory_iterator(folder_.path()), {}), 1);
        EXPECT_EQ(readFile(folder_ / "out"), content.toStdString());
    }
}

TEST_F(InterruptionWatchDeathTest, KeepsItsConsequencesFromBeingSaid)
{
    const auto work = [this] {
        const InterruptionWatch watch(session_.terminal);
        const TemporaryPath file([this] {
            writeFile(folder_ / "passing", "content");
            return folder_ / "passing";
        });
        kill(getpid(), SIGHUP);
        while (exists(file.path()))
            std::this_thread::yield();
        session_.terminal.printWarning("a file is missing");
        std::_Exit(1);
    };
    EXPECT_EXIT(work(), testing::ExitedWithCode(128 + SIGHUP), lastWords);
}

TEST_F(InterruptionWatchDeathTest, EndsWithTheCommand)
{
    const auto work = [this] {
        {
            const InterruptionWatch watch(session_.terminal);
        }
        kill(getpid(), SIGTERM);
        std::_Exit(7);
    };
    EXPECT_EXIT(work(), testing::ExitedWithCode(7), "^$");
}
