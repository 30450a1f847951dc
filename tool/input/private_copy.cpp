#include "input/private_copy.h"

#include "sqlite/rollback_journal.h"
#include "sqlite/write_ahead_log.h"
#include "terminal/busy_line.h"
#include "text/translate.h"

namespace iosphoto::tool {

PrivateCopy::PrivateCopy(const Source &source)
{
    source.announceReading();
    const BusyLine busy(translate("copying the database"));
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

std::string adviceToCopyAgain()
{
    return translate("copy it from the device or the backup again, its -wal with it");
}

} // namespace iosphoto::tool
