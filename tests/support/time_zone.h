#ifndef IOSPHOTO_TESTS_TIME_ZONE_H
#define IOSPHOTO_TESTS_TIME_ZONE_H

#include <cstdlib>
#include <ctime>
#include <string>

namespace iosphoto::test {

/// Makes the process live in a time zone for as long as this does.
class TimeZone
{
public:
    explicit TimeZone(const char *name)
    {
        if (const char *const before = std::getenv("TZ"))
            before_ = before;
        setenv("TZ", name, 1);
        tzset();
    }
    ~TimeZone()
    {
        if (before_.empty())
            unsetenv("TZ");
        else
            setenv("TZ", before_.c_str(), 1);
        tzset();
    }
    TimeZone(const TimeZone &) = delete;
    TimeZone &operator=(const TimeZone &) = delete;

private:
    std::string before_;
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_TIME_ZONE_H
