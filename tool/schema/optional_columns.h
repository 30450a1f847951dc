/// The columns that the statements, or the tool by itself, read and a library can be read without.
#ifndef IOSPHOTO_TOOL_OPTIONAL_COLUMNS_H
#define IOSPHOTO_TOOL_OPTIONAL_COLUMNS_H

#include "schema/schema_problem.h"

#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// A table whose columns the statements read.
enum class TableOfColumns { Assets, Attributes, Albums };

struct OptionalColumn
{
    TableOfColumns table;
    const char *name;
    /// What stands in every row where the column is missing, in SQL: nothing, or what keeps the
    /// statements from leaving all rows out.
    const char *standIn;
    std::vector<const char *> fields; ///< the keys of fields that cannot be known without it
    int lastIos;                      ///< in which it decides on them
    /// What becomes of rows without it that the statements leave out by it.
    std::optional<SchemaProblem> ofRows = std::nullopt;
    /// The names for machines of the reasons to leave a row out that it tells.
    std::vector<const char *> reasons = {};
    bool isReadByStatements = true; ///< or only where the tool asks what a photo is
};

/// Null for a column that is none of them, as nothing can be read without it.
const OptionalColumn *findOptionalColumn(TableOfColumns table, const std::string &name);

/// The same by the name alone, as the statements read it of whichever table.
const OptionalColumn *findOptionalColumn(const std::string &name);

const std::vector<OptionalColumn> &optionalColumns();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_OPTIONAL_COLUMNS_H
