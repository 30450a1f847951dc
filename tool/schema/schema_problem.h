#ifndef IOSPHOTO_TOOL_SCHEMA_PROBLEM_H
#define IOSPHOTO_TOOL_SCHEMA_PROBLEM_H

#include "process/finding.h"

namespace iosphoto::tool {

/// Why a database is not read as a photo library, or perhaps not read as it should be, with the
/// facts of each in their order.
enum class SchemaProblem {
    EmptyFile,      ///< database
    NoDatabase,     ///< database; it may be encrypted
    TooOld,         ///< database, the first and the last iOS that are known
    NoPhotoLibrary, ///< database
    OtherTables,    ///< database
    UnknownSchema,  ///< as of TooOld, and what is missing
    NewerSchema,    ///< database, its iOS, what is missing
    OtherDevice,    ///< database, iOS, model, the iOS and the model that it fits
    ReadLikeNewest, ///< iOS, the newest that is known
    OtherIos,       ///< the schema, iOS, the iOS to try
    MissingColumns, ///< database, the columns, the fields that are unknown for that reason

    /// What cannot be told of rows without a column: the database, its column.
    /// @{
    UnknownOrigins,
    UnknownTrash,
    UnknownTrashDates,
    UnknownBursts,
    UnknownTitles,
    UnknownAlbumKinds,
    UnknownAlbumTrash,
    /// @}
};

using SchemaFinding = Finding<SchemaProblem>;
using SchemaError = FindingError<SchemaProblem>;

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SCHEMA_PROBLEM_H
