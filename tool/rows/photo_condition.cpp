#include "rows/photo_condition.h"

#include "model/store/untrusted_database.h"
#include "rows/sqlite_values.h"
#include "sqlite/sqlite_error.h"
#include "text/lists.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <utility>

namespace iosphoto::tool {

namespace {

constexpr int stepsOfATurn = 1000;
constexpr int mostTurnsOfAPhoto = 100;

/// Functions that do more than compute, where SQLite was built with them.
constexpr const char *reachingOut[] = {"load_extension", "fts3_tokenizer", "readfile",
                                       "writefile",      "edit",           "fsdir"};

bool onlyComputes(const char *function)
{
    return std::none_of(std::begin(reachingOut), std::end(reachingOut), [&](const char *reaching) {
        return sqlite3_stricmp(function, reaching) == 0;
    });
}

/// Inserts a row with values for some columns.
std::string insertionOf(const std::vector<Field<PhotoRow>> &fields)
{
    if (fields.empty())
        return "insert into photos default values";
    const auto name = [](const auto &field) { return quotedName(field.column.key); };
    const auto place = [](const auto & /*field*/) { return "?"; };
    return "insert into photos (" + joinedTexts(fields, ", ", name) + ") values (" +
           joinedTexts(fields, ", ", place) + ")";
}

} // namespace

PhotoCondition::PhotoCondition(std::string expression, std::vector<Field<PhotoRow>> columns)
    : expression_(std::move(expression)), columns_(std::move(columns)), isRead_(columns_.size())
{
    open();
    sqlite3_set_authorizer(connection_.get(), judge, this); // before what it would expire
    isForeign_ = true;
    // What is right with brackets around it and without is one expression, not "1) union (...".
    select_ = prepareForeign("select 1 from photos where " + expression_ + "\n");
    select_ = prepareForeign("select 1 from photos where (" + expression_ + "\n)");
    isForeign_ = false;
    for (std::size_t i = 0; i < columns_.size(); ++i)
        if (isRead_[i])
            fields_.push_back(columns_[i]);
    made_.resize(fields_.size());
    insert_ = prepareOwn(insertionOf(fields_));
    remove_ = prepareOwn("delete from photos");
}

void PhotoCondition::open()
{
    sqlite3 *connection = nullptr;
    const int opened = sqlite3_open_v2(":memory:", &connection,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_MEMORY, nullptr);
    connection_.reset(connection);
    if (opened != SQLITE_OK || distrust(connection) != SQLITE_OK)
        throw std::bad_alloc(); // the only thing that a database in memory can lack
    // A name in quotes that is no column would be a text, and no mistake.
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_limit(connection, SQLITE_LIMIT_ATTACHED, 0);
    sqlite3_drop_modules(connection, nullptr);
    sqlite3_progress_handler(connection, stepsOfATurn, countTurn, this);
    const std::string columns = joinedTexts(
        columns_, ", ", [](const auto &field) { return columnDefinition(field.column); });
    run(prepareOwn("create table photos (" + columns + ")"));
}

bool PhotoCondition::isMetBy(const PhotoRow &photo)
{
    turns_ = 0;
    values_.clear();
    for (const Field<PhotoRow> &field : fields_)
        values_.push_back(field.value(photo));
    for (std::size_t i = 0; i < values_.size(); ++i) {
        const int place = static_cast<int>(i) + 1;
        if (const int code = bindValue(insert_.get(), place, values_[i], made_[i]))
            throw errorOf(code);
    }
    run(insert_);
    const int result = sqlite3_step(select_.get());
    sqlite3_reset(select_.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        throw errorOf(result);
    run(remove_);
    return result == SQLITE_ROW;
}

SqliteStatement PhotoCondition::prepareOwn(const std::string &statement) const
{
    sqlite3_stmt *prepared = nullptr;
    const int code =
        sqlite3_prepare_v2(connection_.get(), statement.c_str(), -1, &prepared, nullptr);
    SqliteStatement owned(prepared);
    if (code != SQLITE_OK)
        throw errorOf(code);
    return owned;
}

SqliteStatement PhotoCondition::prepareForeign(const std::string &statement)
{
    queries_ = 0;
    SqliteStatement prepared = prepareOwn(statement);
    if (prepared == nullptr || sqlite3_bind_parameter_count(prepared.get()) > 0)
        throw ConditionError(ConditionProblem::NotOne, {expression_});
    return prepared;
}

void PhotoCondition::run(const SqliteStatement &statement) const
{
    const int result = sqlite3_step(statement.get());
    sqlite3_reset(statement.get());
    if (result != SQLITE_DONE)
        throw errorOf(result);
}

ConditionError PhotoCondition::errorOf(int code) const
{
    const std::string message = sqlite3_errmsg(connection_.get());
    const std::string noColumn = "no such column: ";
    constexpr int primaryCode = 0xff;
    switch (code & primaryCode) {
    case SQLITE_AUTH:
        return {ConditionProblem::NotAllowed, {expression_}};
    case SQLITE_INTERRUPT:
        return {ConditionProblem::TooMuchWork, {}};
    default:
        break;
    }
    if (message.rfind("not authorized", 0) == 0) // to use a function
        return {ConditionProblem::NotAllowed, {expression_}};
    if (message.rfind(noColumn, 0) != 0)
        return {ConditionProblem::Wrong, {sqliteError(connection_.get())}};
    std::vector<std::string> facts = {message.substr(noColumn.size())};
    for (const Field<PhotoRow> &column : columns_)
        facts.push_back(column.column.key);
    return {ConditionProblem::NoColumn, std::move(facts)};
}

int PhotoCondition::judge(void *self, int action, const char * /*object*/, const char *detail,
                          const char * /*schema*/, const char * /*context*/) noexcept
{
    auto &condition = *static_cast<PhotoCondition *>(self);
    if (!condition.isForeign_)
        return SQLITE_OK;
    switch (action) {
    case SQLITE_SELECT: // the one that the expression stands in
        return condition.queries_++ == 0 ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_READ:
        return condition.noteReading(detail) ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_FUNCTION:
        return onlyComputes(detail) ? SQLITE_OK : SQLITE_DENY;
    default:
        return SQLITE_DENY;
    }
}

/// Returns whether that is allowed: a row has a number too, but elsewhere it would be another one.
bool PhotoCondition::noteReading(const char *name) noexcept
{
    if (*name == '\0') // the table, but none of its columns
        return true;
    for (std::size_t i = 0; i < columns_.size(); ++i)
        if (columns_[i].column.key == name) {
            isRead_[i] = true;
            return true;
        }
    return false;
}

int PhotoCondition::countTurn(void *self) noexcept
{
    return ++static_cast<PhotoCondition *>(self)->turns_ > mostTurnsOfAPhoto ? 1 : 0;
}

} // namespace iosphoto::tool
