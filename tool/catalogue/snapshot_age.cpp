#include "catalogue/snapshot_age.h"

#include "model/core_data_time.h"
#include "schema/asset_tables.h"

#include <fmt/format.h>

#include <algorithm>

namespace iosphoto::tool {

namespace {

/// Seconds since 2001. Later dates have not come yet, whichever clock a device has; there are such
/// rows on real ones.
std::int64_t latestPossible(UnixTime now)
{
    return now.seconds - coreDataEpoch + secondsPerDay;
}

CoreDataTime newestDateOf(const CopyDatabase &database, const std::string &column, UnixTime now)
{
    CoreDataTime newest;
    database.forEachRow(fmt::format("select max({0}) from {1} where typeof({0}) in "
                                    "('integer', 'real') and {0} <= {2}",
                                    column, assetTableOf(database), latestPossible(now)),
                        [&](const QueryRow &row) { newest = CoreDataTime{row.real(0)}; });
    return newest;
}

} // namespace

bool SnapshotAge::isLaterThan(const SnapshotAge &other) const
{
    const bool hasNewerAssets = other.newestAdded < newestAdded;
    if (store != other.store)
        return hasNewerAssets;
    const auto isKept = [](const SnapshotAge &age) { return age.counter >= age.highestKey; };
    if (!isKept(*this) || !isKept(other))
        return hasNewerAssets && highestKey > other.highestKey;
    if (counter != other.counter)
        return counter > other.counter;
    if (assets != other.assets)
        return assets < other.assets;
    if (saves != other.saves)
        return saves > other.saves && !(newestDate < other.newestDate);
    return other.newestDate < newestDate;
}

SnapshotAge readSnapshotAge(const CopyDatabase &database, UnixTime now)
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
    database.forEachRow(fmt::format("select cast(total(Z_OPT) as integer) from {}", table),
                        [&](const QueryRow &row) { age.saves = row.int64(0); });
    age.newestAdded = newestDateOf(database, "ZADDEDDATE", now); // none below iOS 8
    age.newestDate = age.newestAdded;
    for (const char *const column : {"ZMODIFICATIONDATE", "ZTRASHEDDATE"})
        age.newestDate = std::max(age.newestDate, newestDateOf(database, column, now));
    return age;
}

} // namespace iosphoto::tool
