#include "formats/keyed_archive.h"

#include "support/backup_encryption.h"

#include <gtest/gtest.h>

using namespace iosphoto::tool;
using iosphoto::test::archivedRecord;

TEST(KeyedArchive, HasTheValuesOfItsObject)
{
    const KeyedArchive archive(archivedRecord("key", -5, 3));
    EXPECT_TRUE(archive.isArchive());
    EXPECT_EQ(archive.integer("Size"), -5);
    EXPECT_EQ(archive.integer("ProtectionClass"), 3);
    EXPECT_EQ(archive.data("EncryptionKey"), "key");
}

TEST(KeyedArchive, HasNothingUnderOtherKeysAndOfOtherTypes)
{
    const KeyedArchive archive(archivedRecord("key", 5, std::nullopt));
    EXPECT_EQ(archive.integer("ProtectionClass"), std::nullopt);
    EXPECT_EQ(archive.integer("EncryptionKey"), std::nullopt);
    EXPECT_EQ(archive.data("Size"), std::nullopt);
    EXPECT_EQ(archive.data(""), std::nullopt);
}

TEST(KeyedArchive, OfSomethingElseIsNone)
{
    for (const char *content :
         {"", "text", "bplist00",
          "<plist version=\"1.0\"><dict><key>Size</key><integer>5</integer></dict></plist>"}) {
        const KeyedArchive archive(content);
        EXPECT_FALSE(archive.isArchive()) << content;
        EXPECT_EQ(archive.integer("Size"), std::nullopt);
    }
}

TEST(KeyedArchive, CutShortAnywhereHasAValueOrNone)
{
    const std::string whole = archivedRecord("key", 5, 3);
    for (std::size_t size = 0; size < whole.size(); ++size)
        (void)KeyedArchive(whole.substr(0, size)).data("EncryptionKey");
    EXPECT_EQ(KeyedArchive(whole).data("EncryptionKey"), "key");
}
