#include "thumbnails/thumb_cache.h"

#include "process/failure.h"
#include "support/sample_thumb_cache.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;
using namespace iosphoto::tool;

class ThumbCacheThatChanges : public testing::TestWithParam<int>
{
};

TEST_P(ThumbCacheThatChanges, FailsInsteadOfShowingAnotherPicture)
{
    const TemporaryFolder folder;
    const std::string file = (folder / "cache").string();
    const std::string bytes = sampleThumbCache(GetParam()).bytes();
    writeFile(file, bytes);
    const ThumbCache cache(file);
    const Thumbnail &last = cache.thumbnails().back();
    EXPECT_FALSE(cache.image(last).isEmpty());

    writeFile(file, std::string(bytes.size(), '\0'));
    EXPECT_THROW(cache.image(last), Failure);
    writeFile(file, bytes.substr(0, bytes.size() / 6 * 3 + 5000));
    EXPECT_THROW(cache.image(last), Failure);
    writeFile(file, "");
    EXPECT_THROW(cache.image(last), Failure);
}

INSTANTIATE_TEST_SUITE_P(Formats, ThumbCacheThatChanges, testing::Values(120, 157));
