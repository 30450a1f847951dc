#ifndef IOSPHOTO_TOOL_FILE_RECORD_H
#define IOSPHOTO_TOOL_FILE_RECORD_H

#include "input/backup/key_bag.h"

#include <cstdint>
#include <optional>
#include <string>

namespace iosphoto::tool {

/// What the index of a backup says of a file beside its name, as far as it says so.
struct FileRecord
{
    std::optional<WrappedKey> key; ///< none of a file that is stored as it is
    std::optional<std::int64_t> size;
};

/// The record that an index since iOS 10 holds as an archived object. Nothing when it is none.
std::optional<FileRecord> readFileRecord(const std::string &archive);

/// A key as property lists hold it: its class, then the wrapped key.
WrappedKey readWrappedKey(const std::string &bytes);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FILE_RECORD_H
