#include "source/private_copy.h"

#include "language/said.h"
#include "output/busy_line.h"
#include "source/rollback_journal.h"
#include "source/write_ahead_log.h"

namespace iosphoto::tool {

PrivateCopy::PrivateCopy(const Source &source)
{
    source.announceReading();
    const BusyLine busy(said("copying the database"));
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
    return said("copy it from the device or the backup again, its -wal with it");
}

} // namespace iosphoto::tool
