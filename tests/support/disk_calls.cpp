#include "support/disk_calls.h"

#include "support/next_call.h"

#include <cerrno>
#include <filesystem>
#include <optional>

namespace fs = std::filesystem;

namespace {

struct Record
{
    int syncError;
    std::string failingFor;
    std::vector<std::string> calls;
};

std::optional<Record> record;

} // namespace

#ifdef __linux__

#include <cstdio>
#include <unistd.h>

namespace {

constexpr bool callsAreReplaced = true;

std::string nameOf(int descriptor)
{
    std::error_code error;
    return fs::read_symlink("/proc/self/fd/" + std::to_string(descriptor), error).filename();
}

} // namespace

// In place of the system's, for libraries too, as the program's own come first.
#define REPLACING_THAT_OF_THE_SYSTEM __attribute__((visibility("default")))

extern "C" {

REPLACING_THAT_OF_THE_SYSTEM int fsync(int descriptor)
{
    if (record) {
        const std::string name = nameOf(descriptor);
        record->calls.push_back("sync " + name);
        const bool isMeant = record->failingFor.empty() || record->failingFor == name;
        if (record->syncError != 0 && isMeant) {
            errno = record->syncError;
            return -1;
        }
    }
    return iosphoto::test::nextCall<int(int)>("fsync")(descriptor);
}

REPLACING_THAT_OF_THE_SYSTEM int rename(const char *from, const char *to) noexcept
{
    if (record)
        record->calls.push_back("rename to " + fs::path(to).filename().string());
    return iosphoto::test::nextCall<int(const char *, const char *)>("rename")(from, to);
}
}

#else

namespace {

constexpr bool callsAreReplaced = false;

} // namespace

#endif

namespace iosphoto::test {

DiskCalls::DiskCalls(int syncError, const std::string &failingFor)
{
    record = {syncError, failingFor, {}};
}

DiskCalls::~DiskCalls()
{
    record.reset();
}

const std::vector<std::string> &DiskCalls::all() const
{
    return record->calls;
}

bool DiskCalls::isPossible()
{
    return callsAreReplaced;
}

} // namespace iosphoto::test
