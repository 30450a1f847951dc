#include "catalogue/catalogue_build.h"

#include "model/model_devicephoto_dbmgr.h"
#include "model/store/database_path.h"
#include "model/store/stored_bytes.h"
#include "terminal/busy_line.h"
#include "text/translate.h"

#include <algorithm>
#include <limits>

namespace iosphoto::tool {

namespace {

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

CatalogueBuild buildCatalogue(const Session &session, const std::string &database,
                              const Device &device, UnixTime asOf)
{
    QDevPhotoDbMgr manager(device.iosVersion, device.productType);
    manager.SetDataPath(pathFromBytes(database));
    const std::int64_t rowLimit = mostRowsOfAPass(database);
    manager.rowLimit = rowLimit;
    manager.asOf = libraryTime(asOf);
    const BusyLine busy(session.terminal, translate("reading photos"));
    const int result = manager.GetPhotoAlbumDatas();
    return {OwnedCatalogue(std::move(manager.albums)), std::move(manager.report), result, rowLimit};
}

} // namespace iosphoto::tool
