#ifndef IOSPHOTO_TESTS_PLAIN_USER_H
#define IOSPHOTO_TESTS_PLAIN_USER_H

#include <unistd.h>

namespace iosphoto::test {

/// Makes the process act as a user without special rights while it lives. Changes nothing where it
/// runs as one already.
class PlainUser
{
public:
    PlainUser() : wasRoot_(geteuid() == 0)
    {
        constexpr id_t nobody = 65534;
        isPlain_ = !wasRoot_ || (setegid(nobody) == 0 && seteuid(nobody) == 0);
    }
    ~PlainUser()
    {
        if (wasRoot_ && (seteuid(0) != 0 || setegid(0) != 0))
            _exit(1);
    }
    PlainUser(const PlainUser &) = delete;
    PlainUser &operator=(const PlainUser &) = delete;

    bool isPlain() const { return isPlain_; }

private:
    bool wasRoot_;
    bool isPlain_ = false;
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_PLAIN_USER_H
