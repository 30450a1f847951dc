#include "process/secret.h"

#include <openssl/crypto.h>

#include <algorithm>
#include <new>
#include <sys/resource.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace iosphoto::tool {

namespace {

unsigned char *newSecretMemory(std::size_t size)
{
    void *const memory = OPENSSL_secure_zalloc(std::max<std::size_t>(size, 1));
    if (memory == nullptr)
        throw std::bad_alloc();
    return static_cast<unsigned char *>(memory);
}

} // namespace

Secret::Secret(std::size_t size) : size_(size), bytes_(newSecretMemory(size), Wipe{size}) {}

Secret::Secret(std::string_view bytes) : Secret(bytes.size())
{
    std::copy(bytes.begin(), bytes.end(), bytes_.get());
}

void Secret::Wipe::operator()(unsigned char *bytes) const
{
    OPENSSL_secure_clear_free(bytes, size);
}

void wipe(void *bytes, std::size_t size)
{
    OPENSSL_cleanse(bytes, size);
}

void guardSecrets()
{
    constexpr std::size_t heap = 1 << 18; // more than the largest key bag has keys
    constexpr std::size_t smallest = 32;
    if (CRYPTO_secure_malloc_initialized() == 0)
        CRYPTO_secure_malloc_init(heap, smallest); // without it, usual memory that is wiped
    const rlimit none = {0, 0};
    setrlimit(RLIMIT_CORE, &none);
#ifdef __linux__
    prctl(PR_SET_DUMPABLE, 0);
#endif
}

} // namespace iosphoto::tool
