#include "support/report.h"
#include "support/temporary_files.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

using namespace iosphoto;
using namespace iosphoto::test;

TEST(Sorting, NeedsNoRoomOnTheDisk)
{
    LibraryBuilder library(ios15);
    const AlbumRow trip = library.album("Trip");
    library.execute("begin");
    for (int i = 0; i < 1500; ++i) // 4.5 MB to sort, where SQLite keeps 2 MB
        library.asset("IMG_0001.JPG").set("ZDIRECTORY", std::string(3000, 'x')).in(trip);
    library.execute("commit");
    library.close();

    const NoTemporaryFiles disk;
    const ReportedBuild build(library);

    EXPECT_EQ(NoTemporaryFiles::attempts(), 0);
    EXPECT_TRUE(build.report.isComplete());
    EXPECT_EQ(build.cameraRoll().size(), 1500U);
    EXPECT_EQ(build.of(Pass::AlbumContents).rows, 1500);
}

TEST(Sorting, OfTheContentsOfAlbumsTakesNoMemoryForPhotosInNone)
{
    LibraryBuilder library(ios15);
    library.execute("begin");
    for (int i = 0; i < 1500; ++i)
        library.asset("IMG_0001.JPG").set("ZDIRECTORY", std::string(3000, 'x'));
    library.asset("IMG_0002.JPG").in(library.album("Trip"));
    library.execute("commit");
    library.close();
    OwningManager manager(library);
    manager.prepare();
    manager.GetCameraAlbum();
    manager.GetPhotoGroups();
    sqlite3_memory_highwater(1);
    const sqlite3_int64 before = sqlite3_memory_used();
    EXPECT_EQ(manager.GetPhotoDatas(), 1);
    EXPECT_LT(sqlite3_memory_highwater(0) - before, 4'000'000); // of 12 where all are copied
}
