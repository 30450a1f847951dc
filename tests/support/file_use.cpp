#include "support/file_use.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

#ifdef __linux__
#include <sys/inotify.h>
#endif

namespace iosphoto::test {

namespace {

/// Text of the file that tells what this process has read before.
struct ReadingStatistics
{
    explicit ReadingStatistics(int descriptor)
        : size(pread(descriptor, text.data(), text.size() - 1, 0))
    {
    }

    std::optional<long> bytesRead() const
    {
        constexpr char label[] = "rchar: ";
        if (size <= 0 || std::strncmp(text.data(), label, sizeof label - 1) != 0)
            return std::nullopt;
        return std::atol(text.data() + sizeof label - 1);
    }

    std::array<char, 512> text = {};
    ssize_t size;
};

} // namespace

std::optional<long> bytesReadBy(const std::function<void()> &action)
{
    const int descriptor = open("/proc/thread-self/io", O_RDONLY | O_CLOEXEC);
    const ReadingStatistics before(descriptor);
    action();
    const ReadingStatistics after(descriptor);
    close(descriptor);
    if (!before.bytesRead() || !after.bytesRead())
        return std::nullopt;
    return *after.bytesRead() - *before.bytesRead() - before.size; // it was read as well
}

#ifdef __linux__

OpeningsOfFile::OpeningsOfFile(const std::string &path)
    : descriptor_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    // Without the closings, several openings in a row would be told as one.
    if (inotify_add_watch(descriptor_, path.c_str(), IN_OPEN | IN_CLOSE) < 0) {
        close(descriptor_);
        descriptor_ = -1;
    }
}

OpeningsOfFile::~OpeningsOfFile()
{
    close(descriptor_);
}

int OpeningsOfFile::count() const
{
    // The events of a watched file have no name behind them.
    inotify_event event = {};
    while (read(descriptor_, &event, sizeof event) == ssize_t{sizeof event})
        if ((event.mask & IN_OPEN) != 0)
            ++count_;
    return count_;
}

#else

OpeningsOfFile::OpeningsOfFile(const std::string & /*path*/) {}

OpeningsOfFile::~OpeningsOfFile() = default;

int OpeningsOfFile::count() const
{
    return count_;
}

#endif

} // namespace iosphoto::test
