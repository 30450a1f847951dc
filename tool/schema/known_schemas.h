#ifndef IOSPHOTO_TOOL_KNOWN_SCHEMAS_H
#define IOSPHOTO_TOOL_KNOWN_SCHEMAS_H

#include "model/statements/entity_numbers.h"
#include "model/statements/statement_tables.h"
#include "schema/device.h"
#include "schema/schema_problem.h"
#include "sqlite/copy_database.h"

#include <array>
#include <optional>
#include <string>

namespace iosphoto::tool {

constexpr char productThatHidesNoAlbum[] = "iPhone14,2";

/// One kind of schema: the systems that write it, and the newest device among them.
struct KnownSchema
{
    int firstIos; ///< major versions
    int lastIos;
    /// A column of ZADDITIONALASSETATTRIBUTES that this schema no longer has, where the columns
    /// that its statements read do not tell it from the one before.
    const char *goneColumn = nullptr;
    const char *productType = productThatHidesNoAlbum;

    std::string iosVersion() const { return std::to_string(lastIos); }

    /// Such as "iOS 15 to 17", for machines in English.
    std::string name() const;
    std::string shownName() const;
};

/// The newest schema that a database has; null when it has none of those that are known.
const KnownSchema *findSchema(const CopyDatabase &database, const EntityNumbers &numbers);

/// All of them, the newest first.
const std::vector<KnownSchema> &knownSchemas();

/// The newest and the oldest of all.
const KnownSchema &newestSchema();
const KnownSchema &oldestSchema();

/// What to say of an iOS version that is newer than all schemas; nothing of others.
std::optional<SchemaFinding> warningOfNewer(const std::string &iosVersion);

EntityNumbers readEntityNumbers(const CopyDatabase &database);

/// What the entity numbers cannot be read without, in SQLite's words; empty if nothing.
std::string missingForEntityNumbers(const CopyDatabase &database);

/// The statements of the four passes that the library chooses for a device, in their order.
std::array<const StatementVariant *, 4> statementsFor(const Device &device);

/// Whether all of them run on the database.
bool statementsFit(const CopyDatabase &database, const EntityNumbers &numbers,
                   const Device &device);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_KNOWN_SCHEMAS_H
