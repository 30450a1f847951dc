#include "schema/unknown_schema.h"

#include "schema/known_schemas.h"
#include "schema/missing_columns.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

std::vector<TableWithColumns> tablesOf(const CopyDatabase &database)
{
    std::vector<TableWithColumns> tables;
    database.forEachRow("select one.name, its.name "
                        "from sqlite_master as one, pragma_table_info(one.name) as its "
                        "where one.type = 'table' and one.name not like 'sqlite^_%' escape '^' "
                        "and one.sql not like 'create virtual%' order by one.name, its.cid",
                        [&](const QueryRow &row) {
                            if (tables.empty() || tables.back().name != row.text(0))
                                tables.push_back({row.text(0), {}});
                            tables.back().columns.push_back(row.text(1));
                        });
    return tables;
}

/// Whether the table of the assets is missing, which has another name then.
bool isOfOtherAssets(const std::vector<std::string> &missing)
{
    return std::any_of(missing.begin(), missing.end(), [](const std::string &name) {
        return name == "ZASSET" || name == "ZGENERICASSET";
    });
}

} // namespace

UnknownSchema describeUnknown(const CopyDatabase &database, const StoreMetadata &metadata,
                              const EntityNumbers &numbers)
{
    UnknownSchema unknown = {metadata, "", {}, tablesOf(database)};
    if (const std::string words = missingForEntityNumbers(database); !words.empty()) {
        unknown.missing = {nameMissedIn(words)};
        return unknown;
    }
    for (const KnownSchema &schema : knownSchemas()) {
        const std::vector<std::string> missing =
            findMissingNames(database, numbers, {schema.iosVersion(), schema.productType});
        const bool isNearer = unknown.nearest.empty() || missing.size() < unknown.missing.size();
        if (!isNearer || isOfOtherAssets(missing))
            continue;
        unknown.nearest = schema.name();
        unknown.missing = missing;
    }
    return unknown;
}

} // namespace iosphoto::tool
