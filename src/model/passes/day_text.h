#ifndef IOSPHOTO_DAY_TEXT_H
#define IOSPHOTO_DAY_TEXT_H

#include <QString>

#include <cstdint>
#include <ctime>

namespace iosphoto {

/// Writes local days as "yyyy-MM-dd". Remembers the last one, since neighbouring rows mostly share
/// it: so they share the text as well. Looks for the time zone when it is made, and
/// need not notice that another one was set since.
class DayText
{
public:
    DayText();

    /// The day of the lowest 32 bits of `unixTime`, read unsigned.
    QString of(std::int64_t unixTime);

private:
    void remember(std::uint32_t unixTime);
    void rememberDay(std::uint32_t unixTime, const std::tm &clock);

    QString text_;
    // Every second from the first to the last is of the day; none to begin with.
    std::uint32_t first_ = 1;
    std::uint32_t last_ = 0;
};

} // namespace iosphoto

#endif // IOSPHOTO_DAY_TEXT_H
