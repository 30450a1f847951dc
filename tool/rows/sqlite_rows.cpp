#include "rows/sqlite_rows.h"

#include "output/interruption.h"

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
    isCounting_ = std::none_of(columns.begin(), columns.end(),
                               [&](const Column &column) { return column.key == key_; });
    std::string definitions = isCounting_ ? quotedName(key_) + " integer primary key" : "";
    for (const Column &column : columns)
        definitions += (definitions.empty() ? "" : ", ") + quotedName(column.key) + " " +
                       sqlType(column.type) + (column.key == key_ ? " primary key" : "");
    output_.execute("create table " + quotedName(head.rows) + " (" + definitions + ")");
    insert_ =
        std::make_unique<SqliteInsert>(output_, head.rows, columns.size() + (isCounting_ ? 1 : 0));
}

void SqliteRows::row(const std::vector<Value> &values)
{
    Interruption::throwIfAskedFor();
    if (!isCounting_) {
        insert_->row(values);
        return;
    }
    counted_.assign({Value(++count_)});
    counted_.insert(counted_.end(), values.begin(), values.end());
    insert_->row(counted_);
}

void SqliteRows::end()
{
    insert_.reset();
}

} // namespace iosphoto::tool
