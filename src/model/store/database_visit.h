#ifndef IOSPHOTO_DATABASE_VISIT_H
#define IOSPHOTO_DATABASE_VISIT_H

#include "model/store/row.h"

#include <QMutexLocker>
#include <QString>

#include <memory>
#include <optional>

struct sqlite3;
struct sqlite3_stmt;

namespace iosphoto {

/// One visit to a database: takes the lock, opens the file and prepares one statement; on leaving
/// resets, finalizes and closes, then gives the lock back, on every path.
///
/// A statement that does not prepare has no rows. So has a database that could not be read without
/// changing a file.
class DatabaseVisit
{
public:
    DatabaseVisit(const QString &path, const QString &statement);

    /// 0, or the negated SQLite code of the open that failed.
    int failure() const { return failure_; }

    /// Moves to the next row; false at the end and on any error.
    bool nextRow();
    Row row() const { return Row(prepared_->statement); }

private:
    struct Close
    {
        void operator()(sqlite3 *connection) const;
    };
    /// Resets and finalizes, also what did not prepare: a null pointer is harmless there.
    struct Prepared
    {
        Prepared();
        ~Prepared();
        Prepared(const Prepared &) = delete;
        Prepared &operator=(const Prepared &) = delete;

        sqlite3_stmt *statement = nullptr;
    };

    // Destroyed from the last to the first.
    QMutexLocker lock_;
    std::unique_ptr<sqlite3, Close> connection_;
    std::optional<Prepared> prepared_;
    int failure_ = 0;
};

/// Visits the database at `path` and hands each row of `statement` to `takeRow`.
/// @return the number of rows, or the negated SQLite code of an open that failed.
template <typename TakeRow>
int visitRows(const QString &path, const QString &statement, TakeRow takeRow)
{
    DatabaseVisit visit(path, statement);
    if (visit.failure() != 0)
        return visit.failure();
    int rows = 0;
    for (; visit.nextRow(); ++rows)
        takeRow(visit.row());
    return rows;
}

} // namespace iosphoto

#endif // IOSPHOTO_DATABASE_VISIT_H
