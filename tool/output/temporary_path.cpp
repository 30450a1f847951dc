#include "output/temporary_path.h"

#include "output/interruption_lock.h"

#include <chrono>
#include <set>
#include <thread>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// Guarded by InterruptionLock.
std::set<const TemporaryPath *> &living()
{
    static std::set<const TemporaryPath *> paths;
    return paths;
}

/// Removes a path although the command, which still runs, may be adding files below it.
void removeFromUnderTheCommand(const fs::path &path)
{
    constexpr int patience = 200;
    constexpr std::chrono::milliseconds pause{5};
    std::error_code error;
    fs::remove_all(path, error);
    for (int attempt = 0; error && attempt < patience; ++attempt) {
        std::this_thread::sleep_for(pause);
        fs::remove_all(path, error);
    }
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
        removeFromUnderTheCommand(each->path());
}

} // namespace iosphoto::tool
