#include "catalogue/log_changes.h"

#include "language/said.h"

#include <fmt/format.h>

namespace iosphoto::tool {

namespace {

using Kind = LogChangeKind;

/// Rows of `shown` that have no partner in `other`.
constexpr char withoutPartner[] =
    "select shown.ZUUID, shown.ZDIRECTORY, shown.ZFILENAME, typeof(shown.ZUUID) "
    "from {shown}.{table} shown left join {other}.{table} other on shown.ZUUID is other.ZUUID "
    "where other.Z_PK is null order by shown.Z_PK";

/// Rows whose place in or out of the trash differs.
constexpr char movedByTrash[] =
    "select now.ZUUID, now.ZDIRECTORY, now.ZFILENAME, typeof(now.ZUUID) "
    "from main.{table} now join alone.{table} before on now.ZUUID is before.ZUUID "
    "where ifnull(now.ZTRASHEDSTATE, 0) {now} 1 and ifnull(before.ZTRASHEDSTATE, 0) {before} 1 "
    "order by now.Z_PK";

std::string hexadecimal(const std::string &bytes)
{
    std::string digits;
    for (const char byte : bytes)
        digits += fmt::format("{:02x}", static_cast<unsigned char>(byte));
    return digits;
}

LogChange changeOf(Kind kind, const QueryRow &row)
{
    const std::string directory = row.text(1);
    const std::string uuid = row.text(0);
    return {kind, row.text(3) == "blob" ? hexadecimal(uuid) : uuid,
            directory + (directory.empty() ? "" : "/") + row.text(2)};
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
    const std::string table = database.assetTable();
    const auto collect = [&](Kind kind, const std::string &query) {
        database.forEachRow(query,
                            [&](const QueryRow &row) { changes.push_back(changeOf(kind, row)); });
    };
    if (!database.attachWithoutLog("alone") || !database.prepares("select * from alone." + table)) {
        // All of the schema is in the log still.
        collect(Kind::Added, fmt::format("select ZUUID, ZDIRECTORY, ZFILENAME, typeof(ZUUID) from "
                                         "main.{} order by Z_PK",
                                         table));
        return changes;
    }
    using fmt::arg;
    collect(Kind::Added, fmt::format(withoutPartner, arg("table", table), arg("shown", "main"),
                                     arg("other", "alone")));
    collect(Kind::Gone, fmt::format(withoutPartner, arg("table", table), arg("shown", "alone"),
                                    arg("other", "main")));
    collect(Kind::Trashed,
            fmt::format(movedByTrash, arg("table", table), arg("now", "="), arg("before", "<>")));
    collect(Kind::Restored,
            fmt::format(movedByTrash, arg("table", table), arg("now", "<>"), arg("before", "=")));
    return changes;
}

} // namespace iosphoto::tool
