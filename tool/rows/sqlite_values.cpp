#include "rows/sqlite_values.h"

#include "text/lists.h"
#include "text/printable.h"
#include "time/time_text.h"

#include <sqlite3.h>

namespace iosphoto::tool {

namespace {

/// Binds a value to a place of a statement and gives SQLite's result.
struct Bind
{
    sqlite3_stmt *statement;
    int place;
    std::string &made; ///< keeps a text that is made here

    int operator()(std::monostate) const { return sqlite3_bind_null(statement, place); }
    int operator()(bool flag) const { return sqlite3_bind_int(statement, place, flag ? 1 : 0); }
    int operator()(std::int64_t number) const
    {
        return sqlite3_bind_int64(statement, place, number);
    }
    int operator()(double number) const { return sqlite3_bind_double(statement, place, number); }
    int operator()(const std::string &text) const
    {
        const bool isWhole = isUtf8(text);
        if (!isWhole)
            made = asUtf8(text);
        return bindText(isWhole ? text : made);
    }
    int operator()(UnixTime time) const
    {
        made = utcTimeText(time);
        return made.empty() ? (*this)(std::monostate()) : bindText(made);
    }
    int operator()(const Items &items) const
    {
        made = "[" + joinedTexts(items, ",", [](const ListItem *item) { return item->json; }) + "]";
        return bindText(made);
    }

    int bindText(const std::string &text) const
    {
        return sqlite3_bind_text64(statement, place, text.data(), text.size(), SQLITE_STATIC,
                                   SQLITE_UTF8);
    }
};

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

int bindValue(sqlite3_stmt *statement, int place, const Value &value, std::string &made)
{
    return std::visit(Bind{statement, place, made}, value);
}

std::string quotedName(const std::string &name)
{
    std::string quoted = "\"";
    for (const char character : name)
        quoted += character == '"' ? std::string("\"\"") : std::string(1, character);
    return quoted + "\"";
}

std::string columnDefinition(const Column &column)
{
    return quotedName(column.key) + " " + sqlType(column.type);
}

} // namespace iosphoto::tool
