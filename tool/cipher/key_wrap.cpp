#include "cipher/key_wrap.h"

#include "cipher/cipher_context.h"

#include <stdexcept>

namespace iosphoto::tool {

std::optional<Secret> unwrapped(std::string_view wrapped, const Secret &wrappingKey)
{
    constexpr std::size_t keySize = 32;
    if (wrapped.size() != wrappedKeySize || wrappingKey.size() != keySize)
        return std::nullopt;
    const CipherContext context = newCipherContext();
    EVP_CIPHER_CTX_set_flags(context.get(), EVP_CIPHER_CTX_FLAG_WRAP_ALLOW);
    if (EVP_DecryptInit_ex(context.get(), EVP_aes_256_wrap(), nullptr, wrappingKey.data(),
                           nullptr) != 1)
        throw std::runtime_error("OpenSSL offers no AES key wrap");
    Secret key(wrappedKeySize); // OpenSSL may use all of it
    int size = 0;
    const int success = EVP_DecryptUpdate(context.get(), key.data(), &size,
                                          reinterpret_cast<const unsigned char *>(wrapped.data()),
                                          static_cast<int>(wrapped.size()));
    if (success != 1 || size != static_cast<int>(keySize))
        return std::nullopt;
    return Secret({reinterpret_cast<const char *>(key.data()), keySize});
}

} // namespace iosphoto::tool
