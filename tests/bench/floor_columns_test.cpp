/// Stands between the callers and SQLite: the functions here that have names of SQLite's are those
/// that the whole executable calls.
#include "floor.h"
#include "library_run.h"
#include "store_generator.h"
#include "support/next_call.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <functional>
#include <map>
#include <set>

using namespace iosphoto::bench;
using namespace iosphoto::test;

namespace {

/// The names of the columns that were read, by statement.
using ColumnsRead = std::map<std::string, std::set<std::string>>;

ColumnsRead *noted = nullptr;

template <typename Value>
Value noteAndRead(const char *function, sqlite3_stmt *row, int column)
{
    if (noted != nullptr)
        (*noted)[sqlite3_sql(row)].insert(sqlite3_column_name(row, column));
    return nextCall<Value(sqlite3_stmt *, int)>(function)(row, column);
}

ColumnsRead columnsReadBy(const std::function<void()> &reader)
{
    ColumnsRead columns;
    noted = &columns;
    reader();
    noted = nullptr;
    // What the library asks about a table before it trusts it is work of its own.
    for (auto statement = columns.begin(); statement != columns.end();)
        statement = statement->first.rfind("pragma", 0) == 0 ? columns.erase(statement)
                                                             : std::next(statement);
    return columns;
}

} // namespace

int sqlite3_column_type(sqlite3_stmt *row, int column)
{
    return noteAndRead<int>("sqlite3_column_type", row, column);
}

int sqlite3_column_int(sqlite3_stmt *row, int column)
{
    return noteAndRead<int>("sqlite3_column_int", row, column);
}

sqlite3_int64 sqlite3_column_int64(sqlite3_stmt *row, int column)
{
    return noteAndRead<sqlite3_int64>("sqlite3_column_int64", row, column);
}

double sqlite3_column_double(sqlite3_stmt *row, int column)
{
    return noteAndRead<double>("sqlite3_column_double", row, column);
}

const unsigned char *sqlite3_column_text(sqlite3_stmt *row, int column)
{
    return noteAndRead<const unsigned char *>("sqlite3_column_text", row, column);
}

const void *sqlite3_column_blob(sqlite3_stmt *row, int column)
{
    return noteAndRead<const void *>("sqlite3_column_blob", row, column);
}

TEST(BenchFloor, ReadsTheColumnsThatTheLibraryReads)
{
    const TemporaryFolder folder;
    const std::string database = (folder / "Photos.sqlite").string();
    generateStore(database, {1000, 3, 10, 5, 3});
    const Floor floor(database);
    const ColumnsRead byLibrary = columnsReadBy([&] { LibraryRun().read(database); });
    EXPECT_EQ(byLibrary.size(), 7U);
    EXPECT_EQ(columnsReadBy([&] { floor.visitAll(); }), byLibrary);
}
