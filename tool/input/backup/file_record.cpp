#include "input/backup/file_record.h"

#include "formats/keyed_archive.h"
#include "formats/little_endian.h"

namespace iosphoto::tool {

std::optional<FileRecord> readFileRecord(const std::string &archive)
{
    const KeyedArchive object(archive);
    if (!object.isArchive())
        return std::nullopt;
    FileRecord record = {std::nullopt, object.integer("Size")};
    if (const auto bytes = object.data("EncryptionKey")) {
        const std::int64_t protectionClass = object.integer("ProtectionClass").value_or(0);
        record.key = {static_cast<std::uint32_t>(protectionClass), readWrappedKey(*bytes).bytes};
    }
    return record;
}

WrappedKey readWrappedKey(const std::string &bytes)
{
    constexpr std::size_t classSize = 4;
    const std::string classBytes = bytes.substr(0, classSize);
    return {static_cast<std::uint32_t>(littleEndian(classBytes)), bytes.substr(classBytes.size())};
}

} // namespace iosphoto::tool
