/// Tells what a living run of the command uses from what one left that was killed.
#ifndef IOSPHOTO_TOOL_OWNER_LOCK_H
#define IOSPHOTO_TOOL_OWNER_LOCK_H

#include <sys/types.h>
#include <utility>

namespace iosphoto::tool {

/// A descriptor that is closed with the object.
class Descriptor
{
public:
    explicit Descriptor(int number = -1) : number_(number) {}
    ~Descriptor();
    Descriptor(Descriptor &&other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        std::swap(number_, other.number_);
        return *this;
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int number() const { return number_; }

private:
    int number_;
};

/// Locks a file that nobody else has locked. The lock goes with the last descriptor of this
/// opening, whatever ends the process.
bool lockAsOwner(int file);

/// Whether the file lies on a disk of this machine alone, so that locks tell of all who may use it.
bool isOnOwnDisk(int file);

/// Whether a file or folder is of that kind, and this user's.
bool isOurs(int file, mode_t kind);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_OWNER_LOCK_H
