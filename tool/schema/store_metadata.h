#ifndef IOSPHOTO_TOOL_STORE_METADATA_H
#define IOSPHOTO_TOOL_STORE_METADATA_H

#include "sqlite/copy_database.h"

#include <optional>
#include <string>

namespace iosphoto::tool {

/// What a photo database says of its own schema. Everything may be missing.
struct StoreMetadata
{
    std::optional<std::int64_t> modelVersion; ///< "PLModelVersion", such as 18212
    /// Build of the system that made this schema, such as "22A3354"; the running one may be newer.
    std::string build;

    /// Major version of the iOS that the model belongs to, such as 18. Nothing where the number
    /// does not tell: the models before iOS 12 were not numbered after it.
    std::optional<int> iosMajor() const;

    /// Whether a Mac made the schema: its builds are numbered two higher above the model.
    bool isOfMac() const;
};

StoreMetadata readStoreMetadata(const CopyDatabase &database);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_STORE_METADATA_H
