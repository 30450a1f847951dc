#ifndef IOSPHOTO_TOOL_CIPHER_CONTEXT_H
#define IOSPHOTO_TOOL_CIPHER_CONTEXT_H

#include <openssl/evp.h>

#include <memory>
#include <new>

namespace iosphoto::tool {

/// What OpenSSL keeps of a cipher at work, wiped when it goes.
using CipherContext = std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)>;

inline CipherContext newCipherContext()
{
    CipherContext context(EVP_CIPHER_CTX_new(), EVP_CIPHER_CTX_free);
    if (!context)
        throw std::bad_alloc();
    return context;
}

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_CIPHER_CONTEXT_H
