#include "schema/schema_probe.h"

#include "formats/versions.h"
#include "text/translate.h"

#include <filesystem>

namespace iosphoto::tool {

namespace {

void requirePhotoDatabase(const CopyDatabase &database)
{
    if (database.hasTable("PhotoAlbum") && database.hasTable("PhotoExtras"))
        throw Failure(
            SchemaDoesNotFit,
            translate("'{0}' is a photo database of iOS 5 or earlier, which is not known; "
                      "libraries of iOS {1} to {2} can be read",
                      database.shownName(), oldestSchema().firstIos, newestSchema().lastIos));
    if (!database.hasTable("Z_PRIMARYKEY") || !database.hasTable("ZGENERICALBUM") ||
        !database.hasTable("ZADDITIONALASSETATTRIBUTES") || database.assetTable().empty())
        throw Failure(WrongKindOfFile,
                      translate("'{0}' is a SQLite database without a photo library; "
                                "name the Photos.sqlite of a phone or backup",
                                database.shownName()));
}

/// The library would read nothing from others, and tell less of it.
void requireRealTables(const CopyDatabase &database)
{
    const std::vector<std::string> tables = {
        "ZASSET", "ZGENERICASSET", "ZADDITIONALASSETATTRIBUTES", "ZGENERICALBUM", "Z_PRIMARYKEY"};
    const std::string albumContents = "Z^_%ASSETS";
    if (!database.areRealTables(tables, albumContents))
        throw Failure(WrongKindOfFile,
                      translate("'{0}' is a SQLite database whose tables are not those of a photo "
                                "library; name the Photos.sqlite of a phone or backup",
                                database.shownName()));
}

void requireDatabase(const CopyDatabase &database)
{
    const bool isDatabase = database.isDatabase();
    std::error_code ignored;
    if (std::filesystem::file_size(database.file(), ignored) == 0 && !ignored &&
        !std::filesystem::exists(database.file() + "-wal", ignored))
        throw Failure(WrongKindOfFile,
                      translate("'{0}' is empty; copy it from the device or the backup again",
                                database.shownName()));
    if (!isDatabase)
        throw Failure(WrongKindOfFile,
                      translate("'{0}' is not a SQLite database, or it is encrypted; name the "
                                "Photos.sqlite of a phone or of an unencrypted backup",
                                database.shownName()));
}

/// Whether the model number and the tables tell of the same iOS.
bool agree(const std::optional<int> &iosMajor, const KnownSchema *schema)
{
    if (!iosMajor)
        return false;
    return schema == nullptr || (*iosMajor >= schema->firstIos && *iosMajor <= schema->lastIos) ||
           (schema == &newestSchema() && *iosMajor > schema->lastIos);
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

std::string disagreement(const ProbedSchema &probed, const KnownSchema *schema)
{
    const int major = firstNumber(probed.device.iosVersion);
    const KnownSchema &newest = newestSchema();
    if (major > newest.lastIos && (schema == nullptr || schema == &newest))
        return warningOfNewer(probed.device.iosVersion);
    const std::optional<IosRange> range = iosRange(probed.metadata, schema);
    if (!range || (major >= range->first && major <= range->last))
        return {};
    return translate(
        "the database has the schema of {0}, not of iOS {1}, and photos may be wrong or "
        "missing; try --ios {2}",
        range->name, probed.device.iosVersion, range->last);
}

std::string fittingIos(const ProbedSchema &probed, const KnownSchema &schema)
{
    const std::optional<int> model = probed.metadata.iosMajor();
    return agree(model, &schema) ? std::to_string(*model) : schema.iosVersion();
}

Failure noFit(const CopyDatabase &database, const ProbedSchema &probed, const KnownSchema *schema)
{
    if (schema == nullptr) {
        const std::optional<int> major = probed.metadata.iosMajor();
        if (major && *major > newestSchema().lastIos)
            return {
                SchemaDoesNotFit,
                translate("'{0}' is a photo database of iOS {1}, whose schema is not known yet; "
                          "look for a newer iosphoto",
                          database.shownName(), *major)};
        return {SchemaDoesNotFit,
                translate("'{0}' is a photo database of no known schema: no iOS from "
                          "{1} to {2} has these tables; look for a newer iosphoto",
                          database.shownName(), oldestSchema().firstIos, newestSchema().lastIos)};
    }
    return {
        SchemaDoesNotFit,
        translate("'{0}' is a photo database, but not of iOS {1} and {2}; try --ios {3} --product "
                  "{4}",
                  database.shownName(), probed.device.iosVersion, probed.device.productType,
                  fittingIos(probed, *schema), schema->productType)};
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
    probed.numbers = readEntityNumbers(database);
    const KnownSchema *const schema = findSchema(database, probed.numbers);
    decideIos(probed, wanted, says, schema);
    decideProduct(probed, wanted, says, schema);
    if (probed.device.iosVersion.empty() || !statementsFit(database, probed.numbers, probed.device))
        throw noFit(database, probed, schema);
    probed.warning = disagreement(probed, schema);
    probed.name = schema != nullptr ? schema->name() : "iOS " + probed.device.iosVersion;
    probed.shownName = schema != nullptr ? schema->shownName() : probed.name;
    return probed;
}

} // namespace iosphoto::tool
