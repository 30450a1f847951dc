#include "catalogue/library.h"

#include "catalogue/reading_stop.h"
#include "model/model_devicephoto_dbmgr.h"
#include "model/store/database_path.h"
#include "model/store/stored_bytes.h"
#include "process/failure.h"
#include "schema/table_damage.h"
#include "terminal/busy_line.h"
#include "terminal/messages.h"
#include "text/translate.h"

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
std::uint32_t libraryTime(std::int64_t unixTime)
{
    return static_cast<std::uint32_t>(
        std::clamp<std::int64_t>(unixTime, 0, std::numeric_limits<std::uint32_t>::max()));
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
    return {source.lastChange(), translate("its last change")};
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
    read(copy);
    leftOut_ = trash_.leftOutOf(albums(), asOf_.unixTime);
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

void Library::read(const OpenedCopy &copy)
{
    QDevPhotoDbMgr manager(device().iosVersion, device().productType);
    manager.SetDataPath(pathFromBytes(copy.file()));
    manager.rowLimit = mostRowsOfAPass(copy.file());
    manager.asOf = libraryTime(asOf_.unixTime);
    const ReadDatabase database = {database_, adviceToCopyAgain(), manager.rowLimit};
    const int result = [&] {
        const BusyLine busy(translate("reading photos"));
        return manager.GetPhotoAlbumDatas();
    }();
    catalogue_ = OwnedCatalogue(std::move(manager.albums));
    const CPassReport *const stop = manager.report.firstStopped();
    if (result != 0 || (stop != nullptr && isWithoutPhotos(albums())))
        throw nothingRead(stop != nullptr ? stop->extendedCode : -result, database);
    if (stop == nullptr && isWithoutPhotos(albums()) && areAssetTablesDamaged(copy.connect()))
        throw nothingRead(SQLITE_CORRUPT, database);
    for (const std::string &sentence : sentencesOf(manager.report, database))
        missing_.push_back(sentence);
}

std::string Library::assumptions() const
{
    const std::string when = localTimeText(asOf_.unixTime);
    return translate("reading as {0} and {1}, as of {2}", schema_.iosText(), schema_.productText(),
                     asOf_.why.empty() ? when : translate("{0} ({1})", when, asOf_.why));
}

void Library::sayHowItWasRead(const std::string &label) const
{
    std::string line;
    if (schema_.isAssumed() || !asOf_.why.empty())
        line = assumptions();
    if (leftOut_ > 0)
        line += (line.empty() ? "" : translate("; ")) +
                translate("left out since they were in the trash for 30 days: {0} (see --as-of)",
                          leftOut_);
    if (!line.empty())
        printInfo(label + line);
    if (!schema_.warning.empty())
        printWarning(label + schema_.warning);
    for (const std::string &text : missing_)
        printWarning(label + text);
}

} // namespace iosphoto::tool
