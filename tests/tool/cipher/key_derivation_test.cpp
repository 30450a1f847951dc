#include "cipher/key_derivation.h"

#include "support/backup_encryption.h"
#include "support/hexadecimal.h"

#include <gtest/gtest.h>

using namespace iosphoto::tool;
using iosphoto::test::hexadecimal;

namespace {

struct PublishedKey
{
    const char *hash;
    std::string password;
    std::string salt;
    std::uint32_t rounds;
    std::string digits; ///< of the beginning of the key, as far as it was published
};

/// The examples of RFC 6070 and RFC 7914.
const PublishedKey publishedKeys[] = {
    {"SHA1", "password", "salt", 1, "0c60c80f961f0e71f3a9b524af6012062fe037a6"},
    {"SHA1", "password", "salt", 2, "ea6c014dc72d6f8ccd1ed92ace1d41f0d8de8957"},
    {"SHA1", "password", "salt", 4096, "4b007901b765489abead49d926f721d065a429c1"},
    {"SHA1", "passwordPASSWORDpassword", "saltSALTsaltSALTsaltSALTsaltSALTsalt", 4096,
     "3d2eec4fe41c849b80c8d83662c0e44a8b291a964cf2f07038"},
    {"SHA1", std::string("pass\0word", 9), std::string("sa\0lt", 5), 4096,
     "56fa6aa75548099dcc37d7f03425e0c3"},
    {"SHA256", "passwd", "salt", 1,
     "55ac046e56e3089fec1691c22544b605f94185216dde0465e68b9d57c20dacbc"},
    {"SHA256", "Password", "NaCl", 80000,
     "4ddcd8f60b98be21830cee5ef22701f9641a4418d04c0414aeff08876b34ab56"},
};

KeyDerivation::Hash hashNamed(const std::string &name)
{
    return name == "SHA1" ? KeyDerivation::Hash::Sha1 : KeyDerivation::Hash::Sha256;
}

} // namespace

TEST(KeyDerivation, GivesThePublishedKeys)
{
    for (const PublishedKey &each : publishedKeys) {
        const KeyDerivation derivation = {hashNamed(each.hash), each.salt, each.rounds};
        const Secret key = derivation.keyOf(Secret(each.password));
        EXPECT_EQ(hexadecimal(key.view()).substr(0, each.digits.size()), each.digits);
        EXPECT_EQ(key.size(), 32U);
    }
}

TEST(KeyDerivation, OfTheTestsOwnBackupsGivesThemToo)
{
    constexpr std::size_t keySize = 32;
    for (const PublishedKey &each : publishedKeys)
        EXPECT_EQ(hexadecimal(iosphoto::test::pbkdf2(each.hash, each.password, each.salt,
                                                     each.rounds, keySize))
                      .substr(0, each.digits.size()),
                  each.digits);
}
