#include "process/temporary_path.h"

#include "process/interruption_lock.h"

#include <set>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// Guarded by InterruptionLock.
std::set<const TemporaryPath *> &living()
{
    static std::set<const TemporaryPath *> paths;
    return paths;
}

/// Removes a path from under the command, which still runs and may be adding files.
void withdraw(const fs::path &path)
{
    constexpr int attempts = 100;
    fs::path nowhere = path;
    nowhere += "-withdrawn";
    std::error_code error;
    fs::rename(path, nowhere, error); // from here on, no more come in
    for (int attempt = 0; attempt < attempts && fs::exists(nowhere, error); ++attempt)
        fs::remove_all(nowhere, error);
}

} // namespace

TemporaryPath::TemporaryPath(const std::function<fs::path()> &make)
{
    const InterruptionLock lock;
    living().insert(this); // first, as it may lack memory
    try {
        path_ = make();
    } catch (...) {
        living().erase(this);
        throw;
    }
}

TemporaryPath::~TemporaryPath()
{
    const InterruptionLock lock;
    std::error_code ignored;
    if (living().erase(this) != 0)
        fs::remove_all(path_, ignored);
}

std::error_code TemporaryPath::keepAs(const fs::path &name)
{
    const InterruptionLock lock;
    std::error_code error;
    fs::rename(path_, name, error);
    if (!error)
        living().erase(this);
    return error;
}

void removeTemporaryPaths()
{
    const InterruptionLock lock;
    for (const TemporaryPath *each : living())
        withdraw(each->path());
}

} // namespace iosphoto::tool
