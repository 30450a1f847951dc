#include "input/private_copy.h"

#include "sqlite/rollback_journal.h"
#include "sqlite/write_ahead_log.h"
#include "terminal/busy_line.h"
#include "text/translate.h"

namespace iosphoto::tool {

PrivateCopy::PrivateCopy(Session &session, const Source &source)
{
    source.announceReading(session.files);
    const BusyLine busy(session.terminal, translate("copying the database"));
    source.copyDatabaseTo(folder_.path());
    forgetSuperJournal(database());
}

bool PrivateCopy::hasLog() const
{
    std::error_code ignored;
    const auto size = std::filesystem::file_size(log(), ignored);
    return !ignored && size > 0;
}

bool PrivateCopy::hasReadableLog() const
{
    return isWriteAheadLog(log());
}

} // namespace iosphoto::tool
