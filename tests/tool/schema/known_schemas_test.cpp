#include "schema/known_schemas.h"

#include "statements/usual_entity_numbers.h"
#include "support/library_builder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;
using namespace iosphoto::tool;

namespace fs = std::filesystem;

TEST(KnownSchemas, BeginAndEndWithThoseOfTheTests)
{
    EXPECT_EQ(oldestSchema().firstIos, iosOf(allSchemas.front()));
    EXPECT_EQ(newestSchema().lastIos, iosOf(allSchemas.back()));
}

TEST(KnownSchemas, HaveAFileEachThatTheTestsRead)
{
    std::vector<std::string> files;
    for (const auto &file : fs::directory_iterator(IOSPHOTO_SOURCE "/tests/data/schema"))
        files.push_back(file.path().stem().string());
    std::vector<std::string> names;
    for (const Schema &schema : allSchemas)
        names.emplace_back(schema.name);
    EXPECT_THAT(files, testing::UnorderedElementsAreArray(names));
}

TEST(UsualEntityNumbers, OfTheNewestIosAreThoseOfItsSchema)
{
    const Schema &newest = allSchemas.back();
    const EntityNumbers usual = usualEntityNumbers(newest.iosVersion);
    EXPECT_EQ(usual.album, newest.album);
    EXPECT_EQ(usual.photoStreamAlbum, newest.photoStreamAlbum);
    EXPECT_EQ(usual.assetSuper, newest.assetSuper);
    EXPECT_EQ(usual.asset, newest.asset);
}

TEST(UsualEntityNumbers, OfANewerIosAreNotKnown)
{
    EXPECT_EQ(usualEntityNumbers(std::to_string(newestSchema().lastIos + 1)).album, 0);
}
