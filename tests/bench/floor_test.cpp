#include "floor.h"
#include "store_generator.h"
#include "support/catalogue.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::bench;
using namespace iosphoto::test;

namespace {

/// The rows of each visit of the library.
std::vector<int> rowsOfLibrary(const std::string &database)
{
    OwningManager manager(database, "15.7", "iPhone14,2");
    manager.SetDefaultAlbum();
    return {manager.GetPrimarykeyTabAssetInfo(),
            manager.GetPrimarykeyTabAlbumInfo(),
            manager.GetPrimarykeyTabPhotostreamAlbumInfo(),
            manager.GetCameraAlbum(),
            manager.GetPhotosAlbum(),
            manager.GetPhotoGroups(),
            manager.GetPhotoDatas()};
}

} // namespace

TEST(BenchFloor, VisitsTheRowsThatTheLibraryVisits)
{
    const TemporaryFolder folder;
    const std::string database = (folder / "Photos.sqlite").string();
    generateStore(database, {1000, 3, 10});
    const std::vector<int> rows = Floor(database).visitAll();
    EXPECT_EQ(rows, (std::vector<int>{1, 1, 1, 990, 10, 3, 30}));
    EXPECT_EQ(rows, rowsOfLibrary(database));
}

TEST(BenchFloor, KeepsTheLogThatItReads)
{
    const TemporaryFolder folder;
    const std::string database = (folder / "Photos.sqlite").string();
    generateStore(database, {1000, 3, 10, 0, 0, true});
    const std::string log = readFile(database + "-wal");
    EXPECT_EQ(Floor(database).visitAll()[3], 990);
    EXPECT_FALSE(log.empty());
    EXPECT_TRUE(readFile(database + "-wal") == log);
}

TEST(BenchFloor, ThrowsWhereThereIsNoLibrary)
{
    const TemporaryFolder folder;
    EXPECT_THROW(Floor(folder / "Photos.sqlite").visitAll(), std::runtime_error);
}
