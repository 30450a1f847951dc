#include "catalogue/library.h"

#include "catalogue/album_account.h"
#include "model/clock.h"
#include "model/model_devicephoto_dbmgr.h"
#include "model/store/database_path.h"
#include "model/store/stored_bytes.h"
#include "schema/asset_tables.h"
#include "terminal/busy_line.h"
#include "text/translate.h"
#include "time/time_text.h"

#include <algorithm>
#include <limits>

namespace iosphoto::tool {

namespace {

bool isWithoutPhotos(const std::vector<CAlbumGroup> &albums)
{
    return std::all_of(albums.begin(), albums.end(),
                       [](const CAlbumGroup &album) { return album.photos.empty(); });
}

/// The library counts times in 32 bits.
std::uint32_t libraryTime(UnixTime time)
{
    return static_cast<std::uint32_t>(
        std::clamp<std::int64_t>(time.seconds, 0, std::numeric_limits<std::uint32_t>::max()));
}

/// Generously: in a sound database each row of a pass is an asset, an album or a membership, and
/// the smallest takes more bytes. Where one stands several times, the statements' joins multiply
/// it.
std::int64_t mostRowsOfAPass(const std::string &database)
{
    constexpr std::int64_t bytesOfARow = 8;
    constexpr std::int64_t spare = 1000;
    return storedBytesOfDatabase(database.c_str()) / bytesOfARow + spare;
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
    asOf_ = request.asOf.value_or(ownTimeOf(source));
    inspect(copy);
    read(session, copy);
    accountFor(copy);
}

std::int64_t Library::leftOutOfTrash() const
{
    return account_ ? account_->photos.leftOutFor(PhotoReason::TrashedTooLong) +
                          account_->photos.leftOutFor(PhotoReason::TrashedWithoutDate)
                    : 0;
}

void Library::inspect(const OpenedCopy &copy)
{
    schema_ = copy.schema();
    missing_ = copy.missing();
    hasLog_ = copy.hasLog();
    const CopyDatabase database = copy.connect();
    trash_ = Trash(database, asOf_.time);
    if (hasLog_ && request_.comparesLog)
        logChanges_ = readLogChanges(database);
}

void Library::read(const Session &session, const OpenedCopy &copy)
{
    QDevPhotoDbMgr manager(device().iosVersion, device().productType);
    manager.SetDataPath(pathFromBytes(copy.file()));
    rowLimit_ = manager.rowLimit = mostRowsOfAPass(copy.file());
    manager.asOf = libraryTime(asOf_.time);
    const int result = [&] {
        const BusyLine busy(session.terminal, translate("reading photos"));
        return manager.GetPhotoAlbumDatas();
    }();
    catalogue_ = OwnedCatalogue(std::move(manager.albums));
    report_ = std::move(manager.report);
    const CPassReport *const stop = report_.firstStopped();
    if (result != 0 || (stop != nullptr && isWithoutPhotos(albums())))
        throw NothingRead(database_, stop != nullptr ? stop->extendedCode : -result);
    if (stop == nullptr && isWithoutPhotos(albums()) && areAssetTablesDamaged(copy.connect()))
        throw NothingRead(database_, SQLITE_CORRUPT);
}

/// Damage can be where no statement of the catalogue comes by.
void Library::accountFor(const OpenedCopy &copy)
{
    const CopyDatabase database = copy.connect();
    const ReadingFacts reading = {schema_, albums(), asOf_.time, report_.firstStopped() == nullptr};
    try {
        Account account;
        account.photos =
            accountOfPhotos(database, reading, request_.keepsLeftOut ? &leftOutPhotos_ : nullptr);
        account.albums = accountOfAlbums(database, reading);
        dates_ = KnownDates(database, albums());
        account_ = account;
    } catch (const Failure &failure) {
        uncounted_ = failure.what();
    }
}

} // namespace iosphoto::tool
