#include "catalogue/asset_rows.h"

#include "model/database_codes.h"
#include "model/passes/camera_roll_columns.h"
#include "model/passes/camera_roll_row_decoder.h"
#include "model/passes/smart_album_rules.h"
#include "schema/asset_tables.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <limits>
#include <string_view>

namespace iosphoto::tool {

namespace {

constexpr char attributesTable[] = "ZADDITIONALASSETATTRIBUTES";
constexpr std::string_view typeColumn = "ZUNIFORMTYPEIDENTIFIER";

/// The column of the query behind those of the Camera Roll.
constexpr int isSelectedColumn = std::size(cameraRollColumns);

/// ZKIND
constexpr std::int32_t video = 1;

/// Makes records of rows by the library's own rules, and adds what these do not ask.
class RecordMaker
{
public:
    explicit RecordMaker(const DeviceProfile &device)
        : ios_(device.ios), decoder_(device), rules_(noAlbums_, device, beforeAllTrash)
    {
    }

    CPhotoData recordOf(const QueryRow &row)
    {
        const Row values = row.row();
        const std::unique_ptr<CPhotoData> photo = decoder_.decode(values);
        rules_.sort(*photo, values);
        photo->isHidden = values.int32(camera_roll::hidden) == HiddenFlag::IsHidden;
        photo->isScreenshot = photo->isScreenshot || isScreenshot(*photo, values);
        if (row.int64(camera_roll::assetId) != photo->assetId)
            photo->assetId = CPhotoData().assetId;
        return *photo;
    }

private:
    /// The rules look for none among what is hidden or in the trash, nor in what was synced.
    bool isScreenshot(const CPhotoData &photo, const Row &values) const
    {
        constexpr bool CPhotoData::*others[] = {
            &CPhotoData::isVideo,          &CPhotoData::isTimelapse, &CPhotoData::isSlomo,
            &CPhotoData::isPanorama,       &CPhotoData::isBurst,     &CPhotoData::isLivePhoto,
            &CPhotoData::isScreenRecording};
        if (std::any_of(std::begin(others), std::end(others),
                        [&](bool CPhotoData::*flag) { return photo.*flag; }))
            return false;
        return ios_ < IosGeneration::Ios9
                   ? rules_.isScreenshot(values)
                   : values.int32(camera_roll::kindSubtype) == KindSubtype::Screenshot;
    }

    static constexpr std::uint32_t beforeAllTrash = 0;

    IosGeneration ios_;
    std::vector<CAlbumGroup> noAlbums_; // there is nobody to copy a record to
    CameraRollRowDecoder decoder_;
    SmartAlbumRules rules_;
};

/// What a row says does not go by the model.
DeviceProfile ofAnyModel(DeviceProfile device)
{
    device.panoramas = device.panoramas || device.ios >= IosGeneration::Ios8;
    device.proRawAndProRes = device.ios >= IosGeneration::Ios15;
    return device;
}

std::string quotedVideoTypes()
{
    std::string types;
    for (const char *const type : videoTypes)
        types += fmt::format("{}'{}'", types.empty() ? "" : ", ", type);
    return types;
}

} // namespace

void RowKeys::add(std::int64_t key)
{
    constexpr int mostOfAList = 100'000;
    if (count_++ % mostOfAList == 0)
        lists_.emplace_back();
    lists_.back() += (lists_.back().empty() ? "[" : ",") + std::to_string(key);
}

void RowKeys::forEachList(const std::function<void(const std::string &)> &take) const
{
    for (const std::string &list : lists_)
        take(list + "]");
}

AssetRows::AssetRows(const CopyDatabase &database, const ProbedSchema &schema)
    : database_(database), numbers_(schema.numbers),
      model_(schema.device.iosVersion, QString::fromStdString(schema.device.productType)),
      table_(assetTableOf(database))
{
}

bool AssetRows::areKeysKnown() const
{
    bool areKnown = true;
    database_.forEachRow(
        fmt::format("select (select min(Z_PK) from {0}), (select max(Z_PK) from {0})", table_),
        [&](const QueryRow &row) {
            areKnown =
                row.int64(0) >= 0 && row.int64(1) <= std::numeric_limits<std::int32_t>::max();
        });
    return areKnown;
}

void AssetRows::forEachKey(const std::function<void(std::int64_t, bool)> &take) const
{
    // An index could be damaged where the table is not.
    database_.forEachRow(
        fmt::format("select Z_PK, {} from {} as asset not indexed", saysMore(), table_),
        [&](const QueryRow &row) { take(row.int64(0), row.int32(1) != 0); });
}

void AssetRows::forEach(const RowKeys &keys,
                        const std::function<void(const AssetRow &)> &take) const
{
    RecordMaker maker(ofAnyModel(model_));
    const std::string text = query();
    keys.forEachList([&](const std::string &list) {
        database_.forEachRow(text,
                             [&](const QueryRow &row) {
                                 take({row.row(), maker.recordOf(row),
                                       row.isNumber(camera_roll::trashedDate),
                                       row.int32(isSelectedColumn) != 0});
                             },
                             {list});
    });
}

/// A column of whichever table has it; null where none does.
std::string AssetRows::columnNamed(const char *name) const
{
    if (database_.hasColumn(table_, name))
        return std::string("asset.") + name;
    return database_.hasColumn(attributesTable, name) ? std::string("attributes.") + name : "null";
}

std::string AssetRows::isSelected() const
{
    if (table_ == "ZASSET")
        return fmt::format("asset.Z_ENT = {} and asset.Z_PK in (select ZASSET from {})",
                           numbers_.asset, attributesTable);
    return fmt::format("asset.Z_PK in (select ZASSET from {0} where Z{1}_ASSET = {2})",
                       attributesTable, numbers_.assetSuper, numbers_.asset);
}

/// The type that the rules ask for: the kind says of videos of other types that they are videos.
std::string AssetRows::typeByKind() const
{
    return fmt::format("case {} when {} then '{}' else {} end", columnNamed("ZKIND"), video,
                       videoTypes[0], columnNamed(typeColumn.data()));
}

/// In SQL. The library takes the names of two types for videos, below iOS 9 nothing for hidden, and
/// some kinds for nothing by the model or by how they were saved.
std::string AssetRows::saysMore() const
{
    std::string condition = "0";
    const auto add = [&](const char *column, const std::string &test) {
        if (database_.hasColumn(table_, column))
            condition += fmt::format(" or (asset.{} {})", column, test);
    };
    add("ZKIND", fmt::format("= {} and coalesce(asset.ZUNIFORMTYPEIDENTIFIER, '') not in ({})",
                             video, quotedVideoTypes()));
    if (model_.ios >= IosGeneration::Ios9)
        add("ZKINDSUBTYPE",
            fmt::format("= {} and asset.ZSAVEDASSETTYPE not in ({}, {})", KindSubtype::Screenshot,
                        SavedAssetType::Camera, SavedAssetType::CloudLibrary));
    add("ZHIDDEN", fmt::format("= {}", HiddenFlag::IsHidden));
    const DeviceProfile anyModel = ofAnyModel(model_);
    if (anyModel.panoramas && !model_.panoramas)
        add("ZKINDSUBTYPE", fmt::format("= {}", KindSubtype::Panorama));
    if (anyModel.proRawAndProRes && !model_.proRawAndProRes)
        add("ZPACKEDBADGEATTRIBUTES", fmt::format("in ({}, {})", Badge::Raw, Badge::ProRes));
    return condition;
}

std::string AssetRows::query() const
{
    std::string columns;
    for (const char *const name : cameraRollColumns)
        columns += (name == typeColumn ? typeByKind() : columnNamed(name)) + ", ";
    return fmt::format("select {0} {1} from json_each(?1) as wanted "
                       "join {2} as asset on asset.Z_PK = wanted.value "
                       "left join {3} as attributes on attributes.ZASSET = asset.Z_PK "
                       "group by wanted.key order by wanted.key",
                       columns, isSelected(), table_, attributesTable);
}

} // namespace iosphoto::tool
