#include "catalogue/log_changes.h"

#include "input/tree/file_tree.h"
#include "schema/asset_tables.h"
#include "text/translate.h"

#include <QByteArray>

#include <fmt/format.h>

namespace iosphoto::tool {

namespace {

using Kind = LogChangeKind;

/// Rows of `shown` that have a partner in `other`, or none. An asset without a uuid is known by its
/// key. The lists are made once, whatever indices there are.
constexpr char comparedRows[] =
    "select ZUUID, ZDIRECTORY, ZFILENAME, typeof(ZUUID) from {shown}.{table} "
    "where {state} and {partner} case when ZUUID is null "
    "then Z_PK in (select Z_PK from {other}.{table} where ZUUID is null and {otherState}) "
    "else ZUUID in (select ZUUID from {other}.{table} where ZUUID is not null and {otherState}) "
    "end order by Z_PK";

constexpr char anyState[] = "true";
constexpr char isTrashed[] = "ifnull(ZTRASHEDSTATE, 0) = 1";
constexpr char isNotTrashed[] = "ifnull(ZTRASHEDSTATE, 0) <> 1";

std::string withoutPartner(const std::string &table, const char *shown, const char *other)
{
    using fmt::arg;
    return fmt::format(comparedRows, arg("table", table), arg("shown", shown), arg("other", other),
                       arg("state", anyState), arg("partner", "not"), arg("otherState", anyState));
}

/// Rows whose place in or out of the trash differs.
std::string moved(const std::string &table, const char *now, const char *before)
{
    using fmt::arg;
    return fmt::format(comparedRows, arg("table", table), arg("shown", "main"),
                       arg("other", "alone"), arg("state", now), arg("partner", ""),
                       arg("otherState", before));
}

LogChange changeOf(Kind kind, const QueryRow &row)
{
    const std::string uuid = row.text(0);
    const bool isBlob = row.text(3) == "blob";
    return {kind, isBlob ? QByteArray::fromStdString(uuid).toHex().toStdString() : uuid,
            joinedPath(row.text(1), row.text(2))};
}

} // namespace

const char *machineName(LogChangeKind kind)
{
    switch (kind) {
    case Kind::Added:
        return translatable("added");
    case Kind::Gone:
        return translatable("gone");
    case Kind::Trashed:
        return translatable("trashed");
    case Kind::Restored:
        return translatable("restored");
    }
    return "";
}

std::vector<LogChange> readLogChanges(const CopyDatabase &database)
{
    std::vector<LogChange> changes;
    const std::string table = assetTableOf(database);
    const auto collect = [&](Kind kind, const std::string &query) {
        database.forEachRow(query,
                            [&](const QueryRow &row) { changes.push_back(changeOf(kind, row)); });
    };
    if (!database.attachWithoutLog("alone") || !database.areRealTables({table}, "", "alone") ||
        !database.prepares("select * from alone." + table)) {
        // All of the schema is in the log still.
        collect(Kind::Added, fmt::format("select ZUUID, ZDIRECTORY, ZFILENAME, typeof(ZUUID) from "
                                         "main.{} order by Z_PK",
                                         table));
        return changes;
    }
    collect(Kind::Added, withoutPartner(table, "main", "alone"));
    collect(Kind::Gone, withoutPartner(table, "alone", "main"));
    collect(Kind::Trashed, moved(table, isTrashed, isNotTrashed));
    collect(Kind::Restored, moved(table, isNotTrashed, isTrashed));
    return changes;
}

} // namespace iosphoto::tool
