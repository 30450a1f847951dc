#ifndef IOSPHOTO_TOOL_ENCRYPTED_INDEX_H
#define IOSPHOTO_TOOL_ENCRYPTED_INDEX_H

#include "input/backup/key_bag.h"
#include "process/secret.h"

#include <filesystem>
#include <optional>
#include <string>

namespace iosphoto::tool {

/// The Manifest.db of an encrypted backup: all of it is encrypted, or in iOS 10.0 the records of
/// its files only; with a key that Manifest.plist holds, wrapped.
class EncryptedIndex
{
public:
    /// Throws SourceError when the key is damaged, or none of the backup opens it.
    /// @param wrappedKey  as Manifest.plist has it, if it has one
    /// @param shownName   that file, for messages
    EncryptedIndex(const ClassKeys &keys, const std::optional<std::string> &wrappedKey,
                   const std::string &shownName);

    /// Decrypts a private copy of the index in its place, where it is encrypted, and says whether
    /// it was. Throws SourceError when it is damaged.
    bool decrypt(const std::filesystem::path &copy, const std::string &shownName) const;

    /// A record of a file, decrypted where that is needed and can be done.
    std::string record(const std::string &stored) const;

private:
    std::optional<Secret> key_; ///< none where the index has none
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ENCRYPTED_INDEX_H
