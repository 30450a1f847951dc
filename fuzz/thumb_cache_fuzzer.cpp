#include "fuzz_target.h"
#include "require.h"
#include "support/temporary_folder.h"
#include "thumb_cache.h"

using namespace iosphoto;
using namespace iosphoto::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const test::TemporaryFolder folder;
    const ThumbCache cache = {folder / "cache.ithmb", {reinterpret_cast<const char *>(data), size}};
    test::writeFile(cache.path, cache.bytes);
    checkIfile(cache);
    checkDetection(cache);
    checkCounting(cache);
    checkDecoding(cache);
    require(test::readFile(cache.path) == cache.bytes, "the file keeps every byte");
    // A new file each time: disks are made to write one that is truncated and filled again.
    std::filesystem::remove(cache.path);
    return 0;
}
