#ifndef IOSPHOTO_DATABASE_VISIT_H
#define IOSPHOTO_DATABASE_VISIT_H

#include "ios_photo_report.h"
#include "model/store/reading_only.h"
#include "model/store/row.h"
#include "model/store/sqlite_handles.h"
#include "model/store/work_limit.h"

#include <QMutexLocker>
#include <QString>

#include <chrono>
#include <memory>
#include <string>

namespace iosphoto {

/// The lock of this process, held by every visit to a database, whichever it is, from before the
/// open to after the close. Visits do not nest.
extern QMutex g_Lock;

/// How long to wait for somebody else's lock.
enum class Patience {
    None,
    Usual, ///< five seconds
};

/// The code of a stop when the lock was held for longer than that.
constexpr int lockedBySomebody = 5;

/// Why a visit had no more rows: as CPassReport has it; a code of 0 at the end of the rows.
struct Stop
{
    int code = 0;
    int extendedCode = 0;
    std::string text;
};

/// What a visit runs.
struct Query
{
    QString statement;
    QString view; ///< a temporary view for the statement to read; empty for none
};

/// One visit to a database: takes the lock, opens the file and prepares one statement; on leaving
/// resets, finalizes and closes, then gives the lock back, on every path.
///
/// What the database holds is not trusted, and nothing but reading is possible. A statement that
/// does not prepare has no rows. So has a database that could not be read without changing a file,
/// one whose tables are something else, and a path without a file.
class DatabaseVisit
{
public:
    DatabaseVisit(const QString &path, const Query &query, Patience patience);

    /// Moves to the next row; false at the end and on any error.
    bool nextRow();
    Row row() const { return Row(statement_.get()); }

    /// Reads no further, although there are rows.
    void abandon();

    /// Once there is no next row, why.
    const Stop &stop() const { return stop_; }
    /// The negated code of the stop where that is a failure of the visit, an open that failed or
    /// lack of memory; otherwise 0.
    int failure() const;

private:
    struct Leave : CloseSqlite
    {
        void operator()(sqlite3 *connection) const;     ///< protects the log first
        void operator()(sqlite3_stmt *statement) const; ///< resets it first
    };

    bool open(const QString &path);
    bool makeSafe(Patience patience);
    static int waitForLock(void *self, int times);
    bool createView(const QString &view);
    bool prepare(const QString &statement);
    bool refuseImpostor(const QString &statement);
    bool check(int result);
    bool stopForImpostor(const std::string &name);
    bool stopForRollback();
    bool stopFor(int code, int extendedCode, std::string text);

    // Destroyed from the last to the first.
    QMutexLocker lock_;
    ReadingOnly readingOnly_;
    WorkLimit workLimit_;
    std::unique_ptr<sqlite3, Leave> connection_;
    std::unique_ptr<sqlite3_stmt, Leave> statement_;
    bool isReadable_ = false;
    bool hasFailedToOpen_ = false;
    bool hasWriterDied_ = false; ///< while its lock was waited for
    std::chrono::steady_clock::time_point waitsSince_;
    Stop stop_;
};

} // namespace iosphoto

#endif // IOSPHOTO_DATABASE_VISIT_H
