#ifndef IOSPHOTO_TOOL_UTF8_LOCALE_H
#define IOSPHOTO_TOOL_UTF8_LOCALE_H

#include <clocale>
#ifdef __APPLE__
#include <xlocale.h>
#endif

namespace iosphoto::tool {

/// Makes the C functions of this thread take texts as UTF-8 while it lives, whatever the user's
/// locale. Without it names in some archives are lost.
class Utf8Locale
{
public:
    Utf8Locale() : utf8_(newlocale(LC_CTYPE_MASK, name, nullptr)), before_(uselocale(utf8_)) {}
    ~Utf8Locale()
    {
        uselocale(before_);
        if (utf8_ != nullptr)
            freelocale(utf8_);
    }
    Utf8Locale(const Utf8Locale &) = delete;
    Utf8Locale &operator=(const Utf8Locale &) = delete;

private:
#ifdef __APPLE__
    static constexpr const char *name = "en_US.UTF-8";
#else
    static constexpr const char *name = "C.UTF-8";
#endif
    locale_t utf8_; ///< null where there is none, and then nothing changes
    locale_t before_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_UTF8_LOCALE_H
