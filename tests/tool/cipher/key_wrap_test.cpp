#include "cipher/key_wrap.h"

#include "support/backup_encryption.h"
#include "support/hexadecimal.h"

#include <gtest/gtest.h>

using namespace iosphoto::tool;
using iosphoto::test::fromHexadecimal;
using iosphoto::test::hexadecimal;

namespace {

// The example of RFC 3394, 4.6.
const std::string wrappingKey =
    fromHexadecimal("000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f");
const std::string key =
    fromHexadecimal("00112233445566778899aabbccddeeff000102030405060708090a0b0c0d0e0f");
const std::string wrappedKey = fromHexadecimal("28c9f404c4b810f4cbccb35cfb87f8263f5786e2d80ed326"
                                               "cbc7f0e71a99f43bfb988b9b7a02dd21");

} // namespace

TEST(KeyWrap, UnwrapsThePublishedKey)
{
    const auto opened = unwrapped(wrappedKey, Secret(wrappingKey));
    ASSERT_TRUE(opened);
    EXPECT_EQ(hexadecimal(opened->view()), hexadecimal(key));
}

TEST(KeyWrap, OfTheTestsOwnBackupsWrapsIt)
{
    EXPECT_EQ(hexadecimal(iosphoto::test::wrapped(key, wrappingKey)), hexadecimal(wrappedKey));
}

TEST(KeyWrap, DoesNotOpenWithAnotherKey)
{
    std::string other = wrappingKey;
    other.back() ^= 1;
    EXPECT_FALSE(unwrapped(wrappedKey, Secret(other)));
}

TEST(KeyWrap, DoesNotOpenWhatIsDamagedInAnyBit)
{
    for (std::size_t bit = 0; bit < 8 * wrappedKey.size(); ++bit) {
        std::string damaged = wrappedKey;
        damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ 1 << bit % 8);
        EXPECT_FALSE(unwrapped(damaged, Secret(wrappingKey))) << bit;
    }
}

TEST(KeyWrap, DoesNotOpenWhatHasAnotherLength)
{
    for (std::size_t size = 0; size < wrappedKey.size(); ++size)
        EXPECT_FALSE(unwrapped(wrappedKey.substr(0, size), Secret(wrappingKey)));
    EXPECT_FALSE(unwrapped(wrappedKey + "12345678", Secret(wrappingKey)));
}
