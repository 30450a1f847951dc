#include "model/passes/asset_row_decoder.h"

#include "model/core_data_time.h"
#include "model/database_codes.h"
#include "model/display_texts.h"
#include "model/original_size.h"
#include "model/passes/row_uuid.h"

#include <limits>
#include <utility>

#include <cstring>

namespace iosphoto {

namespace {

/// The columns that stand in the same place in the rows of all passes.
namespace shared {
constexpr const char *names[] = {"ZTHUMBNAILINDEX",   "ZFILENAME", "ZDIRECTORY",
                                 "ZORIGINALFILENAME", "ZWIDTH",    "ZHEIGHT",
                                 "ZORIGINALFILESIZE"};
static_assert(startsWith(cameraRollColumns, names));
static_assert(startsWith(photoLibraryColumns, names));
static_assert(startsWith(albumContentsColumns, names));

constexpr int thumbnailIndex = column(names, "ZTHUMBNAILINDEX");
constexpr int fileName = column(names, "ZFILENAME");
constexpr int directory = column(names, "ZDIRECTORY");
constexpr int originalFileName = column(names, "ZORIGINALFILENAME");
constexpr int width = column(names, "ZWIDTH");
constexpr int height = column(names, "ZHEIGHT");
constexpr int originalFileSize = column(names, "ZORIGINALFILESIZE");
} // namespace shared

float toFloat(double value)
{
    static_assert(std::numeric_limits<float>::is_iec559, "too large a value becomes infinite");
    return static_cast<float>(value);
}

} // namespace

QString RepeatedText::of(const char *utf8)
{
    if (utf8 == nullptr)
        return {};
    if (text_.isNull() || std::strcmp(utf8, utf8_.c_str()) != 0) {
        text_ = QString::fromUtf8(utf8);
        utf8_ = utf8;
    }
    return text_;
}

AssetRowDecoder::AssetRowDecoder(const AssetRowLayout &layout, const DeviceProfile &device,
                                 QString albumName)
    : layout_(layout), ios_(device.ios), albumName_(std::move(albumName)),
      unknownDate_(translated(display_text::unknownDate))
{
}

std::unique_ptr<CPhotoData> AssetRowDecoder::decode(const Row &row)
{
    auto photo = std::make_unique<CPhotoData>();
    readFile(*photo, row);
    readTimes(*photo, row);
    readIdentifiers(*photo, row);
    photo->isEdited = isEdited(row);
    if (ios_ >= IosGeneration::Ios9)
        photo->isLivePhoto = row.int32(layout_.livePhoto) != 0;
    photo->albumName = albumName_;
    photo->dateText = dateText(*photo);
    return photo;
}

void AssetRowDecoder::readFile(CPhotoData &photo, const Row &row)
{
    photo.thumbnailIndex = row.int32(shared::thumbnailIndex);
    photo.fileName = row.text(shared::fileName);
    photo.directory = directory_.of(row.cString(shared::directory));
    photo.sourceFileName = row.haveSameText(shared::fileName, shared::originalFileName)
                               ? photo.fileName
                               : row.text(shared::originalFileName);
    photo.width = row.int32(shared::width);
    photo.height = row.int32(shared::height);
    photo.fileSize = repairedSize(row.int64(shared::originalFileSize));
    photo.duration = toFloat(row.real(layout_.duration));
}

void AssetRowDecoder::readTimes(CPhotoData &photo, const Row &row) const
{
    photo.createdTime = seconds(row, layout_.created);
    photo.modifiedTime = seconds(row, layout_.modified);
    photo.addedTime = ios_ >= IosGeneration::Ios8 ? seconds(row, layout_.added) : photo.createdTime;
}

double AssetRowDecoder::seconds(const Row &row, int column) const
{
    return layout_.fractionalDates ? row.real(column) : static_cast<double>(row.int64(column));
}

void AssetRowDecoder::readIdentifiers(CPhotoData &photo, const Row &row) const
{
    photo.uuid = uuidOf(row, layout_.uuid, ios_);
    photo.albumUuid = uuidOf(row, layout_.albumUuid, ios_);
    if (ios_ < IosGeneration::Ios8 && photo.albumUuid.empty())
        photo.albumUuid = layout_.missingAlbumUuid;
}

bool AssetRowDecoder::isEdited(const Row &row) const
{
    if (ios_ >= IosGeneration::Ios18)
        return row.int32(layout_.adjustmentsState) == AdjustmentsState::Edited;
    if (ios_ >= IosGeneration::Ios8)
        return row.int32(layout_.hasAdjustments) == HasAdjustments::Edited;
    return ios_ >= IosGeneration::Ios7 && row.hasText(layout_.editorBundle);
}

QString AssetRowDecoder::dateText(const CPhotoData &photo)
{
    const double time = photo.createdTime < 0 ? photo.addedTime : photo.createdTime;
    const std::int64_t unixTime = wholeSeconds(time + static_cast<double>(coreDataEpoch));
    if (unixTime < layout_.firstKnownDate)
        return unknownDate_;
    return day_.of(unixTime);
}

} // namespace iosphoto
