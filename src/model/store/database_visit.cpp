#include "model/store/database_visit.h"

#include "model/store/database_lock.h"
#include "model/store/source_protection.h"
#include "no_throw.h"

#include <sqlite3.h>

namespace iosphoto {

static_assert(outOfMemory == -SQLITE_NOMEM);

QMutex g_Lock;

void DatabaseVisit::Close::operator()(sqlite3 *connection) const
{
    sqlite3_close(connection);
}

DatabaseVisit::Prepared::Prepared() = default;

DatabaseVisit::Prepared::~Prepared()
{
    sqlite3_reset(statement);
    sqlite3_finalize(statement);
}

DatabaseVisit::DatabaseVisit(const QString &path, const QString &statement) : lock_(&g_Lock)
{
    sqlite3 *connection = nullptr;
    const int opened = sqlite3_open(path.toUtf8().constData(), &connection);
    connection_.reset(connection); // a failed open leaves a handle to close as well
    if (opened != SQLITE_OK) {
        failure_ = -opened;
        return;
    }
    prepared_.emplace();
    if (protectSource(connection))
        sqlite3_prepare_v2(connection, statement.toUtf8().constData(), -1, &prepared_->statement,
                           nullptr);
}

bool DatabaseVisit::nextRow()
{
    return prepared_ && prepared_->statement != nullptr &&
           sqlite3_step(prepared_->statement) == SQLITE_ROW;
}

} // namespace iosphoto
