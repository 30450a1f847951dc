#include "input/backup/encrypted_file.h"

#include "cipher/cbc_decryption.h"
#include "files/private_folder.h"
#include "text/system_error.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <vector>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t blockSize = CbcDecryption::blockSize;
using Block = std::vector<unsigned char>;

/// Decrypts whole blocks, and returns the last one.
Block decryptBlocks(std::fstream &file, const Secret &key, std::uint64_t size)
{
    constexpr std::uint64_t pieceSize = 1 << 20;
    CbcDecryption decryption(key);
    Block piece(static_cast<std::size_t>(std::min(size, pieceSize)));
    for (std::uint64_t at = 0; at < size && file; at += piece.size()) {
        piece.resize(static_cast<std::size_t>(std::min(size - at, pieceSize)));
        auto *const bytes = reinterpret_cast<char *>(piece.data());
        const auto count = static_cast<std::streamsize>(piece.size());
        file.seekg(static_cast<std::streamoff>(at));
        file.read(bytes, count);
        decryption.decrypt(piece.data(), piece.size());
        file.seekp(static_cast<std::streamoff>(at));
        file.write(bytes, count);
    }
    return piece.empty() ? piece : Block(piece.end() - blockSize, piece.end());
}

/// @param whole  bytes of whole blocks
DecryptedFile judged(const Block &last, std::uint64_t whole, std::optional<std::uint64_t> size)
{
    using State = DecryptedFile::State;
    if (whole <= size.value_or(0))
        return {whole == size.value_or(0) ? State::Whole : State::CutShort, whole};
    const auto padding = paddingOf(last.data(), last.size());
    if (!padding)
        return {State::BadPadding, size.value_or(whole)};
    const std::uint64_t content = whole - *padding;
    return {content < size.value_or(0) ? State::CutShort : State::Whole, content};
}

/// Why none of the keys opens that of a file.
SourceFinding unopened(const std::vector<std::string> &names, const WrappedKey &key,
                       const ClassKeys &keys)
{
    if (keys.has(key.protectionClass))
        return {SourceProblem::FileKeyIsDamaged, names};
    std::vector<std::string> facts = names;
    facts.push_back(std::to_string(key.protectionClass));
    return {keys.isOfDevice(key.protectionClass) ? SourceProblem::FileKeyOfDevice
                                                 : SourceProblem::FileWithoutClassKey,
            facts};
}

/// What is to be said of a file that is decrypted.
std::optional<SourceFinding> findingOf(std::vector<std::string> names, const DecryptedFile &file,
                                       const std::optional<std::int64_t> &size)
{
    if (size && *size < 0) {
        names.push_back(std::to_string(*size));
        return SourceFinding{SourceProblem::FileWithOddSize, names};
    }
    switch (file.state) {
    case DecryptedFile::State::Whole:
        return std::nullopt;
    case DecryptedFile::State::BadPadding:
        return SourceFinding{SourceProblem::EncryptedFileIsDamaged, names};
    case DecryptedFile::State::CutShort:
        break;
    }
    names.push_back(std::to_string(file.size));
    if (size)
        names.push_back(std::to_string(*size));
    return SourceFinding{
        size ? SourceProblem::EncryptedFileIsCut : SourceProblem::EncryptedFileIsDamaged, names};
}

} // namespace

DecryptedFile decryptInPlace(const fs::path &copy, const Secret &key,
                             std::optional<std::uint64_t> size)
{
    const std::uint64_t stored = fs::file_size(copy);
    const std::uint64_t whole = stored - stored % blockSize;
    std::fstream file(copy, std::ios::binary | std::ios::in | std::ios::out);
    const Block last = decryptBlocks(file, key, whole);
    file.close();
    if (!file)
        throw cannotWriteCopy(copy, systemError(errno));
    DecryptedFile result = judged(last, whole, size);
    if (stored != whole && !size) // no file ends within a block
        result = {DecryptedFile::State::CutShort, whole};
    fs::resize_file(copy, result.size);
    return result;
}

std::optional<SourceFinding> decryptStoredFile(const StoredFileNames &names,
                                               const std::optional<FileRecord> &record,
                                               const ClassKeys &keys, const fs::path &copy)
{
    const std::vector<std::string> facts = {names.stored, names.onPhone};
    if (!record) {
        fs::remove(copy);
        return SourceFinding{SourceProblem::FileWithoutRecord, facts};
    }
    if (!record->key)
        return std::nullopt;
    const auto key = keys.open(*record->key);
    if (!key) {
        fs::remove(copy);
        return unopened(facts, *record->key, keys);
    }
    const bool hasSize = record->size && *record->size >= 0;
    const DecryptedFile file = decryptInPlace(
        copy, *key, hasSize ? std::make_optional<std::uint64_t>(*record->size) : std::nullopt);
    return findingOf(facts, file, record->size);
}

} // namespace iosphoto::tool
