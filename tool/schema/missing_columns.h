#ifndef IOSPHOTO_TOOL_MISSING_COLUMNS_H
#define IOSPHOTO_TOOL_MISSING_COLUMNS_H

#include "model/statements/entity_numbers.h"
#include "schema/device.h"
#include "schema/optional_columns.h"
#include "sqlite/copy_database.h"

#include <string>
#include <utility>
#include <vector>

namespace iosphoto::tool {

/// A column that a database lacks and that would be read.
struct MissingColumn
{
    std::string table; ///< as the database calls it
    const OptionalColumn *column;

    std::string name() const { return table + "." + column->name; } ///< "ZASSET.ZHIDDEN"
};

/// What keeps the statements of a device from running on a database.
struct SchemaGaps
{
    std::vector<MissingColumn> columns; ///< without which it can be read
    std::string essential; ///< what it cannot be read without, in SQLite's words; empty if nothing

    /// How much is lost, to compare: what it cannot tell, then the columns themselves.
    std::pair<std::size_t, std::size_t> loss(const std::string &iosVersion) const;
};

/// Adds the columns that are missing to a private copy, each with what stands in for it, until the
/// statements of the device run or something else is missing.
SchemaGaps addMissingColumns(const CopyDatabase &database, const EntityNumbers &numbers,
                             const Device &device);

/// The same, and leaves the copy as it was.
SchemaGaps findGaps(const CopyDatabase &database, const EntityNumbers &numbers,
                    const Device &device);

/// The tables, such as "Z_30ASSETS", and columns of others, such as "ZASSET.ZUUID", that the
/// statements of a device ask for and a database lacks. Leaves the copy as it was.
std::vector<std::string> findMissingNames(const CopyDatabase &database,
                                          const EntityNumbers &numbers, const Device &device);

/// The name in SQLite's words for a table or column that is not there.
std::string nameMissedIn(const std::string &words);

/// The keys of the fields that cannot be known of a library of that iOS, each once.
std::vector<std::string> fieldsLostWith(const std::vector<MissingColumn> &missing,
                                        const std::string &iosVersion);

/// Whether a database has a column for each of the fields, as it may where it has an older schema.
bool hasColumnsFor(const CopyDatabase &database, const std::vector<std::string> &fields);

/// The names for machines of the reasons to leave a row out that cannot be told, each once.
std::vector<std::string> reasonsLostWith(const std::vector<MissingColumn> &missing);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_MISSING_COLUMNS_H
