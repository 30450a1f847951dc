// Databases in which the tables that are read are something else.
#include "support/case_name.h"
#include "support/database.h"
#include "support/source_folder.h"

using namespace iosphoto::test;
using testing::HasSubstr;

namespace fs = std::filesystem;

namespace {

struct HostileTable
{
    const char *label;
    const char *change;

    std::string name() const { return label; }
};

std::ostream &operator<<(std::ostream &stream, const HostileTable &table)
{
    return stream << table.label;
}

constexpr HostileTable hostileTables[] = {
    {"AssetsThatAreAView", "alter table ZASSET rename to real; create view ZASSET as select * "
                           "from real"},
    {"AttributesThatAreAView", "alter table ZADDITIONALASSETATTRIBUTES rename to real; create view "
                               "zadditionalassetattributes as select * from real"},
    {"AlbumContentsThatAreAView",
     "alter table Z_27ASSETS rename to real; create view Z_27ASSETS as select * from real"},
    {"EntitiesThatAreAView",
     "alter table Z_PRIMARYKEY rename to real; create view Z_PRIMARYKEY as select * from real"},
    {"VirtualTable", "drop table Z_27ASSETS; create virtual table Z_27ASSETS using "
                     "rtree(Z_27ALBUMS, Z_3ASSETS, Z_FOK_3ASSETS)"},
    {"ComputedColumn", "alter table ZASSET add column SIZE as (hex(zeroblob(400000000)))"},
};

} // namespace

class ToolHostileTable : public testing::TestWithParam<HostileTable>
{
};

TEST_P(ToolHostileTable, IsRefused)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG").in(library.album("Trip"));
    library.execute("pragma legacy_alter_table = on");
    library.execute(GetParam().change);
    for (const char *command : {"albums", "info", "statements"})
        expectFailure(runTool({command, library.path()}),
                      "'" + library.path() +
                          "' is a SQLite database whose tables are not those of a photo library; "
                          "name the Photos.sqlite of a phone or backup\n",
                      4);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ToolHostileTable, testing::ValuesIn(hostileTables), NameOfCase());

using ToolHostileDatabase = SourceFolder;

TEST_F(ToolHostileDatabase, IndexOfABackupThatIsAView)
{
    const fs::path backup = writeBackup(folder_ / "backup", library_);
    execute(openDatabase(backup / "Manifest.db"),
            "alter table Files rename to real; create view Files as select * from real");
    expectFailure(albums(backup),
                  quoted(backup / "Manifest.db") +
                      " is a SQLite database whose tables are not those of a backup; copy the "
                      "whole backup again\n",
                  4);
}

TEST_F(ToolHostileDatabase, ViewThatIsNotReadDoesNotMatter)
{
    library_.execute("create view ZOTHER as select * from ZASSET");
    expectWhole(albums(library_.path()));
}

/// Assets whose index lost its rows, or that have lost their own: no query meets an error.
class ToolSilentDamage : public testing::TestWithParam<const char *>
{
};

TEST_P(ToolSilentDamage, IsNotAnEmptyLibrary)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    library.execute("create index BY_UUID on ZASSET (ZUUID)");
    library.execute("create index BY_ASSET on ZADDITIONALASSETATTRIBUTES (ZASSET)");
    const int pageSize = library.number("pragma page_size");
    const int page = library.number(
        std::string("select rootpage from sqlite_master where name = '") + GetParam() + "'");
    library.close();
    std::string content = readFile(library.path());
    const auto at = static_cast<std::size_t>(page - 1) * static_cast<std::size_t>(pageSize);
    content.replace(at + 3, 2, std::string(2, '\0')); // the number of rows
    writeFile(library.path(), content);
    const std::string error = "'" + library.path() +
                              "' is damaged (database disk image is malformed) and no photo could "
                              "be read; copy it from the device or the backup again, its -wal with "
                              "it\n";
    expectFailure(runTool({"photos", library.path()}), error, 3);
}

INSTANTIATE_TEST_SUITE_P(Trees, ToolSilentDamage,
                         testing::Values("ZASSET", "ZADDITIONALASSETATTRIBUTES"));
