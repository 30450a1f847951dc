#include "catalogue/library.h"

#include "failure.h"
#include "language/said.h"
#include "language/sqlite_error.h"
#include "model/clock.h"
#include "output/busy_line.h"
#include "output/notice.h"
#include "records/record_ownership.h"
#include "source/sqlite_error_log.h"
#include "source/table_damage.h"

#include <algorithm>
#include <limits>

namespace iosphoto::tool {

namespace {

bool isWithoutPhotos(const std::vector<CAlbumGroup> &albums)
{
    return std::all_of(albums.begin(), albums.end(),
                       [](const CAlbumGroup &album) { return album.photos.empty(); });
}

/// The clock that the library reads counts 32 bits.
std::uint32_t clockTime(std::int64_t unixTime)
{
    return static_cast<std::uint32_t>(
        std::clamp<std::int64_t>(unixTime, 0, std::numeric_limits<std::uint32_t>::max()));
}

} // namespace

Moment ownTimeOf(const Source &source)
{
    if (const auto date = source.backupDate())
        return {*date, said("Last Backup Date")};
    return {source.lastChange(), said("its last change")};
}

Library::Library(const LibraryRequest &request) : Library(request, Source(request.source)) {}

Library::Library(const LibraryRequest &request, const Source &source) : request_(request)
{
    const OpenedCopy copy(source, request.device);
    database_ = source.databaseName();
    kind_ = source.kind();
    isArchive_ = source.isArchive();
    asOf_ = request.asOf.value_or(ownTimeOf(source));
    inspect(copy);
    const StoppedClock asOf(clockTime(asOf_.unixTime));
    read(copy);
    leftOut_ = trash_.leftOutOf(albums_, asOf_.unixTime);
}

void Library::inspect(const OpenedCopy &copy)
{
    schema_ = copy.schema();
    missing_ = copy.missing();
    hasLog_ = copy.hasLog();
    const CopyDatabase database = copy.connect();
    trash_ = Trash(database);
    if (hasLog_ && request_.comparesLog)
        logChanges_ = readLogChanges(database);
}

Library::~Library()
{
    destroyRecords(albums_);
}

void Library::read(const OpenedCopy &copy)
{
    sqlite_error_log::clear();
    const int result = [&] {
        const BusyLine busy(said("reading photos"));
        return ios_photo_get_list(copy.file(), device().iosVersion, device().productType, &albums_);
    }();
    if (result != 0)
        throw Failure(CannotAccess, said("cannot read '{0}': SQLite error {1}; {2}", database_,
                                         -result, adviceToCopyAgain()));
    const std::string error = damageMetBy(copy);
    if (error.empty())
        return;
    if (isWithoutPhotos(albums_))
        throw Failure(CannotAccess, said("'{0}' is damaged ({1}) and no photo could be read; {2}",
                                         database_, error, adviceToCopyAgain()));
    missing_.push_back(said("'{0}' is damaged ({1}) and photos are missing here; {2}", database_,
                            error, adviceToCopyAgain()));
}

std::string Library::damageMetBy(const OpenedCopy &copy) const
{
    const std::string error = sqlite_error_log::firstError();
    if (!error.empty() || !isWithoutPhotos(albums_))
        return error;
    return areAssetTablesDamaged(copy.connect()) ? sqliteError(SQLITE_CORRUPT) : "";
}

std::string Library::assumptions() const
{
    const std::string when = localTimeText(asOf_.unixTime);
    return said("reading as {0} and {1}, as of {2}", schema_.iosText(), schema_.productText(),
                asOf_.why.empty() ? when : said("{0} ({1})", when, asOf_.why));
}

void Library::sayHowItWasRead(const std::string &label) const
{
    std::string line;
    if (schema_.isAssumed() || !asOf_.why.empty())
        line = assumptions();
    if (leftOut_ > 0)
        line +=
            (line.empty() ? "" : said("; ")) +
            said("left out since they were in the trash for 30 days: {0} (see --as-of)", leftOut_);
    if (!line.empty())
        remark(label + line);
    if (!schema_.warning.empty())
        notice(label + schema_.warning);
    for (const std::string &text : missing_)
        notice(label + text);
}

} // namespace iosphoto::tool
