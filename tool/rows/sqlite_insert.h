#ifndef IOSPHOTO_TOOL_SQLITE_INSERT_H
#define IOSPHOTO_TOOL_SQLITE_INSERT_H

#include "rows/sqlite_output.h"
#include "rows/value.h"

#include <vector>

namespace iosphoto::tool {

/// Inserts rows into a table of an output, which outlives it and is finished after it is gone.
class SqliteInsert
{
public:
    SqliteInsert(SqliteOutput &output, const std::string &table, std::size_t columns);

    void row(const std::vector<Value> &values);

private:
    SqliteOutput &output_;
    std::unique_ptr<sqlite3_stmt, SqliteOutput::Close> statement_;
    std::vector<std::string> made_; ///< texts of the row that are not the values themselves
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SQLITE_INSERT_H
