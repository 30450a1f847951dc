#ifndef IOSPHOTO_PASS_RUN_H
#define IOSPHOTO_PASS_RUN_H

#include "model/model_devicephoto_dbmgr.h"
#include "model/statements/statement_tables.h"
#include "model/store/database_visit.h"
#include "no_throw.h"

namespace iosphoto {

/// One run of a pass: visits the manager's database and notes in its report how far that went.
class PassRun
{
public:
    /// Begins the pass's entry of the report anew.
    PassRun(QDevPhotoDbMgr &manager, Pass::Code pass);

    /// Runs a query and hands each row to `takeRow`.
    /// @return the number of rows, or the negated code of an open that failed or of lack of memory.
    template <typename TakeRow>
    int readRows(const Query &query, TakeRow takeRow)
    {
        DatabaseVisit visit(manager_.dataPath, query, patience());
        std::int64_t &rows = report().rows;
        while (visit.nextRow()) {
            if (isEnough(rows)) {
                visit.abandon();
                break;
            }
            takeRow(visit.row());
            ++rows;
        }
        note(visit.stop());
        return visit.failure() != 0 ? visit.failure() : static_cast<int>(rows);
    }

    /// The variant that `device` needs, filled in for the database.
    QString statementFor(const DeviceProfile &device, const StatementTable &statements) const
    {
        return filledIn(choose(statements, device), entityNumbers(manager_));
    }

    /// Runs the statement of a pass that `device` needs.
    template <typename TakeRow>
    int readRows(const StatementTable &statements, const DeviceProfile &device, TakeRow takeRow)
    {
        return readRows({statementFor(device, statements), {}}, takeRow);
    }

private:
    Patience patience();
    bool isEnough(std::int64_t rows) const
    {
        return manager_.rowLimit > 0 && rows >= manager_.rowLimit;
    }
    void note(const Stop &stop);
    CPassReport &report() { return manager_.report.passes.back(); }

    QDevPhotoDbMgr &manager_;
};

/// Notes in the manager's report that memory ran out in a pass.
void noteOutOfMemory(QDevPhotoDbMgr &manager, Pass::Code pass) noexcept;

/// Runs a pass, for an operation that a host calls. `body` gets the PassRun and returns the result.
template <typename Body>
int runPass(QDevPhotoDbMgr &manager, Pass::Code pass, Body body) noexcept
{
    const int result = withoutThrowing([&] {
        PassRun run(manager, pass);
        return body(run);
    });
    if (result == outOfMemory)
        noteOutOfMemory(manager, pass);
    return result;
}

} // namespace iosphoto

#endif // IOSPHOTO_PASS_RUN_H
