#include "support/catalogue.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;

namespace {

/// One of the three lookups and a member that it fills.
struct Lookup
{
    const char *name; ///< of the entity
    int (QDevPhotoDbMgr::*run)();
    std::int32_t QDevPhotoDbMgr::*number;
    int Schema::*expected;
};

constexpr Lookup lookups[] = {
    {"Asset", &QDevPhotoDbMgr::GetPrimarykeyTabAssetInfo, &QDevPhotoDbMgr::assetEntity,
     &Schema::asset},
    {"Album", &QDevPhotoDbMgr::GetPrimarykeyTabAlbumInfo, &QDevPhotoDbMgr::albumEntity,
     &Schema::album},
    {"PhotoStreamAlbum", &QDevPhotoDbMgr::GetPrimarykeyTabPhotostreamAlbumInfo,
     &QDevPhotoDbMgr::photoStreamAlbumEntity, &Schema::photoStreamAlbum},
};

std::ostream &operator<<(std::ostream &stream, const Lookup &lookup)
{
    return stream << lookup.name;
}

/// Gives the library a table in which numbers need neither be unique nor in order.
void replaceEntities(LibraryBuilder &library, const std::string &rows)
{
    library.execute("drop table Z_PRIMARYKEY");
    library.execute("create table Z_PRIMARYKEY (Z_ENT integer, Z_NAME varchar, Z_SUPER integer)");
    library.execute("insert into Z_PRIMARYKEY (Z_NAME, Z_ENT, Z_SUPER) values " + rows);
}

constexpr int earlier = 77; // what a member held before a lookup

} // namespace

class EntityLookup : public testing::TestWithParam<Lookup>
{
protected:
    int run(QDevPhotoDbMgr &manager) const { return (manager.*GetParam().run)(); }
    std::int32_t &number(QDevPhotoDbMgr &manager) const { return manager.*GetParam().number; }
    std::string row(int entity) const
    {
        return std::string("('") + GetParam().name + "', " + std::to_string(entity) + ", 0)";
    }
};

TEST_P(EntityLookup, ReadsTheNumberOfEverySchema)
{
    for (const Schema &schema : allSchemas) {
        SCOPED_TRACE(schema);
        const LibraryBuilder library(schema);
        OwningManager manager(library);
        EXPECT_EQ(run(manager), 1);
        EXPECT_EQ(number(manager), schema.*GetParam().expected);
    }
}

TEST_P(EntityLookup, ChangesNoneOfTheOthersNumbers)
{
    const LibraryBuilder library(ios11);
    OwningManager manager(library);
    for (const Lookup &lookup : lookups)
        manager.*lookup.number = earlier;
    run(manager);
    for (const Lookup &lookup : lookups) {
        const bool isRead = lookup.number == GetParam().number;
        EXPECT_EQ(manager.*lookup.number == earlier, !isRead) << lookup.name;
    }
}

TEST_P(EntityLookup, MissingRowGivesZeroRowsAndKeepsTheNumber)
{
    LibraryBuilder library(ios11);
    library.execute(std::string("delete from Z_PRIMARYKEY where Z_NAME = '") + GetParam().name +
                    "'");
    OwningManager manager(library);
    number(manager) = earlier;
    EXPECT_EQ(run(manager), 0);
    EXPECT_EQ(number(manager), earlier);
}

TEST_P(EntityLookup, MissingTableGivesZeroRowsAndKeepsTheNumber)
{
    LibraryBuilder library(ios11);
    library.execute("drop table Z_PRIMARYKEY");
    OwningManager manager(library);
    number(manager) = earlier;
    EXPECT_EQ(run(manager), 0);
    EXPECT_EQ(number(manager), earlier);
}

TEST_P(EntityLookup, OfSeveralRowsTheLastCounts)
{
    LibraryBuilder library(ios11);
    replaceEntities(library, row(5) + ", " + row(90) + ", " + row(8));
    OwningManager manager(library);
    EXPECT_EQ(run(manager), 3);
    EXPECT_EQ(number(manager), 8);
}

TEST_P(EntityLookup, NameIsMatchedExactly)
{
    LibraryBuilder library(ios11);
    library.execute("update Z_PRIMARYKEY set Z_NAME = lower(Z_NAME)");
    OwningManager manager(library);
    EXPECT_EQ(run(manager), 0);
}

TEST_P(EntityLookup, PathThatCannotBeOpenedGivesTheNegatedCodeAndKeepsTheNumber)
{
    const TemporaryFolder folder;
    OwningManager manager(folder.path().string(), "13.7", "iPhone14,2");
    number(manager) = earlier;
    EXPECT_EQ(run(manager), -14);
    EXPECT_EQ(number(manager), earlier);
}

INSTANTIATE_TEST_SUITE_P(Entities, EntityLookup, testing::ValuesIn(lookups),
                         [](const auto &test) { return std::string(test.param.name); });

TEST(AssetLookup, ReadsTheParentsNumberToo)
{
    for (const Schema &schema : allSchemas) {
        SCOPED_TRACE(schema);
        const LibraryBuilder library(schema);
        OwningManager manager(library);
        manager.assetSuperEntity = earlier;
        manager.GetPrimarykeyTabAssetInfo();
        EXPECT_EQ(manager.assetSuperEntity, schema.assetSuper);
    }
}

TEST(AssetLookup, ReadsMissingNumbersAsZero)
{
    LibraryBuilder library(ios11);
    replaceEntities(library, "('Asset', null, null)");
    OwningManager manager(library);
    manager.assetEntity = manager.assetSuperEntity = earlier;
    EXPECT_EQ(manager.GetPrimarykeyTabAssetInfo(), 1);
    EXPECT_EQ(manager.assetEntity, 0);
    EXPECT_EQ(manager.assetSuperEntity, 0);
}

TEST(EntityNumbers, AreZeroBeforeTheLookups)
{
    const QDevPhotoDbMgr manager("15.0", "iPhone14,2");
    EXPECT_EQ(manager.albumEntity, 0);
    EXPECT_EQ(manager.photoStreamAlbumEntity, 0);
    EXPECT_EQ(manager.assetSuperEntity, 0);
    EXPECT_EQ(manager.assetEntity, 0);
}
