#include "input/backup/encrypted_file.h"

#include "memory/heap_use.h"
#include "support/backup_encryption.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;
namespace tool = iosphoto::tool;

namespace {

/// The bytes that decrypting a file of that many takes at a time.
long peakOf(std::size_t size)
{
    const TemporaryFolder folder;
    const std::string key(32, 'k');
    writeFile(folder / "file", encryptedWith(key, std::string(size, 'c')));
    const long before = heapBytes();
    forgetHeapPeak();
    const tool::DecryptedFile file = tool::decryptInPlace(folder / "file", tool::Secret(key), size);
    EXPECT_EQ(file.size, size);
    return heapPeak() - before;
}

} // namespace

TEST(MemoryOfDecryption, DoesNotGrowWithTheFile)
{
    constexpr std::size_t megabyte = 1 << 20;
    constexpr long tolerance = 10'000;
    EXPECT_LE(peakOf(32 * megabyte), peakOf(2 * megabyte) + tolerance);
}
