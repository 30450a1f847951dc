#include "cipher/cbc_decryption.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace iosphoto::tool {

namespace {

void require(int success)
{
    if (success != 1)
        throw std::runtime_error("OpenSSL offers no AES-256-CBC");
}

} // namespace

CbcDecryption::CbcDecryption(const Secret &key) : context_(newCipherContext())
{
    const std::array<unsigned char, blockSize> zeros = {};
    require(
        EVP_DecryptInit_ex(context_.get(), EVP_aes_256_cbc(), nullptr, key.data(), zeros.data()));
    require(EVP_CIPHER_CTX_set_padding(context_.get(), 0));
}

void CbcDecryption::decrypt(unsigned char *bytes, std::size_t size)
{
    int done = 0;
    require(EVP_DecryptUpdate(context_.get(), bytes, &done, bytes, static_cast<int>(size)));
}

std::optional<std::size_t> paddingOf(const unsigned char *bytes, std::size_t size)
{
    if (size == 0)
        return std::nullopt;
    const unsigned char *const end = bytes + size;
    const std::size_t padding = end[-1];
    const bool isPadded = padding >= 1 && padding <= CbcDecryption::blockSize &&
                          std::count(end - padding, end, end[-1]) == std::ptrdiff_t(padding);
    return isPadded ? std::make_optional(padding) : std::nullopt;
}

} // namespace iosphoto::tool
