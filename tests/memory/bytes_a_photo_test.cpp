// What docs/performance.md says that a photo takes is what it takes.
#include "catalogue/burst_frames.h"
#include "catalogue/difference.h"
#include "catalogue/library.h"
#include "catalogue/photo_selection.h"
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

constexpr int photos = 20000;
/// What does not grow with the library: buffers, SQLite's pages, what is made once.
constexpr long fixed = 800L * 1024;

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
        for (const char *option : {"--product", bench::productType, "--ios", bench::iosVersion})
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

/// That so many bytes for all photos are what the page says, no more and no less.
void expectDocumented(long bytes, const std::string &what, long tolerance)
{
    EXPECT_NEAR(static_cast<double>(bytes), static_cast<double>(documented(what) * photos),
                static_cast<double>(tolerance));
}

/// A library that was read, and the most that is held beside it meanwhile.
class ReadLibrary
{
public:
    explicit ReadLibrary(const std::string &file)
        : library_(session_, request(file)), before_(heapBytes())
    {
        forgetHeapPeak();
    }

    const tool::Library &operator*() const { return library_; }
    long peakBeside() const { return heapPeak() - before_; }

private:
    static tool::LibraryRequest request(const std::string &file)
    {
        tool::LibraryRequest request;
        request.source = file;
        request.device = {bench::iosVersion, bench::productType};
        return request;
    }

    tool::Session session_;
    tool::Library library_;
    long before_;
};

} // namespace

TEST_F(BytesAPhoto, CatalogueTakesWhatThePageSays)
{
    expectDocumented(catalogue(), "a catalogue", fixed);
}

TEST_F(BytesAPhoto, ChosenPhotosTakeWhatThePageSaysOfRowsAndTables)
{
    const ReadLibrary read(database());
    const tool::AssetList assets((*read).albums());
    const tool::BurstFrames bursts(assets);
    const tool::AssetList leftOut((*read).leftOutPhotos().records());
    EXPECT_EQ(tool::choosePhotos({}, {}, *read, assets, leftOut).size(), photos);
    constexpr long tolerance = 16L * 1024;
    expectDocumented(read.peakBeside(), "rows", tolerance);
    expectDocumented(read.peakBeside(), "tables", tolerance);
}

TEST_F(BytesAPhoto, DifferencesTakeWhatThePageSays)
{
    const ReadLibrary after(later());
    const ReadLibrary before(database());
    const tool::AssetList first((*before).albums());
    const tool::AssetList second((*after).albums());
    const auto snapshot = [](const tool::Library &library, const tool::AssetList &assets) {
        return tool::Snapshot{assets, library.dates(), library.trash(),
                              library.schema().unknownFields};
    };
    EXPECT_EQ(tool::comparePhotos(snapshot(*before, first), snapshot(*after, second)).inBoth,
              photos);
    constexpr long tolerance = 32L * 1024;
    expectDocumented(before.peakBeside(), "differences", tolerance);
}

TEST_F(BytesAPhoto, RowsAndTablesAddNoMoreToTheBuild)
{
    const long build = buildOf(database());
    for (const char *format : {"--json", "--jsonl", "--csv"}) {
        SCOPED_TRACE(format);
        EXPECT_LE(peakOf(tool::addPhotos, {"photos", database(), format}) - build,
                  documented("rows") * photos);
    }
    EXPECT_LE(peakOf(tool::addPhotos, {"photos", database()}) - build,
              documented("tables") * photos);
    constexpr long pagesOfTheOutput = 4L * 1024 * 1024; // that SQLite keeps, for any library
    EXPECT_LE(peakOf(tool::addPhotos, {"photos", database(), "--sqlite", output()}) - build,
              documented("rows") * photos + pagesOfTheOutput);
}

TEST_F(BytesAPhoto, FewPhotosOfManyAddNoMoreInAnyOrder)
{
    const long build = buildOf(database());
    for (const char *order : {"name", "size"})
        EXPECT_LE(
            peakOf(tool::addPhotos, {"photos", database(), "--sort", order, "--limit", "20"}) -
                build,
            documented("rows") * photos)
            << order;
}

TEST_F(BytesAPhoto, DifferencesAddNoMoreToOneCatalogueAndTheBuildOfTheOther)
{
    EXPECT_LE(peakOf(tool::addDiff, {"diff", database(), later()}),
              catalogue() + buildOf(later()) + documented("differences") * photos);
}
