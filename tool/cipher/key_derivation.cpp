#include "cipher/key_derivation.h"

#include <openssl/evp.h>

#include <stdexcept>

namespace iosphoto::tool {

Secret KeyDerivation::keyOf(const Secret &password) const
{
    constexpr std::size_t keySize = 32;
    Secret key(keySize);
    const int success = PKCS5_PBKDF2_HMAC(
        reinterpret_cast<const char *>(password.data()), static_cast<int>(password.size()),
        reinterpret_cast<const unsigned char *>(salt.data()), static_cast<int>(salt.size()),
        static_cast<int>(rounds), hash == Hash::Sha1 ? EVP_sha1() : EVP_sha256(),
        static_cast<int>(key.size()), key.data());
    if (success != 1)
        throw std::runtime_error("OpenSSL offers no PBKDF2 with this hash");
    return key;
}

} // namespace iosphoto::tool
