#include "input/backup/encrypted_file.h"

#include "support/backup_encryption.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

using namespace iosphoto::tool;
using namespace iosphoto::test;
using State = DecryptedFile::State;

namespace {

class EncryptedFile : public testing::Test
{
protected:
    static std::string content(std::size_t size)
    {
        std::string text;
        for (std::size_t i = 0; i < size; ++i)
            text += static_cast<char>(i * 7 + i / 251);
        return text;
    }

    DecryptedFile decrypt(const std::string &stored, std::optional<std::uint64_t> size) const
    {
        writeFile(file_, stored);
        return decryptInPlace(file_, Secret(key_), size);
    }
    void expectWhole(const std::string &stored, std::optional<std::uint64_t> size,
                     const std::string &content) const
    {
        const DecryptedFile file = decrypt(stored, size);
        EXPECT_EQ(file.state, State::Whole);
        EXPECT_EQ(file.size, content.size());
        EXPECT_TRUE(readFile(file_) == content);
    }

    const TemporaryFolder folder_;
    const std::filesystem::path file_ = folder_ / "file";
    const std::string key_ = std::string(32, 'k');
};

constexpr std::size_t piece = 1 << 20; ///< that is decrypted at once

} // namespace

TEST_F(EncryptedFile, OfAnyLengthIsWhatItWas)
{
    for (const std::size_t size :
         {std::size_t{0}, std::size_t{1}, std::size_t{15}, std::size_t{16}, std::size_t{17},
          piece - 17, piece - 16, piece - 1, piece, piece + 1, 3 * piece + 5})
        expectWhole(encryptedWith(key_, content(size)), size, content(size));
}

TEST_F(EncryptedFile, OfUnknownLengthEndsWhereItsPaddingBegins)
{
    for (std::size_t size = 0; size <= 33; ++size)
        expectWhole(encryptedWith(key_, content(size)), std::nullopt, content(size));
}

TEST_F(EncryptedFile, OfNoBytesIsEmpty)
{
    expectWhole("", 0, "");
    expectWhole("", std::nullopt, "");
}

TEST_F(EncryptedFile, ThatIsLongerThanTheIndexSaysKeepsAllOfIt)
{
    expectWhole(encryptedWith(key_, content(100)), 40, content(100));
}

TEST_F(EncryptedFile, WithoutItsLastBlockIsWholeWhereThatHasPaddingOnly)
{
    expectWhole(encryptedWith(key_, content(48)).substr(0, 48), 48, content(48));
}

TEST_F(EncryptedFile, CutShortIsRightSoFar)
{
    const std::string stored = encryptedWith(key_, content(100));
    for (const std::size_t left : {0U, 1U, 15U, 16U, 17U, 95U, 96U}) {
        const DecryptedFile file = decrypt(stored.substr(0, left), 100);
        EXPECT_EQ(file.state, State::CutShort) << left;
        EXPECT_EQ(file.size, left / 16 * 16);
        EXPECT_EQ(readFile(file_), content(100).substr(0, file.size));
    }
}

TEST_F(EncryptedFile, CutWithinABlockIsNoticedWithoutALengthToo)
{
    const std::string stored = encryptedWith(key_, content(100));
    EXPECT_EQ(decrypt(stored.substr(0, 100), std::nullopt).state, State::CutShort);
}

TEST_F(EncryptedFile, ThatTheIndexSaysIsLongerIsCutShort)
{
    const DecryptedFile file = decrypt(encryptedWith(key_, content(100)), 1'000'000'000'000);
    EXPECT_EQ(file.state, State::CutShort);
    EXPECT_EQ(decrypt(encryptedWith(key_, content(97)), 98).state, State::CutShort);
}

TEST_F(EncryptedFile, WithWrongPaddingIsDamaged)
{
    std::string stored = encryptedWith(key_, content(100));
    stored.back() ^= 1;
    for (const std::optional<std::uint64_t> &size :
         {std::optional<std::uint64_t>(100), std::optional<std::uint64_t>()}) {
        const DecryptedFile file = decrypt(stored, size);
        EXPECT_EQ(file.state, State::BadPadding);
        EXPECT_EQ(file.size, size.value_or(stored.size()));
        EXPECT_EQ(readFile(file_).substr(0, 96), content(96));
    }
}
