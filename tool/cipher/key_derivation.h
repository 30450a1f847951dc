#ifndef IOSPHOTO_TOOL_KEY_DERIVATION_H
#define IOSPHOTO_TOOL_KEY_DERIVATION_H

#include "process/secret.h"

#include <cstdint>
#include <string>

namespace iosphoto::tool {

/// How a key is made of a password: PBKDF2 with the HMAC of a hash.
struct KeyDerivation
{
    enum class Hash { Sha1, Sha256 };

    Hash hash;
    std::string salt;
    std::uint32_t rounds; ///< at least 1, at most 2^31-1

    /// The key, of 32 bytes. May take seconds, and any thread.
    Secret keyOf(const Secret &password) const;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_KEY_DERIVATION_H
