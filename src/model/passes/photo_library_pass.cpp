#include "model/album_names.h"
#include "model/passes/asset_row_decoder.h"
#include "model/passes/pass_run.h"
#include "records/record_ownership.h"

namespace iosphoto {

namespace {

constexpr AssetRowLayout layout = {
    absent, // duration
    column(photoLibraryColumns, "ZDATECREATED"),
    column(photoLibraryColumns, "ZMODIFICATIONDATE"),
    column(photoLibraryColumns, "ZADDEDDATE"),
    absent, // livePhoto
    column(photoLibraryColumns, "ZUUID"),
    column(photoLibraryColumns, "albumuuid"),
    absent, // hasAdjustments
    absent, // adjustmentsState
    absent, // editorBundle
    true,   // fractionalDates
    1,      // firstKnownDate
    "",     // missingAlbumUuid
};

constexpr std::size_t photoLibraryIndex = 1;

} // namespace

} // namespace iosphoto

int QDevPhotoDbMgr::GetPhotosAlbum()
{
    using namespace iosphoto;
    return runPass(*this, Pass::PhotoLibrary, [this](PassRun &run) {
        const DeviceProfile device(iosVersion, productType);
        AssetRowDecoder decoder(layout, device, tr(album_names::photoLibrary));
        return run.readRows(photoLibraryStatements, device, [&](const Row &row) {
            std::unique_ptr<CPhotoData> photo = decoder.decode(row);
            if (!photo->fileName.isEmpty() && albums.size() > photoLibraryIndex)
                append(albums[photoLibraryIndex], std::move(photo));
        });
    });
}
