#include "support/backup_encryption.h"

#include "support/property_list_bytes.h"

#include <openssl/core_names.h>
#include <openssl/evp.h>
#include <openssl/kdf.h>
#include <openssl/params.h>

#include <memory>
#include <stdexcept>

namespace iosphoto::test {

namespace {

constexpr std::uint32_t indexClass = 4;
constexpr std::uint32_t classOfDevice = 11;
constexpr std::size_t keySize = 32;

void require(bool isDone)
{
    if (!isDone)
        throw std::runtime_error("OpenSSL refuses");
}

unsigned char *bytesOf(std::string &text)
{
    return reinterpret_cast<unsigned char *>(text.data());
}

const unsigned char *bytesOf(const std::string &text)
{
    return reinterpret_cast<const unsigned char *>(text.data());
}

std::string littleEndian(std::uint32_t value)
{
    const std::string digits = bigEndian(value, 4);
    return {digits.rbegin(), digits.rend()};
}

std::string keyNamed(const std::string &name)
{
    return pbkdf2("SHA256", name, "name of a key", 1, keySize);
}

std::string classKey(std::uint32_t protectionClass)
{
    return keyNamed("class " + std::to_string(protectionClass));
}

/// Encrypts with a cipher of OpenSSL.
std::string run(const EVP_CIPHER *cipher, const std::string &key, const unsigned char *vector,
                const std::string &content)
{
    const std::unique_ptr<EVP_CIPHER_CTX, void (*)(EVP_CIPHER_CTX *)> context(EVP_CIPHER_CTX_new(),
                                                                              EVP_CIPHER_CTX_free);
    EVP_CIPHER_CTX_set_flags(context.get(), EVP_CIPHER_CTX_FLAG_WRAP_ALLOW);
    require(EVP_EncryptInit_ex(context.get(), cipher, nullptr, bytesOf(key), vector) == 1);
    std::string result(content.size() + keySize, '\0');
    int size = 0;
    int rest = 0;
    require(EVP_EncryptUpdate(context.get(), bytesOf(result), &size, bytesOf(content),
                              static_cast<int>(content.size())) == 1);
    require(EVP_EncryptFinal_ex(context.get(), bytesOf(result) + size, &rest) == 1);
    result.resize(static_cast<std::size_t>(size + rest));
    return result;
}

std::string written(const KeyBagEntries &entries)
{
    std::string bytes;
    for (const auto &[tag, value] : entries)
        bytes += tag + bigEndian(value.size(), 4) + value;
    return bytes;
}

plist_t dataNode(const std::string &bytes)
{
    return plist_new_data(bytes.data(), bytes.size());
}

} // namespace

std::string bigEndian(std::uint64_t value, int bytes)
{
    std::string text;
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
        text += static_cast<char>(value >> shift & 0xffU);
    return text;
}

std::string pbkdf2(const std::string &hash, const std::string &password, const std::string &salt,
                   std::uint32_t rounds, std::size_t size)
{
    const std::unique_ptr<EVP_KDF, void (*)(EVP_KDF *)> kind(
        EVP_KDF_fetch(nullptr, "PBKDF2", nullptr), EVP_KDF_free);
    const std::unique_ptr<EVP_KDF_CTX, void (*)(EVP_KDF_CTX *)> context(EVP_KDF_CTX_new(kind.get()),
                                                                        EVP_KDF_CTX_free);
    std::string name = hash;
    std::string secret = password;
    std::string grain = salt;
    std::uint32_t count = rounds;
    int anyStrength = 1; // as the published examples ask for less than the standard wants today
    const OSSL_PARAM parameters[] = {
        OSSL_PARAM_construct_utf8_string(OSSL_KDF_PARAM_DIGEST, name.data(), 0),
        OSSL_PARAM_construct_octet_string(OSSL_KDF_PARAM_PASSWORD, secret.data(), secret.size()),
        OSSL_PARAM_construct_octet_string(OSSL_KDF_PARAM_SALT, grain.data(), grain.size()),
        OSSL_PARAM_construct_uint32(OSSL_KDF_PARAM_ITER, &count),
        OSSL_PARAM_construct_int(OSSL_KDF_PARAM_PKCS5, &anyStrength),
        OSSL_PARAM_construct_end()};
    std::string key(size, '\0');
    require(EVP_KDF_derive(context.get(), bytesOf(key), key.size(), parameters) == 1);
    return key;
}

std::string wrapped(const std::string &key, const std::string &wrappingKey)
{
    return run(EVP_aes_256_wrap(), wrappingKey, nullptr, key);
}

std::string encryptedWith(const std::string &key, const std::string &content)
{
    const std::string zeros(16, '\0');
    return run(EVP_aes_256_cbc(), key, bytesOf(zeros), content);
}

std::string archivedRecord(std::optional<std::string> key, std::optional<std::int64_t> size,
                           std::optional<std::int64_t> protectionClass)
{
    plist_t file = plist_new_dict();
    if (size)
        plist_dict_set_item(file, "Size", plist_new_uint(static_cast<std::uint64_t>(*size)));
    if (protectionClass)
        plist_dict_set_item(file, "ProtectionClass",
                            plist_new_uint(static_cast<std::uint64_t>(*protectionClass)));
    plist_t objects = plist_new_array();
    plist_array_append_item(objects, plist_new_string("$null"));
    plist_array_append_item(objects, file);
    if (key) {
        plist_dict_set_item(file, "EncryptionKey", plist_new_uid(2));
        plist_t data = plist_new_dict();
        plist_dict_set_item(data, "NS.data", dataNode(*key));
        plist_array_append_item(objects, data);
    }
    plist_t top = plist_new_dict();
    plist_dict_set_item(top, "root", plist_new_uid(1));
    plist_t archive = plist_new_dict();
    plist_dict_set_item(archive, "$version", plist_new_uint(100000));
    plist_dict_set_item(archive, "$archiver", plist_new_string("NSKeyedArchiver"));
    plist_dict_set_item(archive, "$top", top);
    plist_dict_set_item(archive, "$objects", objects);
    return binaryPropertyList(archive);
}

BackupEncryption::BackupEncryption(EncryptionOptions options) : options_(std::move(options)) {}

std::string BackupEncryption::keyBag() const
{
    const std::string uuid(16, 'u');
    const std::string salt(20, 's');
    const std::string firstSalt(20, 'd');
    std::string key = options_.password;
    if (options_.hasTwoDerivations)
        key = pbkdf2("SHA256", key, firstSalt, options_.firstRounds, keySize);
    key = pbkdf2("SHA1", key, salt, options_.secondRounds, keySize);
    KeyBagEntries entries = {{"VERS", bigEndian(4, 4)},
                             {"TYPE", bigEndian(1, 4)},
                             {"UUID", uuid},
                             {"HMCK", std::string(40, 'h')},
                             {"WRAP", bigEndian(1, 4)},
                             {"SALT", salt},
                             {"ITER", bigEndian(options_.secondRounds, 4)}};
    if (options_.hasTwoDerivations) {
        entries.emplace_back("DPWT", bigEndian(1, 4));
        entries.emplace_back("DPIC", bigEndian(options_.firstRounds, 4));
        entries.emplace_back("DPSL", firstSalt);
    }
    for (const std::uint32_t each : {1U, 2U, 3U, indexClass, 6U, classOfDevice}) {
        constexpr std::uint32_t inPasswordKey = 2;
        constexpr std::uint32_t inBoth = 3;
        const bool isOfDevice = each == classOfDevice;
        entries.emplace_back("UUID", std::string(16, static_cast<char>('a' + each)));
        entries.emplace_back("CLAS", bigEndian(each, 4));
        entries.emplace_back("WRAP", bigEndian(isOfDevice ? inBoth : inPasswordKey, 4));
        entries.emplace_back("KTYP", bigEndian(0, 4));
        entries.emplace_back("WPKY", wrapped(classKey(each), isOfDevice ? keyNamed("phone") : key));
    }
    if (options_.alterKeyBag)
        options_.alterKeyBag(entries);
    return written(entries);
}

std::string BackupEncryption::wrappedInClassKey(const std::string &key,
                                                std::uint32_t protectionClass) const
{
    return littleEndian(protectionClass) + wrapped(key, classKey(protectionClass));
}

std::string BackupEncryption::indexKey() const
{
    return wrappedInClassKey(keyNamed("index"), indexClass);
}

std::string BackupEncryption::encrypted(const std::string &name, const std::string &content) const
{
    return encryptedWith(keyNamed(name), content);
}

std::string BackupEncryption::wrappedKey(const std::string &name) const
{
    return wrappedInClassKey(keyNamed(name), options_.protectionClass);
}

std::string BackupEncryption::encryptedIndex(const std::string &content) const
{
    return options_.index == EncryptionOptions::Index::Whole
               ? encryptedWith(keyNamed("index"), content)
               : content;
}

std::string BackupEncryption::record(const std::string &name, std::int64_t size) const
{
    const std::string plain = archivedRecord(wrappedKey(name), size, options_.protectionClass);
    return options_.index == EncryptionOptions::Index::RecordsOnly
               ? encryptedWith(keyNamed("index"), plain)
               : plain;
}

} // namespace iosphoto::test
