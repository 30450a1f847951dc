#ifndef IOSPHOTO_TOOL_UNKNOWN_SCHEMA_H
#define IOSPHOTO_TOOL_UNKNOWN_SCHEMA_H

#include "model/statements/entity_numbers.h"
#include "schema/schema_problem.h"
#include "schema/store_metadata.h"
#include "sqlite/copy_database.h"

#include <string>
#include <utility>
#include <vector>

namespace iosphoto::tool {

struct TableWithColumns
{
    std::string name;
    std::vector<std::string> columns;
};

/// What somebody has to know of a database to teach the tool its schema: names that the system
/// gave, and nothing that people wrote.
struct UnknownSchema
{
    StoreMetadata metadata;
    std::string nearest;              ///< the known schema of which the least is missing, "iOS 18"
    std::vector<std::string> missing; ///< what it has beside, such as "ZASSET.ZUUID"
    std::vector<TableWithColumns> tables;
};

/// Reads a photo database that fits no known schema. Throws Failure when that fails.
UnknownSchema describeUnknown(const CopyDatabase &database, const StoreMetadata &metadata,
                              const EntityNumbers &numbers);

/// Ends the reading of such a database.
class UnknownSchemaError : public SchemaError
{
public:
    UnknownSchemaError(SchemaProblem problem, std::vector<std::string> facts, UnknownSchema schema)
        : SchemaError(problem, std::move(facts)), schema_(std::move(schema))
    {
    }

    const UnknownSchema &schema() const { return schema_; }

private:
    UnknownSchema schema_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_UNKNOWN_SCHEMA_H
