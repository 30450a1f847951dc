#include "support/case_name.h"
#include "support/expect_failure.h"
#include "support/library_builder.h"

#include <chrono>
#include <csignal>
#include <sys/stat.h>
#include <thread>

using namespace iosphoto::test;

namespace fs = std::filesystem;

namespace {

/// Waits until `isTrue`; 20 seconds at most.
template <typename Condition>
bool wait(Condition isTrue)
{
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::seconds(20);
    while (!isTrue() && Clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return isTrue();
}

/// The tool on a library, with a temporary folder of its own.
class ToolOnLibrary
{
public:
    explicit ToolOnLibrary(
        const LibraryBuilder &library, const std::function<void()> &prepare = [] {})
        : tool_({"photos", library.path()}, {{"TMPDIR", temporary_.path().string()}}, prepare)
    {
    }

    /// Waits for the private copy to have as much of the database as there is.
    bool hasCopied(const fs::path &database) const
    {
        return wait([&] { return sizeOfCopy() == fs::file_size(database); });
    }
    void send(int signal) const { tool_.send(signal); }
    ToolRun result() { return tool_.result(); }
    bool leftNothing() const { return fs::is_empty(temporary_.path()); }

private:
    std::uintmax_t sizeOfCopy() const
    {
        std::error_code missing;
        for (const auto &folder : fs::directory_iterator(temporary_.path()))
            return fs::file_size(folder.path() / "Photos.sqlite", missing);
        return 0;
    }

    TemporaryFolder temporary_;
    RunningTool tool_;
};

/// Gives a table so many rows that reading them takes a while.
void makeLong(LibraryBuilder &library)
{
    library.asset("IMG_0001.JPG").in(library.album("Trip"));
    library.execute("with recursive number(i) as (values(1000) union all select i + 1 from number "
                    "limit 1000000) "
                    "insert into Z_27ASSETS (Z_27ALBUMS, Z_3ASSETS) select 1, i from number");
    library.close();
}

struct Signal
{
    const char *text;
    int number;

    std::string name() const { return text; }
};

const std::string lastWords = "interrupted; every file that was written is complete\n";

} // namespace

class ToolInterruption : public testing::TestWithParam<Signal>
{
};

TEST_P(ToolInterruption, LeavesNothingWhileTheDatabaseIsRead)
{
    LibraryBuilder library(ios15);
    makeLong(library);
    ToolOnLibrary tool(library);
    ASSERT_TRUE(tool.hasCopied(library.path()));
    tool.send(GetParam().number);
    expectFailure(tool.result(), lastWords, 128 + GetParam().number);
    EXPECT_TRUE(tool.leftNothing());
}

TEST_P(ToolInterruption, LeavesNothingWhileTheDatabaseIsCopied)
{
    LibraryBuilder library(ios15);
    library.close();
    constexpr std::uintmax_t takesSeconds = 8'000'000'000; // of which the disk holds nothing
    writeFile(library.path() + "-wal", "");
    fs::resize_file(library.path() + "-wal", takesSeconds);
    ToolOnLibrary tool(library);
    ASSERT_TRUE(tool.hasCopied(library.path()));
    tool.send(GetParam().number);
    expectFailure(tool.result(), lastWords, 128 + GetParam().number);
    EXPECT_TRUE(tool.leftNothing());
}

TEST_P(ToolInterruption, DoesNotHappenWhereTheSignalIsIgnored)
{
    LibraryBuilder library(ios15);
    makeLong(library);
    const int ignored = GetParam().number;
    const int other = ignored == SIGTERM ? SIGINT : SIGTERM;
    ToolOnLibrary tool(library, [=] { std::signal(ignored, SIG_IGN); });
    ASSERT_TRUE(tool.hasCopied(library.path()));
    tool.send(ignored);
    tool.send(other);
    expectFailure(tool.result(), lastWords, 128 + other);
}

TEST(ToolThatIsKilled, IsCleanedUpAfterByTheNext)
{
    LibraryBuilder library(ios15);
    makeLong(library);
    const TemporaryFolder temporary;
    const Environment environment = {{"TMPDIR", temporary.path().string()}};
    const auto folders = [&] {
        return std::distance(fs::directory_iterator(temporary.path()), fs::directory_iterator());
    };
    RunningTool killed({"photos", library.path()}, environment);
    ASSERT_TRUE(wait([&] { return folders() == 1; }));
    RunningTool living({"photos", library.path()}, environment);
    ASSERT_TRUE(wait([&] { return folders() == 2; })) << "it takes away what is used";
    killed.send(SIGKILL);
    killed.result();
    EXPECT_EQ(folders(), 2);

    LibraryBuilder other(ios15);
    EXPECT_EQ(runTool({"albums", other.path()}, environment).status, 0);
    EXPECT_EQ(folders(), 1);
    living.send(SIGTERM);
    living.result();
    EXPECT_EQ(folders(), 0);
}

INSTANTIATE_TEST_SUITE_P(Signals, ToolInterruption,
                         testing::Values(Signal{"Interrupt", SIGINT}, Signal{"Terminate", SIGTERM},
                                         Signal{"HangUp", SIGHUP}),
                         NameOfCase());
