#include "schema/schema_probe.h"

#include "formats/versions.h"
#include "input/photo_databases.h"
#include "schema/unknown_schema.h"
#include "text/lists.h"
#include "text/translate.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace iosphoto::tool {

namespace {

void requirePhotoDatabase(const CopyDatabase &database)
{
    if (hasPhotoTablesOfOldIos(database))
        throw SchemaError(SchemaProblem::TooOld,
                          {database.shownName(), std::to_string(oldestSchema().firstIos),
                           std::to_string(newestSchema().lastIos)});
    if (!hasPhotoTables(database))
        throw SchemaError(SchemaProblem::NoPhotoLibrary, {database.shownName()});
}

/// The library would read nothing from others, and tell less of it.
void requireRealTables(const CopyDatabase &database)
{
    const std::vector<std::string> tables = {
        "ZASSET", "ZGENERICASSET", "ZADDITIONALASSETATTRIBUTES", "ZGENERICALBUM", "Z_PRIMARYKEY"};
    const std::string albumContents = "Z^_%ASSETS";
    if (!database.areRealTables(tables, albumContents))
        throw SchemaError(SchemaProblem::OtherTables, {database.shownName()});
}

void requireDatabase(const CopyDatabase &database)
{
    const bool isDatabase = database.isDatabase();
    std::error_code ignored;
    if (std::filesystem::file_size(database.file(), ignored) == 0 && !ignored &&
        !std::filesystem::exists(database.file() + "-wal", ignored))
        throw SchemaError(SchemaProblem::EmptyFile, {database.shownName()});
    if (!isDatabase)
        throw SchemaError(SchemaProblem::NoDatabase, {database.shownName()});
}

/// Whether the model number and the tables tell of the same iOS.
bool agree(const std::optional<int> &iosMajor, const KnownSchema *schema)
{
    if (!iosMajor)
        return false;
    return schema == nullptr || (*iosMajor >= schema->firstIos && *iosMajor <= schema->lastIos) ||
           (schema == &newestSchema() && *iosMajor > schema->lastIos);
}

/// The schema by tables and columns, unless the model number tells of a later iOS, of which columns
/// are missing whose fields the older one does not have: it would pass over them in silence.
const KnownSchema *schemaOf(const CopyDatabase &database, const ProbedSchema &probed)
{
    const KnownSchema *const schema = findSchema(database, probed.numbers);
    const std::optional<int> model = probed.metadata.iosMajor();
    if (schema == nullptr || schema == &newestSchema() || !model || *model <= schema->lastIos)
        return schema;
    const Device later = {std::to_string(*model), productThatHidesNoAlbum};
    const SchemaGaps gaps = findGaps(database, probed.numbers, later);
    const std::vector<std::string> lost = fieldsLostWith(gaps.columns, later.iosVersion);
    return gaps.essential.empty() && !hasColumnsFor(database, lost) ? nullptr : schema;
}

std::string modelWords(const StoreMetadata &metadata)
{
    const std::string model = std::to_string(*metadata.modelVersion);
    if (metadata.isOfMac())
        return translate("schema {0} of a Mac, build {1}", model, metadata.build);
    return metadata.build.empty() ? translate("schema {0}", model)
                                  : translate("schema {0}, build {1}", model, metadata.build);
}

void decideIos(ProbedSchema &probed, const Device &wanted, const RecordedDevice &says,
               const KnownSchema *schema)
{
    probed.iosBuild = says.buildVersion.empty() ? probed.metadata.build : says.buildVersion;
    if (!wanted.iosVersion.empty()) {
        probed.device.iosVersion = wanted.iosVersion;
    } else if (!says.iosVersion.empty()) {
        probed.device.iosVersion = says.iosVersion;
        probed.iosOrigin = DeviceOrigin::Source;
        probed.iosWhy = says.recordedIn;
    } else if (const auto major = probed.metadata.iosMajor(); agree(major, schema)) {
        probed.device.iosVersion = std::to_string(*major);
        probed.iosOrigin = DeviceOrigin::Schema;
        probed.iosWhy = modelWords(probed.metadata);
    } else if (schema != nullptr) {
        probed.device.iosVersion = schema->iosVersion();
        probed.iosOrigin = DeviceOrigin::Schema;
        probed.iosWhy = translate("the newest with these tables and columns");
    }
}

void decideProduct(ProbedSchema &probed, const Device &wanted, const RecordedDevice &says,
                   const KnownSchema *schema)
{
    if (!wanted.productType.empty()) {
        probed.device.productType = wanted.productType;
    } else if (!says.productType.empty()) {
        probed.device.productType = says.productType;
        probed.productOrigin = DeviceOrigin::Source;
        probed.deviceWhy = says.recordedIn;
    } else {
        probed.device.productType =
            schema != nullptr ? schema->productType : productThatHidesNoAlbum;
        probed.productOrigin = DeviceOrigin::Assumption;
        probed.deviceWhy = translate("hides no album");
    }
}

struct IosRange
{
    int first;
    int last;
    std::string name;
};

/// What the database may be of: one iOS if the model tells, else those that share the schema.
std::optional<IosRange> iosRange(const StoreMetadata &metadata, const KnownSchema *schema)
{
    if (const std::optional<int> model = metadata.iosMajor(); agree(model, schema))
        return IosRange{*model, *model, fmt::format("iOS {}", *model)};
    if (schema != nullptr)
        return IosRange{schema->firstIos, schema->lastIos, schema->shownName()};
    return std::nullopt;
}

std::optional<SchemaFinding> disagreement(const ProbedSchema &probed, const KnownSchema *schema)
{
    const int major = firstNumber(probed.device.iosVersion);
    const KnownSchema &newest = newestSchema();
    if (major > newest.lastIos && (schema == nullptr || schema == &newest))
        return warningOfNewer(probed.device.iosVersion);
    const std::optional<IosRange> range = iosRange(probed.metadata, schema);
    if (!range || (major >= range->first && major <= range->last))
        return std::nullopt;
    return SchemaFinding{SchemaProblem::OtherIos,
                         {range->name, probed.device.iosVersion, std::to_string(range->last)}};
}

std::string fittingIos(const ProbedSchema &probed, const KnownSchema &schema)
{
    const std::optional<int> model = probed.metadata.iosMajor();
    return agree(model, &schema) ? std::to_string(*model) : schema.iosVersion();
}

/// @param essential  what is missing, in SQLite's words
[[noreturn]] void throwNoFit(const CopyDatabase &database, const ProbedSchema &probed,
                             const KnownSchema *schema, const std::string &essential)
{
    if (schema != nullptr)
        throw SchemaError(SchemaProblem::OtherDevice,
                          {database.shownName(), probed.device.iosVersion,
                           probed.device.productType, fittingIos(probed, *schema),
                           schema->productType});
    const UnknownSchema unknown = describeUnknown(database, probed.metadata, probed.numbers);
    const std::optional<int> major = probed.metadata.iosMajor();
    if (major && *major > newestSchema().lastIos)
        throw UnknownSchemaError(SchemaProblem::NewerSchema,
                                 {database.shownName(), std::to_string(*major), essential},
                                 unknown);
    throw UnknownSchemaError(SchemaProblem::UnknownSchema,
                             {database.shownName(), std::to_string(oldestSchema().firstIos),
                              std::to_string(newestSchema().lastIos), essential},
                             unknown);
}

/// The system with whose statements the least is lost, the newest of these.
std::string nearestIos(const CopyDatabase &database, const ProbedSchema &probed)
{
    std::string nearest;
    std::pair<std::size_t, std::size_t> least;
    for (const KnownSchema &schema : knownSchemas()) {
        const std::string ios = schema.iosVersion();
        const SchemaGaps gaps = findGaps(database, probed.numbers, {ios, schema.productType});
        const auto loss = gaps.loss(ios);
        if (gaps.essential.empty() && (nearest.empty() || loss < least)) {
            nearest = ios;
            least = loss;
        }
    }
    return nearest;
}

/// "ZASSET.ZHIDDEN, ZASSET.ZFAVORITE"
std::string columnNames(const std::vector<MissingColumn> &columns)
{
    return joinedTexts(columns, ", ", [](const MissingColumn &column) { return column.name(); });
}

/// What is unknown without the columns: fields in one line, then what it means for whole rows.
std::vector<SchemaFinding> findingsOf(const std::vector<MissingColumn> &missing,
                                      const std::vector<std::string> &unknownFields,
                                      const std::string &database)
{
    std::vector<SchemaFinding> findings;
    if (!unknownFields.empty())
        findings.push_back({SchemaProblem::MissingColumns,
                            {database, columnNames(missing), joinedTexts(unknownFields, ", ")}});
    for (const MissingColumn &each : missing)
        if (each.column->ofRows)
            findings.push_back({*each.column->ofRows, {database, each.name()}});
    return findings;
}

/// Reads on without the columns of which no known schema lacks all.
void fillGaps(const CopyDatabase &database, ProbedSchema &probed, const KnownSchema *schema)
{
    if (probed.device.iosVersion.empty()) {
        const std::string nearest = nearestIos(database, probed);
        probed.device.iosVersion = nearest.empty() ? newestSchema().iosVersion() : nearest;
        probed.iosOrigin = DeviceOrigin::Schema;
        probed.iosWhy = translate("the nearest by its tables and columns");
    }
    const std::string essential = findGaps(database, probed.numbers, probed.device).essential;
    if (!essential.empty())
        throwNoFit(database, probed, schema, essential);
    const SchemaGaps gaps = addMissingColumns(database, probed.numbers, probed.device);
    probed.missingColumns = gaps.columns;
    probed.unknownFields = fieldsLostWith(gaps.columns, probed.device.iosVersion);
    probed.unknownReasons = reasonsLostWith(gaps.columns);
    probed.gaps = findingsOf(gaps.columns, probed.unknownFields, database.shownName());
}

std::string withReason(const std::string &what, const std::string &why)
{
    return why.empty() ? what : translate("{0} ({1})", what, why);
}

} // namespace

const char *machineName(DeviceOrigin origin)
{
    constexpr const char *names[] = {"user", "source", "schema", "assumption"};
    return names[static_cast<int>(origin)];
}

bool ProbedSchema::isUnknown(const std::string &field) const
{
    return std::find(unknownFields.begin(), unknownFields.end(), field) != unknownFields.end();
}

bool ProbedSchema::isUnknownReason(const std::string &reason) const
{
    return std::find(unknownReasons.begin(), unknownReasons.end(), reason) != unknownReasons.end();
}

std::string ProbedSchema::columnsOf(const std::string &field) const
{
    std::vector<MissingColumn> columns;
    for (const MissingColumn &each : missingColumns)
        if (const auto lost = fieldsLostWith({each}, device.iosVersion);
            std::find(lost.begin(), lost.end(), field) != lost.end())
            columns.push_back(each);
    return columnNames(columns);
}

std::string ProbedSchema::iosText() const
{
    return withReason("iOS " + device.iosVersion, iosWhy);
}

std::string ProbedSchema::productText() const
{
    return withReason(device.productType, deviceWhy);
}

ProbedSchema probe(const CopyDatabase &database, const Device &wanted, const RecordedDevice &says)
{
    requireDatabase(database);
    requireRealTables(database);
    requirePhotoDatabase(database);
    ProbedSchema probed;
    probed.metadata = readStoreMetadata(database);
    if (const std::string missing = missingForEntityNumbers(database); !missing.empty())
        throwNoFit(database, probed, nullptr, missing);
    probed.numbers = readEntityNumbers(database);
    const KnownSchema *const schema = schemaOf(database, probed);
    decideIos(probed, wanted, says, schema);
    decideProduct(probed, wanted, says, schema);
    const bool mayBeAMistake = schema != nullptr && probed.iosOrigin == DeviceOrigin::User;
    if (mayBeAMistake && !statementsFit(database, probed.numbers, probed.device))
        throwNoFit(database, probed, schema, "");
    fillGaps(database, probed, schema);
    probed.warning = disagreement(probed, schema);
    probed.name = schema != nullptr ? schema->name() : "iOS " + probed.device.iosVersion;
    probed.shownName = schema != nullptr ? schema->shownName() : probed.name;
    return probed;
}

} // namespace iosphoto::tool
