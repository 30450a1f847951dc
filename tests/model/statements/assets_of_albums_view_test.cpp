// The contents of albums are read through a view that leaves out the assets of no album. It must
// not make a difference, whatever the tables hold.
#include "model/statements/entity_numbers.h"
#include "model/statements/statement_tables.h"
#include "model/store/database_visit.h"
#include "support/library_builder.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

constexpr int columns = 23; // of the longest statement

/// All values of all rows, in order.
std::vector<std::string> rowsOf(const LibraryBuilder &library, const Query &query)
{
    DatabaseVisit visit(QString::fromStdString(library.path()), query, Patience::None);
    std::vector<std::string> rows;
    while (visit.nextRow()) {
        std::string &row = rows.emplace_back();
        for (int column = 0; column < columns; ++column)
            row += (visit.row().isNull(column) ? "-" : visit.row().bytes(column)) + '|';
    }
    EXPECT_EQ(visit.stop().code, 0) << visit.stop().text;
    return rows;
}

/// Assets of one date and of many, in several albums, in one twice, or in none; some that stand
/// twice in their second table, or not at all, or under a key of another type.
void fill(LibraryBuilder &library)
{
    const AlbumRow trip = library.album("Trip");
    const AlbumRow home = library.album("Home").set("ZKIND", 1);
    const AlbumRow untitled = library.album(nullptr);
    const AlbumRow stream = library.photoStream();
    for (int i = 0; i < 40; ++i) {
        AssetRow asset = library.asset("IMG_" + std::to_string(i) + ".JPG");
        if (i % 3 == 0)
            asset.set("ZDATECREATED", 5000);
        if (i % 4 != 0)
            asset.in(trip);
        if (i % 5 == 0)
            asset.in(home).in(untitled);
        if (i % 7 == 0)
            asset.in(stream);
    }
    const std::string memberships =
        "insert or ignore into Z_" + std::to_string(library.schema().album) + "ASSETS values ";
    library.execute(memberships + "(1, 4000), (1, '7'), (2, 'x'), (4000, 1), (null, 8), (1, null)");
    const std::string copyAll = "insert into ZADDITIONALASSETATTRIBUTES (ZASSET, ZORIGINALFILENAME";
    const std::string other = library.schema().hasGenericAsset()
                                  ? ", Z" + std::to_string(library.schema().assetSuper) + "_ASSET"
                                  : "";
    const std::string value = other.empty() ? "" : "," + std::to_string(library.schema().asset);
    for (const char *key : {"1", "2", "'3'", "4.0", "x'35'", "null", "4000", "'x'"})
        library.execute(copyAll + other + ") values (" + key + ", 'another'" + value + ")");
    library.execute("delete from ZADDITIONALASSETATTRIBUTES where ZASSET = 6");
}

} // namespace

class AssetsOfAlbumsView : public testing::TestWithParam<Schema>
{
};

TEST_P(AssetsOfAlbumsView, MakesNoDifference)
{
    const Schema &schema = GetParam();
    LibraryBuilder library(schema);
    fill(library);
    const DeviceProfile device(schema.iosVersion, schema.productType);
    const EntityNumbers numbers = {schema.album, schema.photoStreamAlbum, schema.assetSuper,
                                   schema.asset};
    const QString statement = filledIn(choose(albumContentsStatements, device), numbers);
    const QString view = filledIn(choose(assetsOfAlbumsView, device), numbers);

    const std::vector<std::string> rows = rowsOf(library, {statement, {}});
    EXPECT_GT(rows.size(), 40U);
    EXPECT_EQ(rowsOf(library, {statement, view}), rows);

    library.execute("create index BY_ASSET on ZADDITIONALASSETATTRIBUTES (ZASSET)");
    library.execute("analyze");
    const std::vector<std::string> rowsByIndex = rowsOf(library, {statement, {}});
    EXPECT_EQ(rowsOf(library, {statement, view}), rowsByIndex);
}

INSTANTIATE_TEST_SUITE_P(Schemas, AssetsOfAlbumsView, testing::ValuesIn(allSchemas), SchemaName());
