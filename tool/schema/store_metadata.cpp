#include "schema/store_metadata.h"

#include "formats/property_list.h"
#include "formats/versions.h"

namespace iosphoto::tool {

namespace {

constexpr std::int64_t firstNumberedModel = 12000;

/// The models of one system are numbered in thousands, from 27 on in tens of millions.
std::int64_t major(std::int64_t model)
{
    constexpr std::int64_t longNumbers = 100'000'000;
    return model >= longNumbers ? model / 10'000'000 : model / 1000;
}

} // namespace

std::optional<int> StoreMetadata::iosMajor() const
{
    if (!modelVersion || *modelVersion < firstNumberedModel)
        return std::nullopt;
    const std::int64_t number = major(*modelVersion);
    constexpr std::int64_t mostPlausible = 99;
    if (number > mostPlausible)
        return std::nullopt;
    constexpr int modelsOfIos26 = 19;
    return number == modelsOfIos26 ? 26 : static_cast<int>(number);
}

bool StoreMetadata::isOfMac() const
{
    constexpr int macBuildsAhead = 6; // those of phones are 4 ahead
    return modelVersion && *modelVersion >= firstNumberedModel && !build.empty() &&
           firstNumber(build) - major(*modelVersion) == macBuildsAhead;
}

StoreMetadata readStoreMetadata(const CopyDatabase &database)
{
    StoreMetadata metadata;
    database.forEachRow("select Z_PLIST from Z_METADATA", [&](const QueryRow &row) {
        const PropertyList list(row.text(0));
        metadata.modelVersion = list.integer({"PLModelVersion"});
        metadata.build = list.text({"PLOSVersion"});
    });
    database.forEachRow("select ZOSVERSION from ZMIGRATIONHISTORY order by ZINDEX desc limit 1",
                        [&](const QueryRow &row) {
                            if (!row.isNull(0))
                                metadata.build = row.text(0);
                        });
    return metadata;
}

} // namespace iosphoto::tool
