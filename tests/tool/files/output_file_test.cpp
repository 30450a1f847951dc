#include "files/output_file.h"

#include "process/failure.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace iosphoto::test;
using namespace iosphoto::tool;

namespace fs = std::filesystem;

TEST(ToolOutputFolder, InAFolderThatIsGoneIsAFailureInWords)
{
    const fs::path before = fs::current_path();
    const TemporaryFolder folder;
    fs::create_directory(folder / "gone");
    fs::current_path(folder / "gone");
    fs::remove(folder / "gone");
    try {
        const OutputFolder output("out");
        ADD_FAILURE() << "it was made";
    } catch (const Failure &failure) {
        EXPECT_STREQ(failure.what(), "cannot make the folder 'out': No such file or directory; "
                                     "choose another place for the output");
    }
    fs::current_path(before);
}
