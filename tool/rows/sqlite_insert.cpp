#include "rows/sqlite_insert.h"

#include "catalogue/moment.h"
#include "output/printable.h"

namespace iosphoto::tool {

namespace {

/// Binds a value to a place of a statement. Text is not copied, so it stays until the step.
struct Bind
{
    sqlite3_stmt *statement;
    int place;
    std::string &made; ///< keeps a text that is made here

    void operator()(std::monostate) const { sqlite3_bind_null(statement, place); }
    void operator()(bool flag) const { sqlite3_bind_int(statement, place, flag ? 1 : 0); }
    void operator()(std::int64_t number) const { sqlite3_bind_int64(statement, place, number); }
    void operator()(double number) const { sqlite3_bind_double(statement, place, number); }
    void operator()(const std::string &text) const
    {
        const bool isWhole = isUtf8(text);
        if (!isWhole)
            made = asUtf8(text);
        bindText(isWhole ? text : made);
    }
    void operator()(UtcTime time) const
    {
        made = utcTimeText(time.unixTime);
        made.empty() ? (*this)(std::monostate()) : bindText(made);
    }
    void operator()(const Items &items) const
    {
        made = "[";
        for (const ListItem *item : items)
            made += (made.size() > 1 ? "," : "") + item->json;
        made += "]";
        bindText(made);
    }

    void bindText(const std::string &text) const
    {
        sqlite3_bind_text(statement, place, text.data(), static_cast<int>(text.size()),
                          SQLITE_STATIC);
    }
};

} // namespace

SqliteInsert::SqliteInsert(SqliteOutput &output, const std::string &table, std::size_t columns)
    : output_(output)
{
    std::string places;
    for (std::size_t i = 0; i < columns; ++i)
        places += i == 0 ? "?" : ", ?";
    const std::string sql = "insert into " + quotedName(table) + " values (" + places + ")";
    sqlite3_stmt *statement = nullptr;
    const int result =
        sqlite3_prepare_v2(output_.connection_.get(), sql.c_str(), -1, &statement, nullptr);
    statement_.reset(statement);
    if (result != SQLITE_OK)
        throw output_.unwritable();
}

void SqliteInsert::row(const std::vector<Value> &values)
{
    made_.resize(values.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        std::visit(Bind{statement_.get(), static_cast<int>(i) + 1, made_[i]}, values[i]);
    const int result = sqlite3_step(statement_.get());
    sqlite3_reset(statement_.get());
    if (result != SQLITE_DONE)
        throw output_.unwritable();
}

} // namespace iosphoto::tool
