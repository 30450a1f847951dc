#include "input/private_copy.h"

#include "sqlite/rollback_journal.h"
#include "terminal/busy_line.h"
#include "text/translate.h"

namespace iosphoto::tool {

PrivateCopy::PrivateCopy(Session &session, const Source &source)
{
    source.announceReading(session.files);
    const BusyLine busy(session.terminal, translate("copying the database"));
    missing_ = source.copyDatabaseTo(folder_.path());
    forgetSuperJournal(database());
    log_ = readWriteAheadLog(database() + "-wal");
}

void PrivateCopy::removeLog() const
{
    for (const char *const suffix : {"-wal", "-shm"})
        std::filesystem::remove(database() + suffix);
}

} // namespace iosphoto::tool
