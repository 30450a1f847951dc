#ifndef IOSPHOTO_TOOL_CATALOGUE_BUILD_H
#define IOSPHOTO_TOOL_CATALOGUE_BUILD_H

#include "ios_photo_report.h"
#include "records/owned_catalogue.h"
#include "schema/device.h"
#include "session/session.h"
#include "time/epochs.h"

#include <string>
#include <vector>

namespace iosphoto::tool {

/// Before anything was ever put into a trash: what is read as of it has all of its trash. No
/// calendar has this moment.
constexpr UnixTime beforeAllTrash = {-100'000'000'000};

/// What the library made of a database.
struct CatalogueBuild
{
    OwnedCatalogue catalogue;
    CReadReport report;
    int result;            ///< 0, or a negated code of SQLite
    std::int64_t rowLimit; ///< the most rows that a pass was to read

    bool isComplete() const { return result == 0 && report.firstStopped() == nullptr; }
};

/// Builds the catalogue of a private copy of a database.
CatalogueBuild buildCatalogue(const Session &session, const std::string &database,
                              const Device &device, UnixTime asOf);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_CATALOGUE_BUILD_H
