// Takes an input as the key bag of an encrypted backup, and as what its index holds of a file.
#include "fuzz_target.h"
#include "input/backup/file_record.h"
#include "input/backup/key_bag.h"
#include "input/source_problem.h"
#include "require.h"

#include <string>

using namespace iosphoto;
using namespace iosphoto::fuzz;

namespace {

void checkKeyBag(const std::string &bytes)
{
    try {
        const tool::KeyBag keyBag(bytes, "bag");
        constexpr std::uint64_t mostRounds = 2 * std::uint64_t{tool::KeyBag::mostRounds};
        require(keyBag.rounds() >= 1 && keyBag.rounds() <= mostRounds, "rounds are bounded");
        constexpr std::uint64_t quick = 1000;
        if (keyBag.rounds() <= quick)
            (void)keyBag.unlock(tool::Secret("password"));
    } catch (const tool::SourceError &error) {
        require(!error.finding().facts.empty(), "damage is told with its file");
    }
}

void checkRecord(const std::string &bytes)
{
    const auto record = tool::readFileRecord(bytes);
    if (record && record->key)
        require(record->key->bytes.size() <= bytes.size(), "a key is no longer than its record");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char *>(data), size);
    checkKeyBag(bytes);
    checkRecord(bytes);
    return 0;
}
