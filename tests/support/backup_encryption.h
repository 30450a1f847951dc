#ifndef IOSPHOTO_TESTS_BACKUP_ENCRYPTION_H
#define IOSPHOTO_TESTS_BACKUP_ENCRYPTION_H

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace iosphoto::test {

/// What stands in a backup's key bag, to be changed by tests of damage: names of four letters, and
/// values.
using KeyBagEntries = std::vector<std::pair<std::string, std::string>>;

struct EncryptionOptions
{
    enum class Index {
        Whole,       ///< iOS 10.1 and later
        RecordsOnly, ///< 10.0
        Plain,       ///< before
    };

    std::string password = "correct horse";
    Index index = Index::Whole;
    bool hasTwoDerivations = true; ///< since 10.2
    std::uint32_t firstRounds = 200;
    std::uint32_t secondRounds = 100;
    std::uint32_t protectionClass = 3; ///< of files
    /// Changes the key bag before it is written.
    std::function<void(KeyBagEntries &)> alterKeyBag;
};

/// Numbers as key bags have them: the most significant byte first.
std::string bigEndian(std::uint64_t value, int bytes);

/// How a phone encrypts a backup. Keys are made of their names, so that they are always the same.
class BackupEncryption
{
public:
    explicit BackupEncryption(EncryptionOptions options);

    const EncryptionOptions &options() const { return options_; }

    /// BackupKeyBag and ManifestKey of Manifest.plist.
    std::string keyBag() const;
    std::string indexKey() const;

    /// The content of a file as the backup stores it, by a name that makes its key.
    std::string encrypted(const std::string &name, const std::string &content) const;
    /// The key of that file, wrapped, with its class in front.
    std::string wrappedKey(const std::string &name) const;

    /// The index and a record of it.
    std::string encryptedIndex(const std::string &content) const;
    std::string record(const std::string &name, std::int64_t size) const;

private:
    std::string wrappedInClassKey(const std::string &key, std::uint32_t protectionClass) const;

    EncryptionOptions options_;
};

/// The parts that real backups are made with, each as its standard has it.
/// @{
std::string pbkdf2(const std::string &hash, const std::string &password, const std::string &salt,
                   std::uint32_t rounds, std::size_t size);
std::string wrapped(const std::string &key, const std::string &wrappingKey);
std::string encryptedWith(const std::string &key, const std::string &content);
/// @}

/// A file's record in an index since iOS 10, archived. Nothing of what is not given.
std::string archivedRecord(std::optional<std::string> key, std::optional<std::int64_t> size,
                           std::optional<std::int64_t> protectionClass);

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_BACKUP_ENCRYPTION_H
