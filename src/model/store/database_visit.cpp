#include "model/store/database_visit.h"

#include "model/store/database_path.h"
#include "model/store/real_tables.h"
#include "model/store/source_protection.h"
#include "model/store/untrusted_database.h"
#include "no_throw.h"

#include <QRegularExpression>

#include <filesystem>
#include <set>
#include <utility>

namespace iosphoto {

static_assert(outOfMemory == -SQLITE_NOMEM);
static_assert(lockedBySomebody == SQLITE_BUSY);

QMutex g_Lock;

namespace {

namespace fs = std::filesystem;

/// Whether there is no such file where SQLite's plain open would make an empty one.
bool isFree(const QByteArray &name)
{
    if (name.isEmpty())
        return true;
    const fs::path path(name.constData());
    std::error_code ignored;
    if (fs::status(path, ignored).type() != fs::file_type::not_found)
        return false;
    sqlite3_vfs *const system = sqlite3_vfs_find(nullptr);
    int isWritable = 0;
    return system != nullptr &&
           system->xAccess(system, path.parent_path().c_str(), SQLITE_ACCESS_READWRITE,
                           &isWritable) == SQLITE_OK &&
           isWritable != 0;
}

/// The tables that a statement names, in upper case.
std::set<QString> tablesNamedIn(const QString &statement)
{
    static const QRegularExpression table(
        QStringLiteral("\\b(?:(?:from|join)\\s+(\\w+)|(\\w+)\\.)"),
        QRegularExpression::CaseInsensitiveOption);
    std::set<QString> names;
    for (auto found = table.globalMatch(statement); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        names.insert(match.captured(match.lastCapturedIndex()).toUpper());
    }
    return names;
}

constexpr const char *mainSchema = "main";

} // namespace

void DatabaseVisit::Leave::operator()(sqlite3 *connection) const
{
    protectLog(connection);
    CloseSqlite::operator()(connection);
}

void DatabaseVisit::Leave::operator()(sqlite3_stmt *statement) const
{
    sqlite3_reset(statement);
    CloseSqlite::operator()(statement);
}

DatabaseVisit::DatabaseVisit(const QString &path, const Query &query, Patience patience)
    : lock_(&g_Lock)
{
    isReadable_ =
        open(path) && makeSafe(patience) && createView(query.view) && prepare(query.statement);
}

bool DatabaseVisit::nextRow()
{
    if (!isReadable_)
        return false;
    const int result = sqlite3_step(statement_.get());
    if (result != SQLITE_DONE)
        return result == SQLITE_ROW || check(result);
    return false;
}

void DatabaseVisit::abandon()
{
    isReadable_ = false;
    stopFor(SQLITE_ABORT, SQLITE_ABORT, "there are more rows than the limit that was set");
}

int DatabaseVisit::failure() const
{
    return hasFailedToOpen_ || stop_.code == SQLITE_NOMEM ? -stop_.code : 0;
}

bool DatabaseVisit::open(const QString &path)
{
    const QByteArray name = nameForSqlite(path);
    if (isFree(name))
        return stopFor(SQLITE_CANTOPEN, SQLITE_CANTOPEN, "there is no such file");
    sqlite3 *connection = nullptr;
    const int result =
        sqlite3_open_v2(name.constData(), &connection, SQLITE_OPEN_READWRITE, nullptr);
    connection_.reset(connection); // a failed open leaves a handle to close as well
    hasFailedToOpen_ = result != SQLITE_OK;
    return check(result);
}

bool DatabaseVisit::makeSafe(Patience patience)
{
    if (patience == Patience::Usual)
        sqlite3_busy_handler(connection_.get(), waitForLock, this);
    if (!check(distrust(connection_.get())))
        return false;
    workLimit_.apply(connection_.get());
    const ReadingRisk risk = protectSource(connection_.get());
    if (risk == ReadingRisk::RollsBack)
        return stopForRollback();
    if (risk == ReadingRisk::DeletesCompanion)
        return stopFor(SQLITE_READONLY, SQLITE_READONLY_RECOVERY,
                       "reading would delete the -wal or -journal beside an empty database");
    return true;
}

/// Waits a moment for somebody else's lock. SQLite's own waiting looks ten times a second, and so
/// may meet one small commit after the other; nor does it notice that the writer has died.
/// @return 0 when there is nothing to wait for any more
int DatabaseVisit::waitForLock(void *self, int times)
{
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::seconds patience(5);
    auto &visit = *static_cast<DatabaseVisit *>(self);
    if (times == 0)
        visit.waitsSince_ = Clock::now();
    sqlite3_sleep(1);
    visit.hasWriterDied_ = hasWriterDied(visit.connection_.get());
    return !visit.hasWriterDied_ && Clock::now() - visit.waitsSince_ < patience ? 1 : 0;
}

bool DatabaseVisit::createView(const QString &view)
{
    constexpr int allowsItsOwnViews = 3035000; // where those of the database are off
    if (view.isEmpty() || sqlite3_libversion_number() < allowsItsOwnViews)
        return true;
    return check(
        sqlite3_exec(connection_.get(), view.toUtf8().constData(), nullptr, nullptr, nullptr));
}

bool DatabaseVisit::prepare(const QString &statement)
{
    readingOnly_.apply(connection_.get());
    sqlite3_stmt *prepared = nullptr;
    const bool isPrepared = check(sqlite3_prepare_v2(
        connection_.get(), statement.toUtf8().constData(), -1, &prepared, nullptr));
    statement_.reset(prepared);
    if (readingOnly_.isOutOfMemory())
        return check(SQLITE_NOMEM);
    if (!isPrepared)
        return stop_.code == SQLITE_ERROR ? refuseImpostor(statement) : false;
    for (const std::string &table : readingOnly_.tables()) {
        bool isComputed = false;
        if (!check(hasComputedColumn(connection_.get(), mainSchema, table, isComputed)))
            return false;
        if (isComputed)
            return stopForImpostor(table);
    }
    return true;
}

/// Where a statement does not prepare because of what stands in the place of a table, SQLite's
/// message may name something inside of that.
bool DatabaseVisit::refuseImpostor(const QString &statement)
{
    const std::set<QString> tables = tablesNamedIn(statement);
    const auto isMeant = [&](const std::string &name) {
        return tables.count(QString::fromStdString(name).toUpper()) != 0;
    };
    std::string impostor;
    if (!check(findImpostor(connection_.get(), mainSchema, isMeant, impostor)))
        return false;
    return impostor.empty() ? false : stopForImpostor(impostor);
}

/// Notes a result that is no success.
bool DatabaseVisit::check(int result)
{
    constexpr int primaryCode = 0xff;
    if (result == SQLITE_OK)
        return true;
    const int primary = result & primaryCode;
    if (primary == SQLITE_BUSY && hasWriterDied_)
        return stopForRollback();
    if (primary == SQLITE_INTERRUPT && workLimit_.isExceeded())
        return stopFor(primary, result, workLimit_.reason());
    const bool isOfConnection =
        connection_ != nullptr && sqlite3_errcode(connection_.get()) == primary;
    return stopFor(primary, isOfConnection ? sqlite3_extended_errcode(connection_.get()) : result,
                   isOfConnection ? sqlite3_errmsg(connection_.get()) : sqlite3_errstr(result));
}

bool DatabaseVisit::stopForImpostor(const std::string &name)
{
    return stopFor(SQLITE_AUTH, SQLITE_AUTH,
                   name + " is a view, a virtual table, or has a computed column");
}

bool DatabaseVisit::stopForRollback()
{
    return stopFor(SQLITE_READONLY, SQLITE_READONLY_ROLLBACK,
                   "reading would roll back the -journal of a writer that died");
}

bool DatabaseVisit::stopFor(int code, int extendedCode, std::string text)
{
    stop_ = {code, extendedCode, std::move(text)};
    return false;
}

} // namespace iosphoto
