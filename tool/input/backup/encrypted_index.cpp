#include "input/backup/encrypted_index.h"

#include "cipher/cbc_decryption.h"
#include "files/sqlite_magic.h"
#include "input/backup/encrypted_file.h"
#include "input/backup/file_record.h"
#include "input/source_problem.h"

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

bool isPropertyList(const std::string &bytes)
{
    return bytes.rfind("bplist", 0) == 0 || bytes.rfind("<?xml", 0) == 0;
}

} // namespace

EncryptedIndex::EncryptedIndex(const ClassKeys &keys, const std::optional<std::string> &wrappedKey,
                               const std::string &shownName)
{
    if (!wrappedKey)
        return;
    key_ = keys.open(readWrappedKey(*wrappedKey));
    if (!key_)
        throw SourceError(SourceProblem::IndexKeyIsDamaged, {shownName});
}

bool EncryptedIndex::decrypt(const fs::path &copy, const std::string &shownName) const
{
    if (!key_ || beginsAsDatabase(copy))
        return false;
    (void)decryptInPlace(copy, *key_, std::nullopt);
    if (!beginsAsDatabase(copy))
        throw SourceError(SourceProblem::IndexIsDamaged, {shownName});
    return true;
}

std::string EncryptedIndex::record(const std::string &stored) const
{
    const bool isWhole = !stored.empty() && stored.size() % CbcDecryption::blockSize == 0;
    if (isPropertyList(stored) || !key_ || !isWhole)
        return stored;
    std::string bytes = stored;
    auto *const content = reinterpret_cast<unsigned char *>(bytes.data());
    CbcDecryption(*key_).decrypt(content, bytes.size());
    const auto padding = paddingOf(content, bytes.size());
    bytes.resize(bytes.size() - padding.value_or(0));
    return bytes;
}

} // namespace iosphoto::tool
