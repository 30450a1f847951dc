#include "support/report.h"
#include "support/temporary_files.h"

#include <gtest/gtest.h>

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
