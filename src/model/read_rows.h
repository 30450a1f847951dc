#ifndef IOSPHOTO_READ_ROWS_H
#define IOSPHOTO_READ_ROWS_H

#include "model/model_devicephoto_dbmgr.h"
#include "model/statement_tables.h"
#include "model/store/database_visit.h"

namespace iosphoto {

/// Runs the statement of a pass that `device` needs on the manager's database and hands on its
/// rows.
/// @return the number of rows, or the negated SQLite code of an open that failed.
template <typename TakeRow>
int readRows(const QDevPhotoDbMgr &manager, const StatementTable &statements,
             const DeviceProfile &device, TakeRow takeRow)
{
    const QString statement = filledIn(choose(statements, device), entityNumbers(manager));
    return visitRows(manager.dataPath, statement, takeRow);
}

} // namespace iosphoto

#endif // IOSPHOTO_READ_ROWS_H
