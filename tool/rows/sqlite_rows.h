#ifndef IOSPHOTO_TOOL_SQLITE_ROWS_H
#define IOSPHOTO_TOOL_SQLITE_ROWS_H

#include "rows/row_writer.h"
#include "rows/sqlite_insert.h"

#include <memory>

namespace iosphoto::tool {

/// Writes rows into a table of an output that is named as RowsHead::rows says. The output's
/// finish() comes after end().
class SqliteRows : public RowWriter
{
public:
    /// @param key  the column that is the primary key; one that the rows do not have is added in
    ///             front and counts them from 1
    explicit SqliteRows(SqliteOutput &output, std::string key = "id");

    void begin(const RowsHead &head, const std::vector<Column> &columns) override;
    void row(const std::vector<Value> &values) override;
    void end() override;

private:
    SqliteOutput &output_;
    std::string key_;
    bool isCounting_ = true;
    std::int64_t count_ = 0;
    std::vector<Value> counted_;
    std::unique_ptr<SqliteInsert> insert_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SQLITE_ROWS_H
