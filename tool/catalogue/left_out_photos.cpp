#include "catalogue/left_out_photos.h"

#include "catalogue/listed_rows.h"
#include "catalogue/row_uuid.h"
#include "input/tree/file_tree.h"
#include "model/bursts.h"
#include "model/database_codes.h"
#include "model/device/ios_generation.h"
#include "model/original_size.h"
#include "model/trash.h"
#include "schema/asset_tables.h"
#include "time/time_text.h"

#include <fmt/format.h>

#include <algorithm>

namespace iosphoto::tool {

namespace {

/// The columns of the query for rows that the catalogue does not show.
enum Column {
    Key,
    IsSelected,
    SavedAs,
    TrashedState,
    TrashedDate,
    FileName,
    PickType,
    Uuid,
    Directory,
    OriginalName,
    Width,
    Height,
    Size,
    Duration,
    Created,
    Modified,
    Added,
    Kind,
    Favorite,
    Hidden,
    BurstUuid,
    ThumbnailIndex,
};
constexpr const char *columnNames[] = {
    "Z_PK",
    "",
    "ZSAVEDASSETTYPE",
    "ZTRASHEDSTATE",
    "ZTRASHEDDATE",
    "ZFILENAME",
    "ZAVALANCHEPICKTYPE",
    "ZUUID",
    "ZDIRECTORY",
    "ZORIGINALFILENAME",
    "ZWIDTH",
    "ZHEIGHT",
    "ZORIGINALFILESIZE",
    "ZDURATION",
    "ZDATECREATED",
    "ZMODIFICATIONDATE",
    "ZADDEDDATE",
    "ZKIND",
    "ZFAVORITE",
    "ZHIDDEN",
    "ZAVALANCHEUUID",
    "ZTHUMBNAILINDEX",
};

constexpr char attributesTable[] = "ZADDITIONALASSETATTRIBUTES";

/// Whether the statements of the passes look at a row at all.
std::string selection(const std::string &table, const EntityNumbers &numbers)
{
    if (table == "ZASSET")
        return fmt::format("asset.Z_ENT = {} and asset.Z_PK in (select ZASSET from {})",
                           numbers.asset, attributesTable);
    return fmt::format("asset.Z_PK in (select ZASSET from {0} where Z{1}_ASSET = {2})",
                       attributesTable, numbers.assetSuper, numbers.asset);
}

/// A column of whichever table has it; null where none does.
std::string columnOf(const CopyDatabase &database, const std::string &table, const char *column)
{
    if (database.hasColumn(table, column))
        return std::string("asset.") + column;
    return database.hasColumn(attributesTable, column) ? std::string("attributes.") + column
                                                       : "null";
}

std::string queryForKeys(const CopyDatabase &database, const EntityNumbers &numbers)
{
    const std::string table = assetTableOf(database);
    std::string columns;
    for (const char *const name : columnNames)
        columns += (columns.empty() ? "" : ", ") +
                   (*name != '\0' ? columnOf(database, table, name) : selection(table, numbers));
    return fmt::format("select {0} from json_each(?1) as wanted "
                       "join {1} as asset on asset.Z_PK = wanted.value "
                       "left join {2} as attributes on attributes.ZASSET = asset.Z_PK "
                       "group by wanted.key order by wanted.key",
                       columns, table, attributesTable);
}

bool isTaken(std::int32_t savedAs)
{
    return savedAs == SavedAssetType::SyncedFromComputer ||
           std::find(std::begin(cameraRollSavedTypes), std::end(cameraRollSavedTypes), savedAs) !=
               std::end(cameraRollSavedTypes);
}

/// Before, the number had another meaning.
bool hasSharedAlbums(const Device &device)
{
    return iosGeneration(device.iosVersion) >= IosGeneration::Ios8;
}

bool isTrashedTooLong(const QueryRow &row, UnixTime asOf)
{
    return row.int32(TrashedState) == iosphoto::TrashedState::InTrash &&
           iosphoto::isTrashedTooLong(row.int32(TrashedDate), asOf.seconds);
}

bool isFrame(const QueryRow &row)
{
    return row.int32(PickType) != BurstPickType::NoBurst && !standsForBurst(row.int32(PickType));
}

PhotoReason reasonFor(const QueryRow &row, const ReadingFacts &reading)
{
    if (row.int32(IsSelected) == 0 || row.isNull(SavedAs))
        return PhotoReason::NotSelected;
    if (row.int32(SavedAs) == SavedAssetType::SharedAlbum && hasSharedAlbums(reading.schema.device))
        return PhotoReason::OfSharedAlbum;
    if (!isTaken(row.int32(SavedAs)))
        return PhotoReason::ReferencedElsewhere;
    if (isTrashedTooLong(row, reading.asOf))
        return row.isNumber(TrashedDate) ? PhotoReason::TrashedTooLong
                                         : PhotoReason::TrashedWithoutDate;
    if (row.text(FileName).empty())
        return PhotoReason::WithoutFileName;
    if (isFrame(row))
        return PhotoReason::BurstFrame;
    return reading.isWhole ? PhotoReason::NotSelected : PhotoReason::NotRead;
}

QString dayOf(const QueryRow &row)
{
    const auto created = unixTimeOf(CoreDataTime{static_cast<double>(row.int64(Created))});
    return created ? QString::fromStdString(localDayText(*created)) : QString();
}

CPhotoData recordOf(const QueryRow &row)
{
    CPhotoData photo;
    const auto text = [&](Column column) { return QString::fromStdString(row.text(column)); };
    photo.assetId = row.int32(Key);
    photo.uuid = uuidOf(row, Uuid);
    photo.fileName = text(FileName);
    photo.directory = text(Directory);
    photo.sourceFileName = text(OriginalName);
    photo.width = row.int32(Width);
    photo.height = row.int32(Height);
    photo.fileSize = repairedSize(row.int64(Size));
    photo.duration = static_cast<float>(row.real(Duration));
    photo.createdTime = static_cast<double>(row.int64(Created));
    photo.modifiedTime = static_cast<double>(row.int64(Modified));
    photo.addedTime = static_cast<double>(row.int64(Added));
    photo.dateText = dayOf(row);
    photo.thumbnailIndex = row.int32(ThumbnailIndex);
    photo.isVideo = row.isNull(Kind) ? photo.duration > 0 : row.int32(Kind) != 0;
    photo.isFavorite = row.int32(Favorite) == FavoriteFlag::IsFavorite;
    photo.isHidden = row.int32(Hidden) == HiddenFlag::IsHidden;
    photo.isDeleted = row.int32(TrashedState) == iosphoto::TrashedState::InTrash;
    photo.isBurst = row.int32(PickType) != BurstPickType::NoBurst;
    photo.isBurstPick = standsForBurst(row.int32(PickType)) ? 1 : 0;
    photo.burstUuid = text(BurstUuid);
    return photo;
}

/// The keys of the asset table whose rows no record knows, in lists in JSON of some of them each.
class UnknownKeys
{
public:
    void add(std::int64_t key)
    {
        constexpr int mostOfAList = 100'000;
        if (count_++ % mostOfAList == 0)
            lists_.emplace_back();
        lists_.back() += (lists_.back().empty() ? "[" : ",") + std::to_string(key);
    }

    template <typename Take>
    void forEachList(Take take) const
    {
        for (const std::string &list : lists_)
            take(list + "]");
    }

private:
    std::vector<std::string> lists_;
    std::int64_t count_ = 0;
};

} // namespace

std::optional<PhotoReason> LeftOutPhotos::reasonFor(const Asset &asset) const
{
    const Appearance &appearance = *asset.begin();
    return appearance.album == nullptr ? std::optional(reasons_.at(appearance.position))
                                       : std::nullopt;
}

void LeftOutPhotos::add(CPhotoData photo, PhotoReason reason)
{
    records_.push_back(std::make_unique<CPhotoData>(std::move(photo)));
    reasons_.push_back(reason);
}

bool isKnownOfLeftOut(bool CPhotoData::*flag)
{
    return flag == &CPhotoData::isFavorite || flag == &CPhotoData::isHidden ||
           flag == &CPhotoData::isDeleted || flag == &CPhotoData::isBurst;
}

PhotoAccount accountOfPhotos(const CopyDatabase &database, const ReadingFacts &reading,
                             LeftOutPhotos *photos)
{
    PhotoAccount account;
    UnknownKeys unknown;
    const ListedKeys keys(reading.catalogue);
    // An index could be damaged where the table is not.
    database.forEachRow("select Z_PK from " + assetTableOf(database) + " not indexed",
                        [&](const QueryRow &row) {
                            ++account.rows;
                            if (keys.has(row.int32(0)))
                                ++account.listed;
                            else
                                unknown.add(row.int64(0));
                        });
    if (account.rows == account.listed)
        return account;

    const ListedUuids uuids(reading.catalogue);
    const std::string query = queryForKeys(database, reading.schema.numbers);
    const auto take = [&](const QueryRow &row) {
        if (uuids.has(uuidOf(row, Uuid), joinedPath(row.text(Directory), row.text(FileName)))) {
            ++account.listed;
            return;
        }
        const PhotoReason reason = reasonFor(row, reading);
        account.leaveOut(reason);
        if (photos != nullptr)
            photos->add(recordOf(row), reason);
    };
    unknown.forEachList([&](const std::string &list) { database.forEachRow(query, take, {list}); });
    return account;
}

} // namespace iosphoto::tool
