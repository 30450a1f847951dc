#include "support/expect_failure.h"
#include "support/library_builder.h"
#include "support/meanwhile.h"

#include <chrono>
#include <fstream>
#include <thread>

using namespace iosphoto::test;

TEST(ToolChangingSource, IsNotReadWhileSomethingWritesToItAllTheTime)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    library.close();
    const Meanwhile writer([&] {
        std::ofstream(library.path() + "-wal", std::ios::app) << 'x';
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    });

    expectFailure(runTool({"photos", library.path()}),
                  "'" + library.path() +
                      "' changes while it is copied; close what writes to it, or copy it with its "
                      "-wal first\n",
                  3);
}
