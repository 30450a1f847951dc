#include "model/statements/statement_tables.h"

#include "statements.h"

#include <iterator>

namespace iosphoto {

namespace {

using Ios = IosGeneration;

constexpr auto album = &EntityNumbers::album;
constexpr auto stream = &EntityNumbers::photoStreamAlbum;
constexpr auto asset = &EntityNumbers::asset;
constexpr auto parent = &EntityNumbers::assetSuper;

constexpr DeviceTest any = nullptr;
constexpr DeviceTest pro = &DeviceProfile::proRawAndProRes;
constexpr DeviceTest subTypes = &DeviceProfile::ios7SubTypes;

// clang-format off
constexpr Placeholders rollByAsset  = {{asset,  album, asset,  album, album, album, asset}};
constexpr Placeholders rollByParent = {{parent, album, parent, album, album, album, parent}};

constexpr StatementVariant cameraRoll[] = {
    // from      only on   statement                    placeholders
    {Ios::Ios18,  pro,      sql::camera_roll_18_proraw,  rollByAsset},
    {Ios::Ios18,  any,      sql::camera_roll_18,         rollByAsset},
    {Ios::Ios15,  pro,      sql::camera_roll_15_proraw,  rollByAsset},
    {Ios::Ios15,  any,      sql::camera_roll_15,         rollByAsset},
    {Ios::Ios14,  any,      sql::camera_roll_14,         rollByAsset},
    {Ios::Ios11,  any,      sql::camera_roll_11,         rollByParent},
    {Ios::Ios9,   any,      sql::camera_roll_9,          rollByParent},
    {Ios::Ios8,   any,      sql::camera_roll_8,          rollByParent},
    {Ios::Ios7,   subTypes, sql::camera_roll_7_subtypes, rollByParent},
    {Ios::Ios7,   any,      sql::camera_roll_7,          rollByParent},
    {Ios::Oldest, any,      sql::camera_roll_6,          rollByParent},
};

constexpr Placeholders libraryByAsset  = {{album, asset, album, album, album, asset}};
constexpr Placeholders libraryByParent = {{parent, album, parent, album, album, album, parent}};

constexpr StatementVariant photoLibrary[] = {
    {Ios::Ios14,  any,      sql::photo_library_14,       libraryByAsset},
    {Ios::Ios8,   any,      sql::photo_library_8,        libraryByParent},
    {Ios::Oldest, any,      sql::photo_library_6,        libraryByParent},
};

constexpr Placeholders albumAndStream = {{album, stream}};

constexpr StatementVariant userAlbums[] = {
    {Ios::Ios8,   any,      sql::user_albums_8,          albumAndStream},
    {Ios::Oldest, any,      sql::user_albums_6,          albumAndStream},
};

constexpr Placeholders contentsByAsset  = {{album, asset,  album, album, album, asset}};
constexpr Placeholders contentsByParent = {{album, parent, album, album, album, parent, parent}};

constexpr StatementVariant albumContents[] = {
    {Ios::Ios18,  any,      sql::album_contents_18,         contentsByAsset},
    {Ios::Ios14,  any,      sql::album_contents_14,         contentsByAsset},
    {Ios::Ios11,  any,      sql::album_contents_11,         contentsByParent},
    {Ios::Ios9,   any,      sql::album_contents_9,          contentsByParent},
    {Ios::Ios8,   any,      sql::album_contents_8,          contentsByParent},
    {Ios::Ios7,   subTypes, sql::album_contents_7_subtypes, contentsByParent},
    {Ios::Ios7,   any,      sql::album_contents_7,          contentsByParent},
    {Ios::Oldest, any,      sql::album_contents_6,          contentsByParent},
};

constexpr StatementVariant assetsInAlbums[] = {
    {Ios::Ios14,  any,      sql::assets_of_albums,          {{asset, album}}},
    {Ios::Oldest, any,      sql::assets_of_albums,          {{parent, album}}},
};
// clang-format on

bool matches(const StatementVariant &variant, const DeviceProfile &device)
{
    return device.ios >= variant.from && (variant.onlyOn == any || device.*variant.onlyOn);
}

} // namespace

const StatementTable cameraRollStatements = {cameraRoll, std::size(cameraRoll)};
const StatementTable photoLibraryStatements = {photoLibrary, std::size(photoLibrary)};
const StatementTable userAlbumStatements = {userAlbums, std::size(userAlbums)};
const StatementTable albumContentsStatements = {albumContents, std::size(albumContents)};
const StatementTable assetsOfAlbumsView = {assetsInAlbums, std::size(assetsInAlbums)};

const Statement assetEntityStatement = sql::entity_asset;
const Statement albumEntityStatement = sql::entity_album;
const Statement photoStreamAlbumEntityStatement = sql::entity_photo_stream_album;

const StatementVariant &choose(const StatementTable &table, const DeviceProfile &device)
{
    const StatementVariant *variant = table.begin();
    const StatementVariant *const last = table.end() - 1; // matches every device
    while (variant != last && !matches(*variant, device))
        ++variant;
    return *variant;
}

QString filledIn(const StatementVariant &variant, const EntityNumbers &numbers)
{
    return filledIn(variant, [&](auto number) {
        return QString::number(static_cast<qlonglong>(numbers.*number));
    });
}

QString filledIn(const StatementVariant &variant,
                 const std::function<QString(std::int32_t EntityNumbers::*)> &textOf)
{
    QString text = QString::fromUtf8(variant.statement.text);
    for (const auto number : variant.placeholders.numbers)
        if (number != nullptr)
            text = text.arg(textOf(number));
    return text;
}

} // namespace iosphoto
