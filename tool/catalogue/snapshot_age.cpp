#include "catalogue/snapshot_age.h"

#include "schema/asset_tables.h"

#include <fmt/format.h>

#include <algorithm>

namespace iosphoto::tool {

bool SnapshotAge::isLaterThan(const SnapshotAge &other) const
{
    const bool isNewer = other.newestDate < newestDate;
    if (store != other.store)
        return isNewer;
    const auto isKept = [](const SnapshotAge &age) { return age.counter >= age.highestKey; };
    const bool areKept = isKept(*this) && isKept(other);
    const std::int64_t key = areKept ? counter : highestKey;
    const std::int64_t otherKey = areKept ? other.counter : other.highestKey;
    if (key != otherKey)
        return key > otherKey && (areKept || isNewer);
    if (assets != other.assets)
        return assets < other.assets && (areKept || isNewer);
    return isNewer;
}

SnapshotAge readSnapshotAge(const CopyDatabase &database)
{
    SnapshotAge age;
    const std::string table = assetTableOf(database);
    database.forEachRow("select Z_UUID from Z_METADATA",
                        [&](const QueryRow &row) { age.store = row.text(0); });
    database.forEachRow(
        "select max(Z_MAX) from Z_PRIMARYKEY where Z_NAME in ('Asset', 'GenericAsset')",
        [&](const QueryRow &row) { age.counter = row.int64(0); });
    database.forEachRow(fmt::format("select max(Z_PK), count(*) from {}", table),
                        [&](const QueryRow &row) {
                            age.highestKey = row.int64(0);
                            age.assets = row.int64(1);
                        });
    for (const char *const date : {"ZADDEDDATE", "ZMODIFICATIONDATE"}) // below iOS 8 one alone
        database.forEachRow(fmt::format("select max({0}) from {1} where typeof({0}) in "
                                        "('integer', 'real')",
                                        date, table),
                            [&](const QueryRow &row) {
                                age.newestDate =
                                    std::max(age.newestDate, CoreDataTime{row.real(0)});
                            });
    return age;
}

} // namespace iosphoto::tool
