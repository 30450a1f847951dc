#include "statements/build_statements.h"

#include "text/translate.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <map>

namespace iosphoto::tool {

const EntityNumberName entityNumberNames[4] = {
    {&EntityNumbers::album, "album", "Album", "<ALBUM>", &albumEntityStatement, "Z_ENT"},
    {&EntityNumbers::photoStreamAlbum, "photoStreamAlbum", "PhotoStreamAlbum",
     "<PHOTO_STREAM_ALBUM>", &photoStreamAlbumEntityStatement, "Z_ENT"},
    {&EntityNumbers::assetSuper, "assetSuper", translatable("the parent of Asset"), "<ASSET_SUPER>",
     &assetEntityStatement, "Z_SUPER"},
    {&EntityNumbers::asset, "asset", "Asset", "<ASSET>", &assetEntityStatement, "Z_ENT"},
};

namespace {

struct Lookup
{
    const char *pass;
    const Statement *statement;
};

constexpr Lookup lookups[] = {
    {"asset-entity", &assetEntityStatement},
    {"album-entity", &albumEntityStatement},
    {"photo-stream-album-entity", &photoStreamAlbumEntityStatement},
};

struct Pass
{
    const char *name;
    const StatementTable *variants;
};

constexpr Pass passes[] = {
    {"camera-roll", &cameraRollStatements},
    {"photo-library", &photoLibraryStatements},
    {"user-albums", &userAlbumStatements},
    {"album-contents", &albumContentsStatements},
};

std::string systems(const StatementTable &table, const StatementVariant &variant)
{
    const int first = firstIos(variant.from);
    const StatementVariant *next = &variant; // the nearest above that begins later
    while (next != table.begin() && next->from == variant.from)
        --next;
    if (next->from == variant.from)
        return translate("iOS {0} and later", first);
    const int last = firstIos(next->from) - 1;
    if (first == 0)
        return translate("iOS {0} and earlier", last);
    return first == last ? fmt::format("iOS {}", last) : translate("iOS {0} to {1}", first, last);
}

std::string models(const StatementTable &table, const StatementVariant &variant)
{
    if (variant.onlyOn == &DeviceProfile::proRawAndProRes)
        return translate(", ") + translate("models with ProRAW and ProRes");
    if (variant.onlyOn == &DeviceProfile::ios7SubTypes)
        return translate(", ") + translate("iPhone4,1 and later models");
    const bool hasSpecialModels =
        &variant != table.begin() && std::prev(&variant)->from == variant.from;
    return hasSpecialModels ? translate(", ") + translate("other models") : "";
}

const EntityNumberName &nameOf(std::int32_t EntityNumbers::*number)
{
    return *std::find_if(std::begin(entityNumberNames), std::end(entityNumberNames),
                         [&](const EntityNumberName &name) { return name.number == number; });
}

std::vector<const EntityNumberName *> numbersOf(const StatementVariant &variant)
{
    std::vector<const EntityNumberName *> used;
    for (const EntityNumberName &name : entityNumberNames) {
        const auto &numbers = variant.placeholders.numbers;
        if (std::find(std::begin(numbers), std::end(numbers), name.number) != std::end(numbers))
            used.push_back(&name);
    }
    return used;
}

std::string withoutLastLineEnd(std::string text)
{
    return text.erase(text.find_last_not_of('\n') + 1);
}

BuildStatement statementOf(const Pass &pass, const DeviceProfile &device,
                           const NumberSource &numbers)
{
    const StatementVariant &variant = choose(*pass.variants, device);
    const QString sql = filledIn(variant, [&](std::int32_t EntityNumbers::*number) {
        const EntityNumberName &name = nameOf(number);
        const std::optional<std::int32_t> known = numbers[name];
        return known ? QString::number(*known) : QString(name.placeholder);
    });
    return {pass.name, variant.statement.name,
            systems(*pass.variants, variant) + models(*pass.variants, variant),
            withoutLastLineEnd(sql.toStdString()), numbersOf(variant)};
}

} // namespace

std::optional<std::int32_t> NumberSource::operator[](const EntityNumberName &name) const
{
    const std::int32_t number = numbers.*name.number;
    return areRead || number != 0 ? std::make_optional(number) : std::nullopt;
}

std::vector<std::string> viewsWith(const std::vector<MissingColumn> &missing)
{
    std::map<std::string, std::string> columns; // of each table
    for (const MissingColumn &each : missing)
        columns[each.table] += fmt::format(", {} as {}", each.column->standIn, each.column->name);
    std::vector<std::string> views;
    for (const auto &[table, more] : columns)
        views.push_back(
            fmt::format("create temp view {0} as select *{1} from main.{0}", table, more));
    return views;
}

std::vector<BuildStatement> statementsOfBuild(const Device &device, const NumberSource &numbers)
{
    const DeviceProfile profile(device.iosVersion, QString::fromStdString(device.productType));
    std::vector<BuildStatement> statements;
    for (const Lookup &lookup : lookups)
        statements.push_back({lookup.pass,
                              lookup.statement->name,
                              translate("every iOS"),
                              withoutLastLineEnd(lookup.statement->text),
                              {}});
    for (const Pass &pass : passes)
        statements.push_back(statementOf(pass, profile, numbers));
    return statements;
}

} // namespace iosphoto::tool
