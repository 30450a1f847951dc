#ifndef IOSPHOTO_TOOL_WITHOUT_LOG_H
#define IOSPHOTO_TOOL_WITHOUT_LOG_H

#include "catalogue/account.h"
#include "catalogue/known_dates.h"
#include "catalogue/trash.h"
#include "records/owned_catalogue.h"
#include "schema/opened_copy.h"
#include "session/session.h"
#include "time/epochs.h"

#include <optional>

namespace iosphoto::tool {

/// A catalogue with the dates of its photos.
struct DatedCatalogue
{
    OwnedCatalogue catalogue;
    KnownDates dates;
};

/// What the database of a library holds without its write-ahead log, with all of its trash.
struct WithoutLog
{
    /// Whether it could be read: a database that needs its log may be damaged without it.
    bool isRead = false;
    DatedCatalogue without; ///< empty where all of the schema is in the log
    Trash trash;
    ProbedSchema schema;   ///< of no name where all of it is in the log
    Account account;       ///< as of the library's moment
    LeftOutPhotos leftOut; ///< likewise
    /// What is to be compared with it, where that is not the library, which leaves some out.
    std::optional<DatedCatalogue> withLog;
};

/// Takes the log away from the copy for good.
/// @param asOf           of the library
/// @param trashLeavesOut  whether the library leaves something of its trash out
WithoutLog readWithoutLog(const Session &session, const OpenedCopy &copy, UnixTime asOf,
                          bool trashLeavesOut);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_WITHOUT_LOG_H
