#include "model/passes/photo_library_pass.h"

#include "model/display_texts.h"
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

int readPhotoLibrary(const PassContext &context)
{
    return runPass(context, Pass::PhotoLibrary, [&](PassRun &run) {
        std::vector<CAlbumGroup> &albums = context.albums;
        AssetRowDecoder decoder(layout, context.device, translated(display_text::photoLibrary));
        return run.readRows(photoLibraryStatements, [&](const Row &row) {
            std::unique_ptr<CPhotoData> photo = decoder.decode(row);
            if (!photo->fileName.isEmpty() && albums.size() > photoLibraryIndex)
                append(albums[photoLibraryIndex], std::move(photo));
        });
    });
}

} // namespace iosphoto
