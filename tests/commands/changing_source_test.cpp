#include "support/expect_failure.h"
#include "support/library_builder.h"
#include "support/meanwhile.h"

#include <fstream>

using namespace iosphoto::test;

TEST(ToolChangingSource, IsNotReadWhileSomethingWritesToItAllTheTime)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    library.close();
    const auto append = [&] { std::ofstream(library.path() + "-wal", std::ios::app) << 'x'; };
    const Meanwhile writer(append);
    const Meanwhile another(append); // should the disk hold one of them up

    expectFailure(runTool({"photos", library.path()}),
                  "'" + library.path() +
                      "' changes while it is copied; close what writes to it, or copy it with its "
                      "-wal first\n",
                  3);
}
