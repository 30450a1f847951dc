#include "evidence/sha256.h"

#include "support/sha256_of.h"

#include <gtest/gtest.h>

using iosphoto::test::sha256Of;
using iosphoto::tool::Sha256;

TEST(Sha256, OfKnownTexts)
{
    Sha256 hash;
    EXPECT_EQ(hash.digits(), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    hash.add("abc", 3);
    EXPECT_EQ(hash.digits(), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

TEST(Sha256, DoesNotDependOnThePieces)
{
    const std::string bytes(3000, 'x');
    Sha256 hash;
    for (std::size_t at = 0; at < bytes.size(); at += 1000) {
        hash.add(bytes.data() + at, 1000);
        EXPECT_EQ(hash.digits(), sha256Of(bytes.substr(0, at + 1000)));
    }
}
