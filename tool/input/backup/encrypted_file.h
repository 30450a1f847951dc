#ifndef IOSPHOTO_TOOL_ENCRYPTED_FILE_H
#define IOSPHOTO_TOOL_ENCRYPTED_FILE_H

#include "input/backup/file_record.h"
#include "input/source_problem.h"
#include "process/secret.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace iosphoto::tool {

/// How a file of an encrypted backup turned out.
struct DecryptedFile
{
    enum class State {
        Whole,
        CutShort,   ///< shorter than it is to be, but right so far
        BadPadding, ///< its end is damaged, or all of it
    };

    State state;
    std::uint64_t size; ///< bytes that it has now
};

/// Decrypts a private copy in its place, piece by piece. Throws Failure when it cannot be read or
/// written.
/// @param key   of the file, 32 bytes
/// @param size  bytes that it has on the phone, where that is known
DecryptedFile decryptInPlace(const std::filesystem::path &copy, const Secret &key,
                             std::optional<std::uint64_t> size);

/// How messages name a file of a backup.
struct StoredFileNames
{
    std::string stored;
    std::string onPhone;
};

/// Decrypts a private copy of a file as the index tells it; one that cannot be decrypted is
/// removed. Says what is missing of it.
std::optional<SourceFinding> decryptStoredFile(const StoredFileNames &names,
                                               const std::optional<FileRecord> &record,
                                               const ClassKeys &keys,
                                               const std::filesystem::path &copy);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ENCRYPTED_FILE_H
