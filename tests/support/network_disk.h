#ifndef IOSPHOTO_TESTS_NETWORK_DISK_H
#define IOSPHOTO_TESTS_NETWORK_DISK_H

namespace iosphoto::test {

/// While it lives, every disk is one that other machines may use too.
class NetworkDisk
{
public:
    NetworkDisk();
    ~NetworkDisk();
    NetworkDisk(const NetworkDisk &) = delete;
    NetworkDisk &operator=(const NetworkDisk &) = delete;

    /// Whether that can be done on this system.
    static bool isPossible();
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_NETWORK_DISK_H
