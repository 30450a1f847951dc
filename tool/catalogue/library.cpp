#include "catalogue/library.h"

#include "catalogue/catalogue_build.h"
#include "model/clock.h"
#include "schema/asset_tables.h"
#include "text/translate.h"
#include "time/time_text.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

bool isWithoutPhotos(const std::vector<CAlbumGroup> &albums)
{
    return std::all_of(albums.begin(), albums.end(),
                       [](const CAlbumGroup &album) { return album.photos.empty(); });
}

} // namespace

Moment ownTimeOf(const Source &source)
{
    if (const auto date = source.backupDate())
        return {*date, translate("Last Backup Date")};
    if (source.isBareStream())
        return {{currentUnixTime()}, translate("now, as standard input has no date")};
    const std::string zone = source.isLastChangeWithoutZone() ? timeZoneName() : "";
    return {source.lastChange(), translate("its last change"), zone};
}

Library::Library(Session &session, const LibraryRequest &request)
    : Library(session, request, Source(session, request.source))
{
}

Library::Library(Session &session, const LibraryRequest &request, const Source &source)
    : request_(request)
{
    const OpenedCopy copy(session, source, request.device);
    database_ = source.databaseName();
    kind_ = source.kind();
    isArchive_ = source.isArchive();
    isBareStream_ = source.isBareStream();
    identity_ = source.identity();
    encryption_ = source.encryption();
    passedOver_ = source.passedOver();
    asOf_ = request.asOf.value_or(ownTimeOf(source));
    inspect(copy);
    read(session, copy);
    accountFor(copy);
    if (log_.isApplied() && request.comparesLog)
        withoutLog_ = readWithoutLog(session, copy, asOf_.time, !account_ || leftOutOfTrash() > 0);
}

std::int64_t Library::unreadRows() const
{
    return account_ ? account_->photos.leftOutFor(PhotoReason::NotRead) +
                          account_->albums.leftOutFor(AlbumReason::NotRead)
                    : 0;
}

std::int64_t Library::leftOutOfTrash() const
{
    if (request_.isCompared)
        return trash_.emptiedPhotos(albums());
    return account_ ? account_->photos.leftOutFor(PhotoReason::TrashedTooLong) +
                          account_->photos.leftOutFor(PhotoReason::TrashedWithoutDate)
                    : 0;
}

void Library::inspect(const OpenedCopy &copy)
{
    schema_ = copy.schema();
    missing_ = copy.missing();
    log_ = copy.log();
    const CopyDatabase database = copy.connect();
    trash_ = Trash(database, asOf_.time);
    if (request_.isCompared)
        age_ = readSnapshotAge(database, {currentUnixTime()});
}

void Library::read(const Session &session, const OpenedCopy &copy)
{
    CatalogueBuild build = buildCatalogue(session, copy.file(), device(),
                                          request_.isCompared ? beforeAllTrash : asOf_.time);
    catalogue_ = std::move(build.catalogue);
    report_ = std::move(build.report);
    rowLimit_ = build.rowLimit;
    const CPassReport *const stop = report_.firstStopped();
    if (build.result != 0 || (stop != nullptr && isWithoutPhotos(albums())))
        throw NothingRead(database_, stop != nullptr ? stop->extendedCode : -build.result);
    if (stop == nullptr && isWithoutPhotos(albums()) && areAssetTablesDamaged(copy.connect()))
        throw NothingRead(database_, SQLITE_CORRUPT);
}

/// Damage can be where no statement of the catalogue comes by.
void Library::accountFor(const OpenedCopy &copy)
{
    const CopyDatabase database = copy.connect();
    const ReadingFacts reading = {schema_, albums(), asOf_.time, report_.firstStopped() == nullptr};
    const bool keepsLeftOut = request_.keepsLeftOut || (request_.comparesLog && log_.isApplied());
    try {
        const Account account =
            accountOf(database, reading, keepsLeftOut ? &leftOutPhotos_ : nullptr);
        dates_ = KnownDates(database, albums());
        account_ = account;
    } catch (const Failure &failure) {
        uncounted_ = failure.what();
    }
}

} // namespace iosphoto::tool
