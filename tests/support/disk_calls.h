#ifndef IOSPHOTO_TESTS_DISK_CALLS_H
#define IOSPHOTO_TESTS_DISK_CALLS_H

#include <string>
#include <vector>

namespace iosphoto::test {

/// While it lives, notes what this program asks the system for that decides on what a power cut
/// leaves: "sync NAME" and "rename to NAME", where NAME is the last part of a path.
class DiskCalls
{
public:
    /// @param syncError  the error number with which syncing fails; 0 for none
    /// @param failingFor  the last part of the only path that it fails for; empty for any
    explicit DiskCalls(int syncError = 0, const std::string &failingFor = {});
    ~DiskCalls();
    DiskCalls(const DiskCalls &) = delete;
    DiskCalls &operator=(const DiskCalls &) = delete;

    const std::vector<std::string> &all() const;

    /// Whether calls can be noted on this system.
    static bool isPossible();
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_DISK_CALLS_H
