#include "files/private_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using iosphoto::tool::PrivateFolder;

namespace fs = std::filesystem;

TEST(PrivateFolder, IsForNobodyElseWhateverTheUserLetsOthersDo)
{
    const mode_t before = umask(0);
    const PrivateFolder folder;
    umask(before);
    EXPECT_EQ(fs::status(folder.path()).permissions(), fs::perms::owner_all);
}
