// What docs/performance.md says that a photo takes is what it takes.
#include "catalogue/library.h"
#include "commands/command.h"
#include "device.h"
#include "library_run.h"
#include "memory/failing_allocation.h"
#include "memory/heap_use.h"
#include "store_generator.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

constexpr int photos = 50000;
/// What does not grow with the library: buffers, SQLite's pages, what is made once.
constexpr long fixed = 600 * 1024;

/// The number of a line "| what | number |" of the page.
long documented(const std::string &what)
{
    const std::string page =
        readFile(std::filesystem::path(IOSPHOTO_SOURCE) / "docs/performance.md");
    const std::string mark = "| " + what + " | ";
    const std::size_t line = page.find(mark);
    return line != std::string::npos ? std::stol(page.substr(line + mark.size())) : -1;
}

using MakeCommand = tool::Command (*)(CLI::App &app);

class BytesAPhoto : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        if (!FailingMalloc::isPossible())
            return;
        folder_ = new TemporaryFolder();
        bench::StoreShape shape = {photos, 20, 50};
        bench::generateStore(*folder_ / "Photos.sqlite", shape);
        shape.albums += 1; // of the newest photos, which were moved therefore
        bench::generateStore(*folder_ / "later.sqlite", shape);
        peakOf(tool::addPhotos, {"photos", database()}); // what is made once and kept
    }

    static void TearDownTestSuite()
    {
        delete folder_;
        folder_ = nullptr;
    }

    void SetUp() override
    {
        if (!FailingMalloc::isPossible())
            GTEST_SKIP() << "malloc cannot be counted here";
    }

    static std::string database() { return *folder_ / "Photos.sqlite"; }
    static std::string later() { return *folder_ / "later.sqlite"; }
    static std::string output() { return *folder_ / "out.db"; }

    /// The most that a command holds at a time.
    static long peakOf(MakeCommand make, std::vector<std::string> arguments)
    {
        CLI::App app;
        const tool::Command command = make(app);
        for (const std::string &option :
             {"--product", bench::productType, "--ios", bench::iosVersion})
            arguments.push_back(option);
        std::reverse(arguments.begin(), arguments.end());
        app.parse(arguments);
        tool::Session session;
        session.terminal.beQuiet();
        std::ofstream nowhere("/dev/null");
        const long before = heapBytes();
        forgetHeapPeak();
        command.run(session, nowhere);
        return heapPeak() - before;
    }

    static long buildOf(const std::string &file)
    {
        return peakOf(tool::addAlbums, {"albums", file});
    }

    static long catalogue()
    {
        const long before = heapBytes();
        bench::LibraryRun library;
        library.read(database());
        return heapBytes() - before;
    }

private:
    static TemporaryFolder *folder_;
};

TemporaryFolder *BytesAPhoto::folder_ = nullptr;

/// That so many bytes for all photos are what the page says, and no less than it says.
void expectDocumented(long bytes, const std::string &what)
{
    EXPECT_LE(bytes, documented(what) * photos + fixed) << what;
    EXPECT_GE(bytes + fixed, documented(what) * photos) << what;
}

} // namespace

TEST_F(BytesAPhoto, CatalogueTakesWhatThePageSays)
{
    expectDocumented(catalogue(), "a catalogue");
}

TEST_F(BytesAPhoto, RowsTakeWhatThePageSaysBesideTheCatalogue)
{
    const long build = buildOf(database());
    for (const char *format : {"--json", "--jsonl", "--csv"}) {
        SCOPED_TRACE(format);
        expectDocumented(peakOf(tool::addPhotos, {"photos", database(), format}) - build, "rows");
    }
    constexpr long pagesOfTheOutput = 4L * 1024 * 1024; // that SQLite keeps, for any library
    EXPECT_LT(peakOf(tool::addPhotos, {"photos", database(), "--sqlite", output()}) - build,
              documented("rows") * photos + pagesOfTheOutput);
}

TEST_F(BytesAPhoto, TablesTakeWhatThePageSaysBesideTheCatalogue)
{
    const long build = buildOf(database());
    expectDocumented(peakOf(tool::addPhotos, {"photos", database()}) - build, "tables");
}

TEST_F(BytesAPhoto, FewPhotosOfManyTakeNoMoreInAnyOrder)
{
    const long build = buildOf(database());
    for (const char *order : {"date", "name", "size", "duration", "deleted"}) {
        SCOPED_TRACE(order);
        const long peak =
            peakOf(tool::addPhotos, {"photos", database(), "--sort", order, "--limit", "20"});
        EXPECT_LE(peak - build, documented("rows") * photos + fixed);
    }
}

TEST_F(BytesAPhoto, DifferencesTakeWhatThePageSaysBesideBothCatalogues)
{
    const long both = catalogue() + buildOf(later());
    expectDocumented(peakOf(tool::addDiff, {"diff", database(), later()}) - both, "differences");
}
