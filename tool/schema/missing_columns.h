#ifndef IOSPHOTO_TOOL_MISSING_COLUMNS_H
#define IOSPHOTO_TOOL_MISSING_COLUMNS_H

#include "model/statements/entity_numbers.h"
#include "schema/device.h"
#include "schema/optional_columns.h"
#include "sqlite/copy_database.h"

#include <string>
#include <vector>

namespace iosphoto::tool {

/// A column that the statements of a device read and a database lacks.
struct MissingColumn
{
    std::string table; ///< as the database calls it
    const OptionalColumn *column;
};

/// What keeps the statements of a device from running on a database.
struct SchemaGaps
{
    std::vector<MissingColumn> columns; ///< without which it can be read
    std::string essential; ///< what it cannot be read without, in SQLite's words; empty if nothing
};

/// Adds the columns that are missing to a private copy, each with what stands in for it, until the
/// statements of the device run or something else is missing.
SchemaGaps addMissingColumns(const CopyDatabase &database, const EntityNumbers &numbers,
                             const Device &device);

/// The same, and leaves the copy as it was.
SchemaGaps findGaps(const CopyDatabase &database, const EntityNumbers &numbers,
                    const Device &device);

/// The keys of the fields that cannot be known of a library of that iOS, each once.
std::vector<std::string> fieldsLostWith(const std::vector<MissingColumn> &missing,
                                        const std::string &iosVersion);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_MISSING_COLUMNS_H
