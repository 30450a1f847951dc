#ifndef IOSPHOTO_TOOL_COPY_DATABASE_H
#define IOSPHOTO_TOOL_COPY_DATABASE_H

#include "model/store/row.h"
#include "model/store/sqlite_handles.h"
#include "model/store/work_limit.h"
#include "process/failure.h"
#include "sqlite/sqlite_error.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// A row that a query of the tool's own found; its columns count from 0.
class QueryRow
{
public:
    explicit QueryRow(sqlite3_stmt *statement) : statement_(statement) {}

    bool isNull(int column) const;
    bool isBlob(int column) const;
    bool isNumber(int column) const;
    std::string text(int column) const; ///< of a blob its bytes
    std::int32_t int32(int column) const { return sqlite3_column_int(statement_, column); }
    std::int64_t int64(int column) const { return sqlite3_column_int64(statement_, column); }
    Row row() const { return Row(statement_); } ///< as the library reads it
    double real(int column) const { return sqlite3_column_double(statement_, column); }

private:
    sqlite3_stmt *statement_;
};

/// The tool's own connection to a private copy of a database, which may hold anything: views and
/// triggers do nothing, no value may fill the memory, and no query goes on for ever.
class CopyDatabase
{
public:
    /// Throws Failure when the file cannot be opened. The first reading may roll back a journal;
    /// the log is never moved into the database.
    /// @param shownName  the database as the user knows it, for messages
    CopyDatabase(const std::string &file, std::string shownName,
                 IfDamaged remedy = IfDamaged::CopyLibraryAgain);

    /// Whether the file is a database, and not encrypted. Throws Failure when it cannot be read.
    bool isDatabase() const;

    /// Whether nothing runs where its tables are read: each that is among `tables`, or matches
    /// the pattern of `like`, is no view, no virtual table, and has no column that is computed.
    bool areRealTables(const std::vector<std::string> &tables, const std::string &like) const;

    bool hasTable(const std::string &table) const;
    bool hasColumn(const std::string &table, const std::string &column) const;
    /// Whether a statement fits the schema. Throws Failure when that cannot be told.
    bool prepares(const std::string &statement) const;

    /// Why a statement does not fit the schema, in SQLite's words; empty where it does. Throws
    /// Failure when that cannot be told.
    std::string misfitOf(const std::string &statement) const;
    /// Changes the copy. Throws Failure when that fails.
    void execute(const std::string &statement) const;
    /// Hands each row of a query to `take`. A query that does not fit the schema has no rows.
    /// Throws Failure when the reading fails.
    /// @param values  for the places of the query
    void forEachRow(const std::string &query, const std::function<void(const QueryRow &)> &take,
                    const std::vector<std::string> &values = {}) const;

    const std::string &file() const { return file_; }
    const std::string &shownName() const { return shownName_; }

    /// Whether the last call failed since the file is damaged.
    bool isDamaged() const;

    /// Says that it cannot be read, for the reason of the last call.
    Failure unreadable() const;

private:
    SqliteStatement prepare(const std::string &text) const;

    WorkLimit workLimit_;
    SqliteConnection connection_;
    std::string file_;
    std::string shownName_;
    IfDamaged remedy_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_COPY_DATABASE_H
