#ifndef IOSPHOTO_TESTS_CLONING_DISK_H
#define IOSPHOTO_TESTS_CLONING_DISK_H

namespace iosphoto::test {

/// While it lives, the disk makes clones of files, or refuses to, whatever the real one can.
class CloningDisk
{
public:
    /// @param error  the error number with which cloning fails; 0 for none
    explicit CloningDisk(int error = 0);
    ~CloningDisk();
    CloningDisk(const CloningDisk &) = delete;
    CloningDisk &operator=(const CloningDisk &) = delete;

    /// How many clones were asked for.
    int count() const;

    /// Whether that can be played on this system.
    static bool isPossible();
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_CLONING_DISK_H
