#ifndef IOSPHOTO_ASSET_ROW_DECODER_H
#define IOSPHOTO_ASSET_ROW_DECODER_H

#include "ios_photo.h"
#include "model/device/device_profile.h"
#include "model/passes/day_text.h"
#include "model/passes/row_columns.h"
#include "model/store/row.h"

#include <memory>
#include <string>

namespace iosphoto {

/// Makes texts of a column whose neighbouring rows mostly hold the same, so that they share one.
class RepeatedText
{
public:
    /// @param utf8  a null pointer gives an empty text
    QString of(const char *utf8);

private:
    std::string utf8_;
    QString text_;
};

/// How one pass's rows differ from another's in what they share. The first columns, up to the
/// file size, are the same in all.
struct AssetRowLayout
{
    int duration;
    int created;
    int modified;
    int added;
    int livePhoto; ///< a time scale: not zero for Live Photos
    int uuid;
    int albumUuid;
    int hasAdjustments;
    int adjustmentsState;
    int editorBundle;
    bool fractionalDates;         ///< keep fractions of seconds
    std::int64_t firstKnownDate;  ///< Unix time before which the date text says "unknown"
    const char *missingAlbumUuid; ///< what a missing album uuid becomes where uuids are blobs
};

/// Makes records from what asset rows of all passes share.
class AssetRowDecoder
{
public:
    /// @param albumName  translated; every record gets it
    AssetRowDecoder(const AssetRowLayout &layout, const DeviceProfile &device, QString albumName);

    std::unique_ptr<CPhotoData> decode(const Row &row);

private:
    void readFile(CPhotoData &photo, const Row &row);
    void readTimes(CPhotoData &photo, const Row &row) const;
    double seconds(const Row &row, int column) const;
    void readIdentifiers(CPhotoData &photo, const Row &row) const;
    bool isEdited(const Row &row) const;
    QString dateText(const CPhotoData &photo);

    const AssetRowLayout &layout_;
    IosGeneration ios_;
    QString albumName_;
    QString unknownDate_;
    RepeatedText directory_;
    DayText day_;
};

} // namespace iosphoto

#endif // IOSPHOTO_ASSET_ROW_DECODER_H
