#include "model/passes/row_columns.h"
#include "model/statements/statement_tables.h"
#include "support/case_name.h"
#include "support/database.h"
#include "support/library_builder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

using Names = std::vector<std::string>;

template <std::size_t count>
Names firstNames(const char *const (&columns)[count], std::size_t wanted)
{
    return {columns, columns + std::min(wanted, count)};
}

struct SelectedColumns
{
    const StatementTable *table;
    const char *statement;
    Names columns;
    std::vector<Schema> schemas; ///< all that the statement can read

    std::string name() const { return statement; }
    const StatementVariant &variant() const
    {
        for (const StatementVariant &variant : *table)
            if (variant.statement.name == std::string(statement))
                return variant;
        throw std::runtime_error(std::string("no statement ") + statement);
    }
};

std::ostream &operator<<(std::ostream &stream, const SelectedColumns &selected)
{
    return stream << selected.statement;
}

SelectedColumns roll(const char *statement, std::size_t columns, std::vector<Schema> schemas)
{
    return {&cameraRollStatements, statement, firstNames(cameraRollColumns, columns),
            std::move(schemas)};
}

SelectedColumns synced(const char *statement, std::vector<Schema> schemas)
{
    return {&photoLibraryStatements, statement, firstNames(photoLibraryColumns, 12),
            std::move(schemas)};
}

SelectedColumns userAlbums(const char *statement, std::vector<Schema> schemas)
{
    return {&userAlbumStatements, statement, firstNames(userAlbumColumns, 11), std::move(schemas)};
}

SelectedColumns contents(const char *statement, std::size_t columns, std::vector<Schema> schemas)
{
    return {&albumContentsStatements, statement, firstNames(albumContentsColumns, columns),
            std::move(schemas)};
}

const std::vector<SelectedColumns> &allStatements()
{
    static const std::vector<SelectedColumns> statements = {
        roll("camera_roll_18_proraw", 34, schemasFrom(ios18)),
        roll("camera_roll_18", 33, schemasFrom(ios18)),
        roll("camera_roll_15_proraw", 34, {ios14, ios15}),
        roll("camera_roll_15", 33, {ios14, ios15}),
        roll("camera_roll_14", 33, {ios14}),
        roll("camera_roll_11", 32, {ios11}),
        roll("camera_roll_9", 30, {ios9, ios11}),
        roll("camera_roll_8", 29, {ios8, ios9, ios11}),
        roll("camera_roll_7_subtypes", 29, {ios7SubTypes}),
        roll("camera_roll_7", 29, {ios7, ios7SubTypes}),
        roll("camera_roll_6", 27, {ios6, ios7, ios7SubTypes}),

        synced("photo_library_14", schemasFrom(ios14)),
        synced("photo_library_8", {ios8, ios9, ios11}),
        synced("photo_library_6", {ios6, ios7, ios7SubTypes, ios8, ios9, ios11}),

        userAlbums("user_albums_8", schemasFrom(ios8)),
        userAlbums("user_albums_6", schemasFrom(ios6)),

        contents("album_contents_18", 23, schemasFrom(ios18)),
        contents("album_contents_14", 23, {ios14, ios15}),
        contents("album_contents_11", 22, {ios11}),
        contents("album_contents_9", 22, {ios9, ios11}),
        contents("album_contents_8", 22, {ios8, ios9, ios11}),
        contents("album_contents_7_subtypes", 22, {ios7SubTypes}),
        contents("album_contents_7", 22, {ios7, ios7SubTypes}),
        contents("album_contents_6", 22, {ios6, ios7, ios7SubTypes}),
    };
    return statements;
}

/// The names of the columns that a statement selects from a library; none if it does not prepare.
Names columnsOf(const StatementVariant &variant, const LibraryBuilder &library)
{
    const Schema &schema = library.schema();
    const EntityNumbers numbers = {schema.album, schema.photoStreamAlbum, schema.assetSuper,
                                   schema.asset};
    const SqliteConnection connection = openDatabase(library.path());
    sqlite3_stmt *prepared = nullptr;
    sqlite3_prepare_v2(connection.get(), filledIn(variant, numbers).toUtf8().constData(), -1,
                       &prepared, nullptr);
    const SqliteStatement statement(prepared);
    Names names;
    for (int column = 0; column < sqlite3_column_count(prepared); ++column)
        names.emplace_back(sqlite3_column_name(prepared, column));
    return names;
}

} // namespace

class StatementColumns : public testing::TestWithParam<SelectedColumns>
{
};

TEST_P(StatementColumns, AreThoseThatThePassReads)
{
    for (const Schema &schema : GetParam().schemas)
        EXPECT_EQ(columnsOf(GetParam().variant(), LibraryBuilder(schema)), GetParam().columns)
            << schema;
}

TEST_P(StatementColumns, AreInNoOtherSchema)
{
    Names readable;
    for (const Schema &schema : allSchemas)
        if (!columnsOf(GetParam().variant(), LibraryBuilder(schema)).empty())
            readable.emplace_back(schema.name);
    Names expected;
    for (const Schema &schema : GetParam().schemas)
        expected.emplace_back(schema.name);
    EXPECT_EQ(readable, expected);
}

TEST_P(StatementColumns, AreReadWithTheSchemaOfADeviceThatChoosesThem)
{
    const auto isChosenFor = [](const Schema &schema) {
        for (const char *productType : {"iPhone14,2", "iPhone3,1"})
            if (&choose(*GetParam().table, DeviceProfile(schema.iosVersion, productType)) ==
                &GetParam().variant())
                return true;
        return false;
    };
    EXPECT_TRUE(std::any_of(GetParam().schemas.begin(), GetParam().schemas.end(), isChosenFor));
}

INSTANTIATE_TEST_SUITE_P(Statements, StatementColumns, testing::ValuesIn(allStatements()),
                         NameOfCase());

TEST(StatementTables, HaveNoStatementWhoseColumnsAreNotChecked)
{
    std::size_t size = 0;
    for (const StatementTable *table : {&cameraRollStatements, &photoLibraryStatements,
                                        &userAlbumStatements, &albumContentsStatements})
        size += table->size;
    EXPECT_EQ(size, allStatements().size());
}

TEST(ColumnLists, OfAssetsBeginWithTheSameSevenNames)
{
    const Names shared = firstNames(cameraRollColumns, 7);
    EXPECT_EQ(shared, (Names{"ZTHUMBNAILINDEX", "ZFILENAME", "ZDIRECTORY", "ZORIGINALFILENAME",
                             "ZWIDTH", "ZHEIGHT", "ZORIGINALFILESIZE"}));
    EXPECT_EQ(firstNames(photoLibraryColumns, 7), shared);
    EXPECT_EQ(firstNames(albumContentsColumns, 7), shared);
}
