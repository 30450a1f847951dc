#include "rows/sqlite_rows.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

const char *sqlType(Type type)
{
    switch (type) {
    case Type::Flag:
    case Type::Number:
    case Type::Bytes:
        return "integer";
    case Type::Real:
        return "real";
    default:
        return "text";
    }
}

} // namespace

SqliteRows::SqliteRows(SqliteOutput &output, std::string key)
    : output_(output), key_(std::move(key))
{
}

void SqliteRows::begin(const RowsHead &head, const std::vector<Column> &columns)
{
    const bool isCounting = std::none_of(columns.begin(), columns.end(),
                                         [&](const Column &column) { return column.key == key_; });
    std::string definitions = isCounting ? quotedName(key_) + " integer primary key" : "";
    for (const Column &column : columns)
        definitions += (definitions.empty() ? "" : ", ") + quotedName(column.key) + " " +
                       sqlType(column.type) + (column.key == key_ ? " primary key" : "");
    output_.execute("create table " + quotedName(head.rows) + " (" + definitions + ")");
    insert_ =
        std::make_unique<SqliteInsert>(output_, head.rows, columns.size() + (isCounting ? 1 : 0));
}

void SqliteRows::row(const std::vector<Value> &values)
{
    insert_->row(values);
}

void SqliteRows::end()
{
    insert_.reset();
}

} // namespace iosphoto::tool
