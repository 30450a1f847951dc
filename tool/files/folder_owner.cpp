#include "files/folder_owner.h"

#include "files/owner_lock.h"

#include <array>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __APPLE__
#include <sys/sysctl.h>
#endif

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// Names this start of this machine among all; empty where the system does not tell.
std::string startOfThisMachine()
{
    std::string name;
#ifdef __APPLE__
    std::array<char, 64> text = {};
    std::size_t size = text.size() - 1;
    if (sysctlbyname("kern.bootsessionuuid", text.data(), &size, nullptr, 0) == 0)
        name = text.data();
#else
    std::ifstream("/proc/sys/kernel/random/boot_id") >> name;
#endif
    return name;
}

bool isOursAlone(int file, mode_t kind)
{
    struct stat facts = {};
    constexpr mode_t othersMay = 077;
    return isOurs(file, kind) && fstat(file, &facts) == 0 && (facts.st_mode & othersMay) == 0;
}

/// Whether whoever made a mark is dead, once we have locked it. Until it is locked it is empty; and
/// the lock of another machine may not be seen here.
bool isOfTheDead(int mark)
{
    std::array<char, 128> bytes = {};
    const ssize_t size = pread(mark, bytes.data(), bytes.size(), 0);
    return size > 0 &&
           (isOnOwnDisk(mark) ||
            std::string_view(bytes.data(), static_cast<std::size_t>(size)) == startOfThisMachine());
}

/// Whether nothing but the mark is left. Folders are never entered: private ones have none.
bool removeAllButTheMark(int folder)
{
    const std::unique_ptr<DIR, int (*)(DIR *)> entries(fdopendir(dup(folder)), closedir);
    if (entries == nullptr)
        return false;
    bool isDone = true;
    while (const dirent *const entry = readdir(entries.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != ".." && name != FolderOwner::mark)
            isDone = unlinkat(folder, entry->d_name, 0) == 0 && isDone;
    }
    return isDone;
}

void removeIfOfTheDead(const fs::path &path)
{
    const Descriptor folder(
        open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (folder.number() < 0 || !isOursAlone(folder.number(), S_IFDIR))
        return;
    const Descriptor mark(
        openat(folder.number(), FolderOwner::mark, O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (mark.number() < 0 || !isOursAlone(mark.number(), S_IFREG) || !lockAsOwner(mark.number()) ||
        !isOfTheDead(mark.number()))
        return;
    // The mark goes last, so that a run that is killed meanwhile leaves it to the next.
    if (removeAllButTheMark(folder.number()) &&
        unlinkat(folder.number(), FolderOwner::mark, 0) == 0)
        rmdir(path.c_str());
}

} // namespace

FolderOwner::FolderOwner(const fs::path &folder)
    : lock_(open((folder / mark).c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR))
{
    // Written once it is locked: a mark that does not say this belongs to a run that just starts.
    if (lock_ < 0 || !lockAsOwner(lock_))
        return;
    const std::string start = startOfThisMachine();
    [[maybe_unused]] const ssize_t written = write(lock_, start.data(), start.size());
}

FolderOwner::~FolderOwner()
{
    if (lock_ >= 0)
        close(lock_);
}

void removeFoldersOfTheDead(const fs::path &parent, const std::string &prefix)
{
    std::error_code error;
    for (fs::directory_iterator entry(parent, error), end; !error && entry != end;
         entry.increment(error))
        if (entry->path().filename().string().compare(0, prefix.size(), prefix) == 0)
            removeIfOfTheDead(entry->path());
}

} // namespace iosphoto::tool
