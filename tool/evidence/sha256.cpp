#include "evidence/sha256.h"

#include <QByteArray>

#include <openssl/evp.h>

#include <array>
#include <new>
#include <stdexcept>

namespace iosphoto::tool {

namespace {

using Context = std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)>;

Context newContext()
{
    Context context(EVP_MD_CTX_new(), EVP_MD_CTX_free);
    if (!context)
        throw std::bad_alloc();
    return context;
}

void require(int success)
{
    if (success != 1)
        throw std::runtime_error("OpenSSL offers no SHA-256");
}

} // namespace

struct Sha256::State
{
    Context context = newContext();
};

Sha256::Sha256() : state_(std::make_unique<State>())
{
    require(EVP_DigestInit_ex(state_->context.get(), EVP_sha256(), nullptr));
}

Sha256::~Sha256() = default;

void Sha256::add(const char *bytes, std::size_t size)
{
    require(EVP_DigestUpdate(state_->context.get(), bytes, size));
}

std::string Sha256::digits() const
{
    const Context copy = newContext();
    require(EVP_MD_CTX_copy_ex(copy.get(), state_->context.get()));
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest = {};
    unsigned int size = 0;
    require(EVP_DigestFinal_ex(copy.get(), digest.data(), &size));
    return QByteArray(reinterpret_cast<const char *>(digest.data()), static_cast<int>(size))
        .toHex()
        .toStdString();
}

} // namespace iosphoto::tool
