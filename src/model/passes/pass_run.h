#ifndef IOSPHOTO_PASS_RUN_H
#define IOSPHOTO_PASS_RUN_H

#include "model/passes/pass_context.h"
#include "model/statements/statement_tables.h"
#include "model/store/database_visit.h"
#include "no_throw.h"

namespace iosphoto {

/// One run of a pass: visits the database and notes in the report how far that went.
class PassRun
{
public:
    /// Begins the pass's entry of the report anew.
    PassRun(const PassContext &context, Pass::Code pass);

    /// Runs a query and hands each row to `takeRow`.
    /// @return the number of rows, or the negated code of an open that failed or of lack of memory.
    template <typename TakeRow>
    int readRows(const Query &query, TakeRow takeRow)
    {
        DatabaseVisit visit(context_.path, query, patience());
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

    /// The variant that the device needs, filled in for the database.
    QString statementFrom(const StatementTable &statements) const
    {
        return filledIn(choose(statements, context_.device), context_.entities);
    }

    /// Runs the statement of a pass that the device needs.
    template <typename TakeRow>
    int readRows(const StatementTable &statements, TakeRow takeRow)
    {
        return readRows({statementFrom(statements), {}}, takeRow);
    }

private:
    Patience patience();
    bool isEnough(std::int64_t rows) const
    {
        return context_.rowLimit > 0 && rows >= context_.rowLimit;
    }
    void note(const Stop &stop);
    CPassReport &report() { return context_.report.passes.back(); }

    const PassContext &context_;
};

/// Notes in the report that memory ran out in a pass.
void noteOutOfMemory(CReadReport &report, Pass::Code pass) noexcept;

/// Runs a pass, for an operation that a host calls. `body` gets the PassRun and returns the result.
template <typename Body>
int runPass(const PassContext &context, Pass::Code pass, Body body) noexcept
{
    const int result = withoutThrowing([&] {
        PassRun run(context, pass);
        return body(run);
    });
    if (result == outOfMemory)
        noteOutOfMemory(context.report, pass);
    return result;
}

} // namespace iosphoto

#endif // IOSPHOTO_PASS_RUN_H
