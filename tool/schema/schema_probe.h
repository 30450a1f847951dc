#ifndef IOSPHOTO_TOOL_SCHEMA_PROBE_H
#define IOSPHOTO_TOOL_SCHEMA_PROBE_H

#include "input/library_layout.h"
#include "schema/device.h"
#include "schema/known_schemas.h"
#include "schema/missing_columns.h"
#include "schema/schema_problem.h"
#include "schema/store_metadata.h"
#include "sqlite/copy_database.h"

#include <string>

namespace iosphoto::tool {

/// Who says what the device is.
enum class DeviceOrigin { User, Source, Schema, Assumption };

/// The origin's name for machines, such as "source".
const char *machineName(DeviceOrigin origin);

/// What a probe found out about a photo database.
struct ProbedSchema
{
    Device device;        ///< to read it as; complete
    std::string iosBuild; ///< of the system, or of the one that made the schema; may be empty
    DeviceOrigin iosOrigin = DeviceOrigin::User;
    DeviceOrigin productOrigin = DeviceOrigin::User;
    std::string iosWhy;    ///< where the version comes from; empty if the user named it
    std::string deviceWhy; ///< likewise the product type
    std::optional<SchemaFinding> warning; ///< that version and schema disagree
    std::vector<SchemaFinding> gaps;      ///< what is unknown, as columns are missing
    std::string name;      ///< of the schema, such as "iOS 15 to 17", for machines in English
    std::string shownName; ///< the same for people
    StoreMetadata metadata;
    EntityNumbers numbers;
    std::vector<MissingColumn> missingColumns; ///< that the private copy was given
    std::vector<std::string> unknownFields;    ///< the keys of the fields that are lost with them
    std::vector<std::string> unknownReasons;   ///< likewise, of reasons to leave a row out

    /// Whether the user left anything of the device open.
    bool isAssumed() const { return !(iosWhy.empty() && deviceWhy.empty()); }
    bool isUnknown(const std::string &field) const;
    bool isUnknownReason(const std::string &reason) const;
    /// The missing columns without which a field is unknown: "ZASSET.ZHIDDEN, ZASSET.ZFAVORITE".
    std::string columnsOf(const std::string &field) const;
    std::string iosText() const;     ///< such as "iOS 15.7 (Info.plist)"
    std::string productText() const; ///< such as "iPhone14,2 (hides no album)"
};

/// Makes sure that a database is a photo database whose statements run, and decides which device
/// to read it as: what the user wants, else what the source says, else what the schema says.
///
/// Where no known schema fits but for columns without which the rest can be read, these are added
/// to the private copy.
///
/// Throws SchemaError when the database is something else or does not fit the device, and Failure
/// when it cannot be read.
ProbedSchema probe(const CopyDatabase &database, const Device &wanted, const RecordedDevice &says);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SCHEMA_PROBE_H
