/// The statements that a build of the catalogue runs on a database, as somebody can run them too.
#ifndef IOSPHOTO_TOOL_BUILD_STATEMENTS_H
#define IOSPHOTO_TOOL_BUILD_STATEMENTS_H

#include "model/statements/statement_tables.h"
#include "schema/device.h"
#include "schema/missing_columns.h"

#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// An entity number of EntityNumbers, and what finds it in a database.
struct EntityNumberName
{
    std::int32_t EntityNumbers::*number;
    const char *key;         ///< in documents, such as "album"
    const char *entity;      ///< such as "Album"
    const char *placeholder; ///< where it is not known, such as "<ALBUM>"
    const Statement *lookup;
    const char *column; ///< of the lookup
};

extern const EntityNumberName entityNumberNames[4];

/// The entity numbers of a database, or of databases like it.
struct NumberSource
{
    EntityNumbers numbers;
    bool areRead; ///< from the database; otherwise 0 is one that is not known

    std::optional<std::int32_t> operator[](const EntityNumberName &name) const;
};

/// One statement, with the entity numbers filled in as far as they are known.
struct BuildStatement
{
    const char *pass;    ///< that runs it, such as "camera-roll"
    const char *name;    ///< of its file in src/model/statements/sql, without ".sql"
    std::string variant; ///< the systems and models that it is for, such as "iOS 15 to 17"
    std::string sql;
    std::vector<const EntityNumberName *> numbers; ///< that it is filled in with, each once
};

/// Temporary views that give tables the columns that a database lacks, so that the statements run
/// on it unchanged.
std::vector<std::string> viewsWith(const std::vector<MissingColumn> &missing);

/// In the order in which a build runs them.
std::vector<BuildStatement> statementsOfBuild(const Device &device, const NumberSource &numbers);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_BUILD_STATEMENTS_H
