#ifndef IOSPHOTO_TOOL_CBC_DECRYPTION_H
#define IOSPHOTO_TOOL_CBC_DECRYPTION_H

#include "cipher/cipher_context.h"
#include "process/secret.h"

#include <cstddef>
#include <optional>

namespace iosphoto::tool {

/// Decrypts AES-256-CBC with an initialisation vector of zeros, piece by piece. The padding is left
/// in.
class CbcDecryption
{
public:
    static constexpr std::size_t blockSize = 16;

    /// @param key  of 32 bytes
    explicit CbcDecryption(const Secret &key);

    /// @param size  a multiple of blockSize, at most 2^30
    void decrypt(unsigned char *bytes, std::size_t size);

private:
    CipherContext context_;
};

/// How many bytes at the end of decrypted content fill its last block; each of them says how many
/// they are. Nothing when they do not.
/// @param size  a multiple of CbcDecryption::blockSize
std::optional<std::size_t> paddingOf(const unsigned char *bytes, std::size_t size);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_CBC_DECRYPTION_H
