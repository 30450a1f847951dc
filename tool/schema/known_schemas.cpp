#include "schema/known_schemas.h"

#include "formats/versions.h"
#include "text/translate.h"

#include <algorithm>
#include <iterator>

namespace iosphoto::tool {

namespace {

constexpr char withoutIos7SubTypes[] = "iPhone3,1";

// clang-format off
const std::vector<KnownSchema> newestFirst = {
    // first iOS, last, column that is gone, model
    {18, 18},
    {15, 17, "ZCREATORBUNDLEID"},
    {14, 14},
    {11, 13},
    {9,  10},
    {8,  8},
    {7,  7},
    {7,  7,  nullptr,            withoutIos7SubTypes},
    {6,  6},
};
// clang-format on

std::int32_t lastNumber(const CopyDatabase &database, const Statement &lookup, int column)
{
    std::int32_t found = 0;
    database.forEachRow(lookup.text, [&](const QueryRow &row) { found = row.int32(column); });
    return found;
}

} // namespace

std::string KnownSchema::name() const
{
    return firstIos == lastIos ? fmt::format("iOS {}", firstIos)
                               : fmt::format("iOS {} to {}", firstIos, lastIos);
}

std::string KnownSchema::shownName() const
{
    return firstIos == lastIos ? name() : translate("iOS {0} to {1}", firstIos, lastIos);
}

const KnownSchema *findSchema(const CopyDatabase &database, const EntityNumbers &numbers)
{
    for (const KnownSchema &schema : newestFirst) {
        const bool isOlder = schema.goneColumn != nullptr &&
                             database.hasColumn("ZADDITIONALASSETATTRIBUTES", schema.goneColumn);
        if (!isOlder && statementsFit(database, numbers, {schema.iosVersion(), schema.productType}))
            return &schema;
    }
    return nullptr;
}

const std::vector<KnownSchema> &knownSchemas()
{
    return newestFirst;
}

const KnownSchema &newestSchema()
{
    return newestFirst.front();
}

const KnownSchema &oldestSchema()
{
    return newestFirst.back();
}

std::optional<SchemaFinding> warningOfNewer(const std::string &iosVersion)
{
    const int newest = newestSchema().lastIos;
    if (firstNumber(iosVersion) <= newest)
        return std::nullopt;
    return SchemaFinding{SchemaProblem::ReadLikeNewest, {iosVersion, std::to_string(newest)}};
}

EntityNumbers readEntityNumbers(const CopyDatabase &database)
{
    return {lastNumber(database, albumEntityStatement, 0),
            lastNumber(database, photoStreamAlbumEntityStatement, 0),
            lastNumber(database, assetEntityStatement, 0),
            lastNumber(database, assetEntityStatement, 1)};
}

std::string missingForEntityNumbers(const CopyDatabase &database)
{
    for (const Statement *const lookup :
         {&assetEntityStatement, &albumEntityStatement, &photoStreamAlbumEntityStatement})
        if (const std::string words = database.misfitOf(lookup->text); !words.empty())
            return words;
    return "";
}

std::array<const StatementVariant *, 4> statementsFor(const Device &device)
{
    const DeviceProfile profile(device.iosVersion, QString::fromStdString(device.productType));
    return {&choose(cameraRollStatements, profile), &choose(photoLibraryStatements, profile),
            &choose(userAlbumStatements, profile), &choose(albumContentsStatements, profile)};
}

bool statementsFit(const CopyDatabase &database, const EntityNumbers &numbers, const Device &device)
{
    const auto statements = statementsFor(device);
    return std::all_of(statements.begin(), statements.end(), [&](const StatementVariant *variant) {
        return database.prepares(filledIn(*variant, numbers).toStdString());
    });
}

} // namespace iosphoto::tool
